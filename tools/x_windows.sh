# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# To be sourced by scripts that wait for windows of an X display.

# window_named SECONDS PATTERN: the visible window of such a name, as soon as there is one. xdotool
# fails when it meets a window that is just going, so that asking again is part of the waiting.
window_named() {
    local end=$((SECONDS + $1)) rest=$1
    until timeout "$rest" xdotool search --sync --onlyvisible --name "$2" 2>/dev/null; do
        rest=$((end - SECONDS))
        [[ $rest -gt 0 ]] || return 1
    done
}
