#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# ./package.sh [--qt6 | windows]: installs what is missing, builds the Debian package (with Qt 5, or
# with Qt 6), or the zip and the installer for Windows, and prints where they are. The same sources give
# the same bytes, because every file in a package has the time of the release.
set -euo pipefail
cd "$(dirname "$0")"

released=$(sed --quiet 's/^## .*, \([0-9-]*\)$/\1/p' CHANGELOG.md | head --lines=1)
export SOURCE_DATE_EPOCH="${SOURCE_DATE_EPOCH:-$(date --utc --date="$released" +%s)}"
umask 022

# debian PRESET
debian() {
    local folder=build/$1
    export LC_ALL=C.UTF-8 # without it CPack cannot read paths beyond ASCII
    rm -f "$folder"/*.deb
    cmake --preset "$1" >/dev/null # warnings and errors still show
    cmake --build --preset "$1"
    local log=$folder/cpack.log
    cpack --preset "$1" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
    echo "The package: $(echo "$folder"/*.deb)"
}

windows() {
    # windows-test has what runs the result here, so that it can be looked at and tested at once.
    tools/packages.sh build windows windows-test
    local sdk version
    sdk=$(tools/windows_sdk.sh)
    version=$(sed --quiet 's/^## \(.*\), [0-9-]*$/\1/p' CHANGELOG.md | head --lines=1)
    cmake --preset windows --no-warn-unused-cli >/dev/null # warnings and errors still show
    cmake --build --preset windows --target dezimo
    packaging/windows/make_packages.sh "$sdk" "$version"
    echo "The zip and the installer: $(echo build/windows/package/dezimo_*)"
}

case "$*" in
    "") tools/packages.sh build package; debian package ;;
    --qt6) tools/packages.sh build-qt6 package; debian package-qt6 ;;
    windows) windows ;;
    *) echo "usage: ./package.sh [--qt6 | windows]" >&2; exit 2 ;;
esac
