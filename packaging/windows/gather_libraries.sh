#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# gather_libraries.sh SDK FOLDER: puts beside the program in FOLDER what it needs of Qt's plugins, and
# every library that program, plugins and libraries name and that is not part of Windows.
set -euo pipefail

sdk=$1
folder=$2
# One plugin for windows, one for their looks, two for SVG pictures.
plugins=(platforms/qwindows styles/qwindowsvistastyle imageformats/qsvg iconengines/qsvgicon)

folder_of() { dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name="$1")"; }

sources=("$sdk/bin" "$(folder_of libstdc++-6.dll)" "$(folder_of libwinpthread-1.dll)")

# take FILE FOLDER: copies a file without the symbols that only a debugger reads.
take() {
    install --directory "$2"
    x86_64-w64-mingw32-strip --strip-unneeded -o "$2/${1##*/}" "$1"
    chmod 644 "$2/${1##*/}"
}

# libraries_of FILE: the names of the libraries that Windows loads with it.
libraries_of() { x86_64-w64-mingw32-objdump --private-headers "$1" | sed --quiet 's/^\tDLL Name: //p'; }

waiting=("$folder/dezimo.exe")
for plugin in "${plugins[@]}"; do
    take "$sdk/plugins/$plugin.dll" "$folder/${plugin%/*}"
    waiting+=("$folder/$plugin.dll")
done

while [[ ${#waiting[@]} -gt 0 ]]; do
    file=${waiting[0]}
    waiting=("${waiting[@]:1}")
    for library in $(libraries_of "$file"); do
        [[ ! -e $folder/$library ]] || continue
        for source in "${sources[@]}"; do
            [[ -e $source/$library ]] || continue
            take "$source/$library" "$folder"
            waiting+=("$folder/$library")
            break
        done
    done
done
