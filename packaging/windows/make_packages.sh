#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# make_packages.sh SDK VERSION: copies the program of the Windows build and all it needs into
# build/windows/package and makes the zip and the installer of that. The same build gives the same zip.
set -euo pipefail
cd "$(dirname "$0")/../.."

sdk=$1
version=$2
packages=build/windows/package
staged=$packages/Dezimo
name=dezimo_${version}_win64

# The uninstaller removes what is on these lists and nothing else, inner folders before outer ones.
write_removals() {
    # shellcheck disable=SC2016
    local remove='s,/,\\,g; s,.*,"$INSTDIR\\&",'
    (cd "$staged" && find . -type f -printf '%P\n' | sort) |
        sed "$remove; s/^/Delete /" >"$staged.files.nsh"
    (cd "$staged" && find . -mindepth 1 -depth -type d -printf '%P\n') |
        sed "$remove; s/^/RMDir /" >"$staged.folders.nsh"
}

rm -rf "$packages"
mkdir -p "$packages"
cmake --install build/windows --component application --prefix "$PWD/$staged" --strip >/dev/null
packaging/windows/gather_libraries.sh "$sdk" "$staged"
find "$staged" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +

(cd "$packages" && find Dezimo | LC_ALL=C sort | TZ=UTC0 zip --quiet -X -9 -@ "$name.zip")
write_removals
makensis -V2 -DSTAGED="$PWD/$staged" -DINSTALLER="$PWD/$packages/$name-setup.exe" \
    build/windows/packaging/windows/dezimo.nsi
