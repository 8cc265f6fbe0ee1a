# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# To be sourced by scripts that start Dezimo by its menu entry. It gives them a display, the words
# that a desktop makes of the entry, and a way to quit by the keyboard. The scripts themselves
# define the function fail.
# shellcheck shell=bash

# shellcheck source=tools/x_windows.sh
. tools/x_windows.sh

# start_display LOG: starts an X server, sets DISPLAY to it and $server to its process.
start_display() {
    local number
    coproc display { exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp -ac 2>"$1"; }
    # shellcheck disable=SC2154,SC2034
    server=$display_PID
    # shellcheck disable=SC2154
    read -r -t 60 number <&"${display[0]}" || fail "no X server"
    export DISPLAY=:$number
}

# exec_words ROOT [FILE...]: prints the words of the menu entry's Exec line, one per line. The files
# take the place of %f, which is left out if there are none. A desktop gives one file at most.
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

# quit_by_keyboard PROCESS: waits for the window of the started program, prints what it is like, and
# quits by the keys of the menu's Quit.
quit_by_keyboard() {
    local window
    window=$(window_named 60 '^Dezimo \[') ||
        { kill "$1" || true; fail "no window appeared"; }
    xwininfo -id "$window" | grep --extended-regexp 'Window id|Width|Height|Map State'
    xdotool windowfocus --sync "$window" key ctrl+q
    wait "$1" || fail "the program ended with status $?"
}

# stored_p1 HOME: prints the first power of the dB converter from the state that the program stored.
stored_p1() {
    sed --quiet '/^\[DbConverterProfile\]/,/^\[/s/^p1=//p' "$1/.config/Vantrel/Dezimo.conf"
}
