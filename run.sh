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

echo "No display (neither DISPLAY nor WAYLAND_DISPLAY): playing the guided tour into build/tour/"
# A home of its own, so that the tour neither shows nor changes the person's settings.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir -m 0700 "$home/runtime"
mkdir -p build/tour
env --unset=XDG_CONFIG_DIRS HOME="$home" XDG_CONFIG_HOME="$home/config" \
    XDG_CACHE_HOME="$home/cache" XDG_DATA_HOME="$home/data" XDG_RUNTIME_DIR="$home/runtime" \
    QT_QPA_PLATFORM=offscreen build/release/bin/dezimo-tour build/tour
