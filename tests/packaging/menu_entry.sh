# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# Sourced by the scripts that start Dezimo by its menu entry: a display, the words that a desktop
# makes of the entry, and the way out by the keyboard. They bring the function fail.
# shellcheck shell=bash

# shellcheck source=tools/x_windows.sh
. tools/x_windows.sh

# start_display LOG: an X server of its own, with DISPLAY set to it and its process in $server.
start_display() {
    local number
    coproc display { exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp -ac 2>"$1"; }
    # shellcheck disable=SC2154,SC2034
    server=$display_PID
    # shellcheck disable=SC2154
    read -r -t 60 number <&"${display[0]}" || fail "no X server"
    export DISPLAY=:$number
}

# exec_words ROOT [FILE...]: the words of the menu entry's Exec line, one in a line, with %f replaced
# by what is given (a desktop gives one file at most) or left out.
exec_words() {
    local entry words word
    entry=$(compgen -G "$1/usr/share/applications/*.dezimo.desktop")
    read -r -a words <<<"$(sed --quiet 's/^Exec=//p' "$entry")"
    for word in "${words[@]}"; do
        if [[ $word != %f ]]; then
            echo "$word"
        elif [[ $# -gt 1 ]]; then
            printf '%s\n' "${@:2}"
        fi
    done
}

# quit_by_keyboard PROCESS: waits for the window of the started program, tells of it, and leaves by
# the keys of the menu's Quit.
quit_by_keyboard() {
    local window
    window=$(window_named 60 '^Dezimo \[') ||
        { kill "$1" || true; fail "no window appeared"; }
    xwininfo -id "$window" | grep --extended-regexp 'Window id|Width|Height|Map State'
    xdotool windowfocus --sync "$window" key ctrl+q
    wait "$1" || fail "the program ended with status $?"
}

# stored_p1 HOME: the first power of the dB converter in the state that the program left.
stored_p1() {
    sed --quiet '/^\[DbConverterProfile\]/,/^\[/s/^p1=//p' "$1/.config/Vantrel/Dezimo.conf"
}
