#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# bench/desktop.sh [--qt6] [--runs NUMBER] [--busy NUMBER] [WORD...]: installs what is missing, builds the
# program as it is shipped, or the same with Qt 6, and compares Dezimo with a floor program and its peers
# on a display of its own. With words, it measures only the programs whose names contain one of them. With
# --busy, that many loops keep the processor busy meanwhile. It prints the table to standard output.
set -euo pipefail
cd "$(dirname "$0")/.."

qt=
[[ ${1:-} != --qt6 ]] || { qt=-qt6; shift; }
{
    tools/packages.sh "build$qt" "run$qt" bench peers
    cmake --preset "bench$qt"
    cmake --build --preset "bench$qt"
} >&2
exec xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" \
    "build/bench$qt/bin/desktop_benchmark" "$@"
