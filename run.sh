#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# ./run.sh [--qt6]: installs what is missing, builds Dezimo, with Qt 5 or with Qt 6, and starts it.
# Without a display it plays the guided tour instead, which leaves its pictures in build/tour/ or
# build/tour-qt6/.
set -euo pipefail
cd "$(dirname "$0")"

case "$*" in
    "") qt='' ;;
    --qt6) qt=-qt6 ;;
    *) echo "usage: ./run.sh [--qt6]" >&2; exit 2 ;;
esac

tools/packages.sh "build$qt" "run$qt"
cmake --preset "release$qt" >/dev/null # warnings and errors still show
cmake --build --preset "release$qt"

if [[ -n ${DISPLAY:-} || -n ${WAYLAND_DISPLAY:-} ]]; then
    exec "build/release$qt/bin/dezimo"
fi

echo "No display: neither DISPLAY nor WAYLAND_DISPLAY is set. Playing the guided tour into build/tour$qt/"
tools/play_tour.sh "build/release$qt" "build/tour$qt"
