#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# ./package.sh: installs what is missing, builds the Debian package and says where it lies. The same
# sources give the same bytes: every time in the package is that of the release.
set -euo pipefail
cd "$(dirname "$0")"

debian() {
    tools/packages.sh build package
    local released
    released=$(sed --quiet 's/^## .*, \([0-9-]*\)$/\1/p' CHANGELOG.md | head --lines=1)
    export SOURCE_DATE_EPOCH="${SOURCE_DATE_EPOCH:-$(date --utc --date="$released" +%s)}"
    umask 022
    export LC_ALL=C.UTF-8 # CPack cannot read a path beyond ASCII otherwise
    rm -f build/package/*.deb
    cmake --preset package >/dev/null # warnings and errors still show
    cmake --build --preset package
    local log=build/package/cpack.log
    cpack --preset package >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
    echo "The package: $(echo build/package/*.deb)"
}

case "$*" in
    "") debian ;;
    *)
        echo "usage: ./package.sh (it makes the Debian package; there are no others yet)" >&2
        exit 2
        ;;
esac
