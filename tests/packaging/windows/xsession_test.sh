#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# xsession_test.sh PROGRAM CLICKPOSITIONS: uses the program for Windows by mouse and keys. CTest runs
# it from the source folder.
set -euo pipefail
# shellcheck source=/dev/null
. tools/wine_session.sh

scratch=$(mktemp --directory)
trap clean_up EXIT

# A failed test may leave its Windows changed, so that Windows is not used again.
clean_up() {
    [[ $? -eq 0 ]] || rm -f "${WINEPREFIX:-$scratch}/made"
    end_wine
    rm -rf "$scratch"
}

sdk=$(tools/windows_sdk.sh --where)
cp "$@" "$scratch"
printf '[Paths]\nPlugins=Z:%s/plugins\n' "$sdk" >"$scratch/qt.conf"
find_libraries "$sdk"
start_wine

python3 tests/app/xsession_test.py wine "$scratch/${1##*/}" "$scratch/${2##*/}"
