#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# x_windows_test.sh: a search for a window fails if it meets another window that is just closing, so
# it must be repeated. CTest runs this test from the source folder.
set -euo pipefail
# shellcheck source=tools/x_windows.sh
. tools/x_windows.sh

scratch=$(mktemp --directory)
trap 'rm -rf "$scratch"' EXIT
export PATH=$scratch:$PATH

# fake_xdotool LINE: replaces xdotool by a script of one line.
fake_xdotool() {
    printf '#!/bin/sh\n%s\n' "$1" >"$scratch/xdotool"
    chmod +x "$scratch/xdotool"
}

fake_xdotool "[ -e '$scratch/asked' ] && echo 4711 || { touch '$scratch/asked'; exit 1; }"
[[ $(window_named 60 Dezimo) == 4711 ]] || { echo "gave up at the first failure" >&2; exit 1; }

fake_xdotool 'exit 1'
! window_named 1 Dezimo || { echo "found a window where there is none" >&2; exit 1; }
