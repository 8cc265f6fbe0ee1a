#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/wine.sh PROGRAM [ARGUMENT...]: runs a program of the Windows build under Wine, with a display
# and a Windows of its own, and returns its status.
set -euo pipefail
tools=$(dirname "$0")
# shellcheck source=/dev/null
. "$tools/wine_session.sh"
sdk=$("$tools/windows_sdk.sh" --where)

# The status when the program could not be run, the same as that of env and timeout.
not_started=125

# Wine does not pass on QT_ variables, because they are for this machine's Qt. Those that a test sets are
# for the program, so a batch file sets them again. Qt writes its messages to a debugger unless it is
# told that there is a console.
batch_file() {
    local name word
    printf '@set QT_ASSUME_STDERR_HAS_CONSOLE=1\r\n@set QT_PLUGIN_PATH=Z:%s/plugins\r\n' "$sdk"
    for name in ${!QT_*}; do
        printf '@set %s=%s\r\n' "$name" "${!name}"
    done
    printf '@"Z:%s"' "${1//\//\\}"
    shift
    for word in "$@"; do
        printf ' "%s"' "$word"
    done
    printf '\r\n@if %%errorlevel%%==9009 exit %d\r\n' "$not_started"
}

trap end_wine EXIT
find_libraries "$sdk"
start_wine
batch_file "$@" >"$WINEPREFIX/drive_c/run.bat"
for attempt in first last; do
    status=0
    wine cmd /c 'C:\run.bat' </dev/null || status=$?
    # Now and then Wine does not find a program although it is there. The second attempt finds it.
    [[ $status -eq $not_started && $attempt == first ]] || break
    wineserver --kill || true
done
exit "$status"
