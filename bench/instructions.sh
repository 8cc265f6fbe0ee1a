#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# bench/instructions.sh [--qt6] [PROGRAM...]: counts the instructions of a start outside of the kernel:
# until the window has settled, and until the program has ended after it was asked to. Such a number
# repeats to a tenth of a percent, however busy the machine is. Without programs this builds Dezimo as
# it is shipped, and counts it and the floor. What callgrind_annotate reads is left in build/instructions.
set -euo pipefail
cd "$(dirname "$0")/.."

qt=
[[ ${1:-} != --qt6 ]] || { qt=-qt6; shift; }
programs=("$@")
if [[ ${#programs[@]} -eq 0 ]]; then
    {
        tools/packages.sh "build$qt" "run$qt" bench memcheck test
        cmake --preset "bench$qt"
        cmake --build --preset "bench$qt"
    } >&2
    programs=("build/bench$qt/bin/desktop_floor" "build/bench$qt/bin/dezimo")
fi

# No program uses the files of the person who runs this.
home=$(mktemp --directory)
trap 'rm -rf "$home"' EXIT
unset XDG_CONFIG_HOME XDG_CACHE_HOME XDG_DATA_HOME XDG_STATE_HOME WAYLAND_DISPLAY \
    DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS

# count PROGRAM PROFILE: needs a display. The window has settled long before the seconds are over. Some
# programs end with the status of the signal.
count() {
    valgrind --quiet --tool=callgrind --callgrind-out-file="$2" "$1" &
    xdotool search --sync --onlyvisible --pid $! >/dev/null 2>&1
    sleep 8
    callgrind_control --dump $! >/dev/null 2>&1
    kill -TERM $!
    wait $! || true
}

# instructions PROFILE: the number that is in it.
instructions() {
    awk '/^(totals|summary):/ { print $2; exit }' "$1"
}

mkdir -p build/instructions
echo "| program | until settled, millions | until ended, millions |"
echo "|---|---:|---:|"
for program in "${programs[@]}"; do
    name=$(basename "$program")
    profile=build/instructions/$name
    # A first start leaves in the home what the program caches.
    for _ in first counted; do
        HOME=$home XDG_RUNTIME_DIR=$home QT_QPA_PLATFORM=xcb \
            xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" \
            setarch --addr-no-randomize bash -c "$(declare -f count); count '$program' '$profile'"
    done
    settled=$(instructions "$profile.1")
    end=$(instructions "$profile")
    awk -v name="$name" -v settled="$settled" -v end="$end" \
        'BEGIN { printf "| %s | %.1f | %.1f |\n", name, settled / 1e6, (settled + end) / 1e6 }'
done
