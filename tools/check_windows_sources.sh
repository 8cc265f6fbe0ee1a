#!/bin/sh
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# Compiles the sources of sysinfo/ and the sources and tests that only Windows has, without linking
# them, so that a change made on another system cannot break them unnoticed. The compiler comes from
# Debian's package g++-mingw-w64-x86-64-posix. Qt's headers are those of the host (Debian's
# qtbase5-dev, and qt6-base-dev where it is installed): the compiler's own definitions make QtCore's
# take their Windows branch. Language, definitions and warnings are read from
# cmake/DezimoOptions.cmake; every warning is an error.

set -eu
cd "$(dirname "$0")/.."

compiler=${1:-x86_64-w64-mingw32-g++-posix}
if ! command -v "$compiler" >/dev/null; then
    echo "$0: $compiler is missing; install g++-mingw-w64-x86-64-posix" >&2
    exit 1
fi
options=cmake/DezimoOptions.cmake
warnings=$(grep -o -e '-W[a-z][a-z0-9=-]*' "$options")
definitions=$(sed -n 's/^ *\(QT_[A-Z_]*\(=[0-9a-fx]*\)\{0,1\}\))*$/-D\1/p' "$options")
definitions="$definitions$(sed -n 's/^ *\$<\$<PLATFORM_ID:Windows>:\([A-Z0-9_]*\)>$/ -D\1/p' "$options")"
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT

# check MOC HEADERS: compiles everything with the headers of one Qt.
check() {
    for source in sysinfo/*.cpp app/endrequests_windows.cpp tests/support/privateregistry.cpp tests/support/testmain.cpp \
        tests/sysinfo/windowsmachine.cpp tests/sysinfo/tst_win32host.cpp tests/sysinfo/tst_windowsfacts.cpp; do
        # sysinfo/CMakeLists.txt leaves these out on Windows.
        case $source in
            */localesetting.cpp | */osrelease.cpp | */unixosinfo.cpp | */visalibrary.cpp) continue ;;
        esac
        echo "$source"
        case $source in
            */tst_*) "$1" "$source" -o "$made/$(basename "$source" .cpp).moc" ;;
        esac
        # shellcheck disable=SC2086
        "$compiler" -fsyntax-only -std=c++17 $warnings -Werror $definitions \
            -isystem "$2" -isystem "$2/QtCore" -isystem "$2/QtTest" \
            -isystem "$made" -Isysinfo -Itests/support "$source"
    done
}

check "$(QT_SELECT=qt5 qmake -query QT_HOST_BINS)/moc" "$(QT_SELECT=qt5 qmake -query QT_INSTALL_HEADERS)"
if command -v qmake6 >/dev/null; then
    echo "The same with Qt 6"
    check "$(qmake6 -query QT_HOST_LIBEXECS)/moc" "$(qmake6 -query QT_INSTALL_HEADERS)"
fi
