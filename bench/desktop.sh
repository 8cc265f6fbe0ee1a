#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# bench/desktop.sh [--runs NUMBER] [WORD...]: installs what is missing, builds the program as it is
# shipped, and compares Dezimo with a floor program and its peers on a display of its own. With words,
# it measures only the programs whose names contain one of them. It prints the table to standard output.
set -euo pipefail
cd "$(dirname "$0")/.."

{
    tools/packages.sh build run bench peers
    cmake --preset bench
    cmake --build --preset bench
} >&2
exec xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" \
    build/bench/bin/desktop_benchmark "$@"
