# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# To be sourced by scripts that start programs on an X display and wait for their windows.

# start_window_manager: starts one for the display and leaves its process in $window_manager.
start_window_manager() {
    openbox --sm-disable >/dev/null 2>&1 &
    window_manager=$!
    until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep --quiet 'window id'; do
        kill -0 "$window_manager" || { echo "no window manager" >&2; return 1; }
    done
}

# window_named SECONDS PATTERN: prints the visible window of such a name as soon as there is one.
# xdotool fails when it meets a window that is just closing, so it is asked again until the time is up.
window_named() {
    local end=$((SECONDS + $1)) rest=$1
    until timeout "$rest" xdotool search --sync --onlyvisible --name "$2" 2>/dev/null; do
        rest=$((end - SECONDS))
        [[ $rest -gt 0 ]] || return 1
    done
}
