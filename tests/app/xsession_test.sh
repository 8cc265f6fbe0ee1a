#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# xsession_test.sh PROGRAM CLICKPOSITIONS: uses the program by mouse and keys, on a display with a
# window manager and in a home of their own.
set -euo pipefail

# shellcheck source=tools/x_windows.sh
. "$(dirname "$0")/../../tools/x_windows.sh"

scratch=$(mktemp --directory)
processes=()
cleanup() {
    [[ ${#processes[@]} -eq 0 ]] || kill "${processes[@]}" 2>/dev/null || true
    rm -rf "$scratch"
}
trap cleanup EXIT

# The program uses no files of the person who runs this.
mkdir -m 0700 "$scratch/runtime"
export HOME=$scratch XDG_RUNTIME_DIR=$scratch/runtime QT_QPA_PLATFORM=xcb
unset XDG_CONFIG_HOME XDG_CACHE_HOME XDG_DATA_HOME XDG_STATE_HOME WAYLAND_DISPLAY \
    DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS

# Qt warns of frames that the window manager removed while Qt looked for them.
export QT_LOGGING_RULES=qt.qpa.xcb.warning=false

mkfifo "$scratch/display"
# Without -noreset the display restarts, unreachable for a while, when its first client goes.
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$scratch/display" 2>"$scratch/xvfb.log" &
processes+=($!)
read -r number <"$scratch/display"
export DISPLAY=:$number
start_window_manager
processes+=("$window_manager")

python3 "$(dirname "$0")/xsession_test.py" linux "$@"
