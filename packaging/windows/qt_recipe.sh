#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# qt_recipe.sh SDK WORK: makes Qt's Core, Gui, Widgets, Svg and Test for 64-bit Windows from Debian's
# source packages and installs them below SDK; WORK is an empty folder for sources and objects.
# The checksum of this file names the folder in which tools/windows_sdk.sh keeps the result, so a
# change of any byte here means half an hour of compiling on every machine.
set -euo pipefail

here=$(realpath "$(dirname "$0")")
sdk=$(realpath "$1")
work=$(realpath "$2")
# What Qt believes to be its place. A neutral one: it stands in the libraries that are shipped, which
# shall not name a user's home. Everything that the build reads finds itself relative to its own file.
prefix=/qt

# unpack PACKAGE: extracts it, with Debian's patches, into the folder of that name.
unpack() {
    dpkg-source --no-check --extract "$1"_*.dsc "$1" >/dev/null
}

# Debian has one compiler per thread model; Qt asks for the plain names and needs the POSIX one. The
# names of sources that get into the libraries begin in WORK.
choose_compilers() {
    mkdir bin
    local tool
    for tool in gcc g++; do
        printf '#!/bin/sh\nexec x86_64-w64-mingw32-%s-posix "-ffile-prefix-map=%s=." "$@"\n' \
            "$tool" "$work" >"bin/x86_64-w64-mingw32-$tool"
        chmod +x "bin/x86_64-w64-mingw32-$tool"
    done
    export PATH="$work/bin:$PATH"
}

# Qt Core cannot be built without its CBOR classes, hence they stay although nothing here uses them.
configure_qtbase() {
    local absent=(vulkan network sql xml concurrent printer tabletevent direct2d direct2d1_1 ico)
    ../qtbase-opensource-src/configure -xplatform win32-g++ \
        -device-option CROSS_COMPILE=x86_64-w64-mingw32- -external-hostbindir /usr/lib/qt5/bin \
        -opensource -confirm-license -release -shared -prefix "$prefix" \
        -nomake examples -nomake tests -no-opengl -no-dbus -no-icu \
        "${absent[@]/#/-no-feature-}" \
        -qt-zlib -qt-libpng -qt-freetype -qt-pcre -qt-harfbuzz -qt-doubleconversion -no-libjpeg -no-gif
}

# The targets are named one by one because "all" compiles everything a second time for debugging.
build_qtbase() {
    mkdir build-qtbase
    cd build-qtbase
    configure_qtbase
    make sub-src-qmake_all
    make -C src -j"$(nproc)" sub-bootstrap sub-corelib sub-gui sub-widgets sub-plugins sub-testlib
    make -C src INSTALL_ROOT="$sdk" install
    make -o Makefile INSTALL_ROOT="$sdk" install_mkspecs install_syncqt install_fixqt4headers
    cd ..
}

# The qmake of this build, told where the SDK really lies.
install_qmake() {
    cp build-qtbase/bin/qmake "$sdk$prefix/bin/"
    printf '%s\n' '[Paths]' Prefix=.. HostPrefix=.. Sysroot= TargetSpec=win32-g++ HostSpec=linux-g++ \
        >"$sdk$prefix/bin/qt.conf"
}

build_qtsvg() {
    mkdir build-qtsvg
    cd build-qtsvg
    "$sdk$prefix/bin/qmake" ../qtsvg-opensource-src
    make sub-src-qmake_all
    # The plugins do not know that they need the library.
    make -C src -j"$(nproc)" sub-svg
    make -C src -j"$(nproc)" sub-plugins
    make -C src install
    cd ..
}

cd "$work"
"$here/fetch_sources.sh" . qtbase-opensource-src qtsvg-opensource-src
unpack qtbase-opensource-src
unpack qtsvg-opensource-src
# The same sources give the same bytes: no time of this build gets into the libraries.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog --file qtbase-opensource-src/debian/changelog --show-field Timestamp)
export SOURCE_DATE_EPOCH QT_RCC_SOURCE_DATE_OVERRIDE="$SOURCE_DATE_EPOCH"
choose_compilers
build_qtbase
install_qmake
build_qtsvg
