# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# To be sourced. start_wine gives the shell a display with a window manager and a Windows of its own;
# end_wine ends all of it. Shells that run at the same time get one Windows each. These are kept under
# build/windows/wine, because making one takes longer than most tests.

# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/x_windows.sh"

wine_prefixes=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")/build/windows/wine

# Debian's packages do not put these commands on PATH.
wine() { /usr/lib/wine/wine64 "$@"; }
wineserver() { /usr/lib/wine/wineserver "$@"; }

export WINEDEBUG=-all
# Without these libraries Wine neither offers to fetch what no test needs nor adds entries to the menu
# of this machine's desktop.
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
# So that file names are UTF-8 on both sides.
export LC_ALL=C.UTF-8

# Takes the first of the kept installations that no other shell uses.
take_wine_prefix() {
    local number=1
    mkdir -p "$wine_prefixes"
    exec {wine_lock}>"$wine_prefixes/1.lock"
    until flock --nonblock "$wine_lock"; do
        number=$((number + 1))
        exec {wine_lock}>&-
        exec {wine_lock}>"$wine_prefixes/$number.lock"
    done
    export WINEPREFIX=$wine_prefixes/$number
    # Otherwise the folders of Wine's user would point into the home of the person who runs this.
    export HOME=$WINEPREFIX.home
    mkdir -p "$HOME"
}

# Each test has an X server of its own, so that no other window covers the test's or takes its keyboard.
# The screen is larger than the largest window of a test.
start_display() {
    coproc display { exec Xvfb -displayfd 1 -screen 0 2560x1600x24 -noreset -nolisten tcp -ac 2>/dev/null; }
    # shellcheck disable=SC2154
    x_server=$display_PID
    local number
    # shellcheck disable=SC2154
    read -r -t 60 number <&"${display[0]}" || { echo "no X server" >&2; return 1; }
    export DISPLAY=:$number
    start_window_manager
}

folder_of() { dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name="$1")"; }

# find_libraries SDK: lets Windows find the libraries that the packages have beside the program.
find_libraries() {
    WINEPATH="Z:$1/bin;Z:$(folder_of libstdc++-6.dll);Z:$(folder_of libwinpthread-1.dll)"
    export WINEPATH
}

# Wine does not have Windows' own fonts and would take a serif instead. And a program that crashes must
# end instead of waiting in a debugger for a person.
adapt_wine() {
    local reg=$WINEPREFIX/adapt.reg name version='Software\Microsoft\Windows NT\CurrentVersion'
    {
        printf 'REGEDIT4\n\n[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]\n'
        for name in "MS Shell Dlg" "MS Shell Dlg 2" Tahoma "Segoe UI"; do
            printf '"%s"="DejaVu Sans"\n' "$name"
        done
        printf '\n[HKEY_LOCAL_MACHINE\\%s\\FontSubstitutes]\n' "$version"
        printf '"MS Shell Dlg"="DejaVu Sans"\n"MS Shell Dlg 2"="DejaVu Sans"\n'
        printf '\n[HKEY_LOCAL_MACHINE\\%s\\AeDebug]\n"Debugger"="false"\n' "$version"
    } >"$reg"
    wine regedit /S "Z:$reg"
}

start_wine() {
    take_wine_prefix
    start_display
    # With a Wine server that was started without the display, windows would be black.
    wineserver --kill 2>/dev/null || true
    [[ ! -e $WINEPREFIX/made ]] || return 0
    rm -rf "$WINEPREFIX"
    wine wineboot --init >/dev/null 2>&1
    adapt_wine
    wineserver --wait
    touch "$WINEPREFIX/made"
}

end_wine() {
    wineserver --kill 2>/dev/null || true
    local process
    for process in ${window_manager:-} ${x_server:-}; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
}
