#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/fuzz.sh [--minutes N] [TARGET...]: builds the fuzz targets of tests/fuzz and runs all of them
# or the named ones, two at a time. First it replays every input of the corpus, then it tries random
# ones: a fixed number from a fixed seed, or as many as N minutes allow from a new seed. A run with
# --minutes goes on from what the run before left in build/fuzz/found. A finding ends its target and is
# kept in build/fuzz/findings.
set -euo pipefail
cd "$(dirname "$0")/.."

# About ten seconds for each target on one processor.
declare -A runs=([calculators]=15000 [converters]=15000 [files]=1500 [systemfacts]=80000)

minutes=
if [[ ${1:-} == --minutes ]]; then
    minutes=$2
    shift 2
fi
targets=("$@")
[[ $# -gt 0 ]] || targets=("${!runs[@]}")
for target in "${targets[@]}"; do
    [[ -v runs[$target] ]] || { echo "No such target: $target" >&2; exit 2; }
done

tools/packages.sh build fuzz
cmake --preset fuzz >/dev/null # warnings and errors still show
cmake --build --preset fuzz --target fuzz_targets

export ASAN_OPTIONS=detect_leaks=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1
# The targets write thousands of files; in memory they do not wear out a disk.
[[ ! -w /dev/shm ]] || export TMPDIR=/dev/shm
# The sanitizers' shadow memory is at fixed addresses; test.sh tells more.
loaded=()
if setarch --addr-no-randomize true 2>/dev/null; then
    loaded=(setarch --addr-no-randomize)
fi

# fuzz TARGET
fuzz() {
    local found=build/fuzz/found/$1 log=build/fuzz/$1.log
    # An input of this length takes milliseconds. The limit of three minutes lets a machine be halted
    # for a while.
    local options=(-max_len=2048 -timeout=180 -dict=tests/fuzz/"$1".dict
        -artifact_prefix=build/fuzz/findings/"$1"-)
    if [[ -n $minutes ]]; then
        options+=(-max_total_time=$((minutes * 60)))
    else
        rm --recursive --force "$found" # so that every run starts from the same inputs
        options+=(-runs="${runs[$1]}" -seed=1)
    fi
    mkdir --parents "$found"
    # libFuzzer writes new inputs into the first folder.
    local corpora=("$found" tests/fuzz/corpus/"$1") status=0
    [[ $1 != files ]] || corpora+=(examples)
    "${loaded[@]}" "build/fuzz/tests/fuzz_$1" "${options[@]}" "${corpora[@]}" 2>"$log" || status=$?
    printf '%-12s %s\n' "$1" "$(grep --text '^Done' "$log" || echo FAILED)"
    [[ $status -eq 0 ]] || cat "$log"
    return "$status"
}

mkdir --parents build/fuzz/findings
status=0
for target in "${targets[@]}"; do
    while [[ $(jobs -rp | wc --lines) -ge 2 ]]; do
        wait -n || status=1
    done
    fuzz "$target" &
done
while [[ -n $(jobs -p) ]]; do
    wait -n || status=1
done
exit "$status"
