#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/endurance/everywhere.sh: runs a session of the program and then the whole test suite, with Qt 5
# and with Qt 6, in four locales on the offscreen platform, under a window manager of X, and on a
# Wayland compositor. A session must end with status 0 and print nothing. The tests of the package are
# left out, because they set up their own environment. At last it does in fresh roots of Debian 12 and 13
# what the README promises for a bare machine, with each Qt in a root of its own, and makes and installs
# the packages. The log is build/everywhere.log; a table ends the run.
set -euo pipefail
cd "$(dirname "$0")/../.."

presets=(asan asan-qt6)
tools/packages.sh build run test build-qt6 test-qt6 endurance
for preset in "${presets[@]}"; do
    cmake --preset "$preset" >/dev/null # warnings and errors still show
    cmake --build --preset "$preset"
done
export ASAN_OPTIONS=detect_leaks=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1
loaded=()
if setarch --addr-no-randomize true 2>/dev/null; then
    loaded=(setarch --addr-no-randomize)
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -m 0700 "$scratch/runtime"
log=build/everywhere.log
: >"$log"
table=()
failures=0

# row NAME STATUS DETAIL
row() {
    local result=passed
    [[ $2 -eq 0 ]] || result=FAILED failures=$((failures + 1))
    table+=("$1" "$result" "$3")
    printf '%-36s %-7s %s\n' "$1" "$result" "$3"
}

# Leaves out what Qt prints about the limits of the offscreen platform.
own_words() { { grep --invert-match 'This plugin does not support' || true; } <"$1"; }

# session NAME COMMAND...: COMMAND runs what follows it, in the locale and on the display of the row.
session() {
    local name=$1 status=0 said
    shift
    "$@" env HOME="$scratch" XDG_RUNTIME_DIR="$scratch/runtime" XDG_CONFIG_HOME="$scratch/config" \
        "build/$preset/bin/dezimo-session" quit \
        >>"$log" 2>"$scratch/said" || status=$?
    said=$(own_words "$scratch/said")
    [[ -z $said ]] || { status=1; echo "$said" >>"$log"; }
    row "session, $preset, $name" "$status" "${#said} bytes on standard error"
}

# tests NAME COMMAND...
tests() {
    local name=$1 status=0 start=$SECONDS
    shift
    "$@" "${loaded[@]}" ctest --preset "$preset" --exclude-regex '^packaging_' \
        >"$scratch/tests" 2>&1 || status=$?
    cat "$scratch/tests" >>"$log"
    row "tests, $preset, $name" "$status" \
        "$(grep 'tests passed' "$scratch/tests" || echo 'no summary'), $((SECONDS - start)) s"
}

# bare RELEASE WHAT COMMAND...
bare() {
    local name="bare machine, $1, $2" release=$1 status=0 start=$SECONDS
    shift 2
    tools/endurance/in_fresh_root.sh "$release" "$@" >>"$log" 2>&1 || status=$?
    row "$name" "$status" "$(tail --lines=1 "$log"), $((SECONDS - start)) s"
}

# Without a window manager no window gets the focus. It complains when the server goes, so its output
# is dropped.
with_manager='openbox >/dev/null 2>&1 & exec "$@"'
x_server=(env QT_QPA_PLATFORM=xcb xvfb-run --auto-servernum '--server-args=-screen 0 1920x1080x24'
    bash -c "$with_manager" -)
# Qt's Wayland platform never frees what the compositor has told it about itself.
compositor=(env --unset=DISPLAY ASAN_OPTIONS=detect_leaks=0 tools/endurance/in_weston.sh)

for preset in "${presets[@]}"; do
    export CTEST_PARALLEL_LEVEL=2
    for locale in de_DE.UTF-8 ar_EG.UTF-8 tr_TR.UTF-8 C; do
        session "$locale" env LC_ALL="$locale" LANG="$locale" QT_QPA_PLATFORM=offscreen
        tests "$locale" env LC_ALL="$locale" LANG="$locale" QT_QPA_PLATFORM=offscreen
    done

    # If two tests ran at once, their windows would take the keyboard from each other.
    export CTEST_PARALLEL_LEVEL=1
    session xcb "${x_server[@]}"
    tests xcb "${x_server[@]}"
    session wayland "${compositor[@]}"
    tests wayland "${compositor[@]}"
done
[[ $EUID -ne 0 ]] || for release in bookworm trixie; do
    bare "$release" "Qt 5" bash -c './run.sh && ./test.sh && ./package.sh'
    bare "$release" "Qt 6" bash -c './run.sh --qt6 && ./test.sh --qt6 && ./package.sh --qt6'
    bare "$release" packages .ci/run packages reproducibility installation
done

echo
printf '%-36s %-7s %s\n' "${table[@]}"
exit $((failures > 0))
