#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# ./run.sh: installs what is missing, builds Dezimo and starts it. Without a display it plays the
# guided tour instead, which leaves its pictures in build/tour/.
set -euo pipefail
cd "$(dirname "$0")"

tools/packages.sh build run
cmake --preset release >/dev/null # warnings and errors still show
cmake --build --preset release

if [[ -n ${DISPLAY:-} || -n ${WAYLAND_DISPLAY:-} ]]; then
    exec build/release/bin/dezimo
fi

echo "No display: neither DISPLAY nor WAYLAND_DISPLAY is set. Playing the guided tour into build/tour/"
tools/play_tour.sh build/tour
