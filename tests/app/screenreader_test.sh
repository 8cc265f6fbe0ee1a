#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# screenreader_test.sh PROGRAM: uses the program as the user of a screen reader does, through AT-SPI
# alone, on a display, a session bus and an accessibility bus of its own.
set -euo pipefail

program=$1
person=$(dirname "$0")/screenreader_test.py
scratch=$(mktemp --directory)
display_pid=
cleanup() {
    [[ -z $display_pid ]] || kill "$display_pid" 2>/dev/null || true
    rm -rf "$scratch"
}
trap cleanup EXIT

# The program uses no files of the person who runs this, and a runtime folder that the buses accept.
mkdir -m 0700 "$scratch/runtime"
export HOME=$scratch XDG_RUNTIME_DIR=$scratch/runtime
unset XDG_CONFIG_HOME XDG_CACHE_HOME XDG_DATA_HOME XDG_STATE_HOME WAYLAND_DISPLAY QT_QPA_PLATFORM \
    DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS

mkfifo "$scratch/display"
# Without -noreset the display restarts, unreachable for a while, when its first client goes.
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$scratch/display" 2>"$scratch/xvfb.log" &
display_pid=$!
read -r number <"$scratch/display"
export DISPLAY=:$number

# The first Python in PATH may lack modules that the system's Python has.
python=python3
python3 -c 'import pyatspi' 2>/dev/null || python=/usr/bin/python3

export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
dbus-run-session -- "$python" "$person" "$program"
