#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# bench/compare.sh BASE [NEW]: builds two commits as the program is shipped (NEW is HEAD by default) and
# prints the cost of NEW as a multiple of BASE's: for the program on the desktop, and for every row of
# the engine's benchmark that both have. Below 1 means that NEW is faster or smaller.
set -euo pipefail
cd "$(dirname "$0")/.."

[[ $# -ge 1 && $# -le 2 ]] || { echo "usage: bench/compare.sh BASE [NEW]" >&2; exit 2; }
declare -A commits=([base]=$1 [new]=${2:-HEAD})
rounds=3

folder=$(mktemp -d)
remove_trees() {
    for side in base new; do
        git worktree remove --force "$folder/$side" 2>/dev/null || true
    done
    rm -rf "$folder"
}
trap remove_trees EXIT

binaries() { echo "$folder/$1/build/bench/bin"; }

# build SIDE: builds the program and, if the commit has it, the engine's benchmark.
build() {
    local targets=(dezimo)
    git worktree add --quiet --detach "$folder/$1" "${commits[$1]}"
    [[ ! -d $folder/$1/bench/engine ]] || targets+=(engine_benchmark)
    (
        cd "$folder/$1"
        cmake --preset bench
        cmake --build --preset bench --target "${targets[@]}"
    )
}

# shortest FILE: prints the shortest time of each row in all rounds, as lines "name time".
shortest() {
    awk -F, '/^"/ && !/_(BigO|RMS)"/ {
        gsub(/"/, "", $1)
        if (!($1 in time)) names[++count] = $1
        if (!($1 in time) || $4 < time[$1]) time[$1] = $4
    }
    END { for (i = 1; i <= count; ++i) print names[i], time[names[i]] }' "$1"
}

{
    tools/packages.sh build run bench
    cmake --preset bench
    cmake --build --preset bench --target desktop_benchmark
    build base
    build new
} >&2

xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" \
    build/bench/bin/desktop_benchmark --compare "$(binaries base)/dezimo" "$(binaries new)/dezimo"

if [[ ! -x $(binaries base)/engine_benchmark || ! -x $(binaries new)/engine_benchmark ]]; then
    echo "At least one of the commits has no benchmark of the engine." >&2
    exit
fi
for ((round = 0; round < rounds; ++round)); do
    for side in base new; do
        # A row with a counter of its own does not fit into the table.
        "$(binaries $side)/engine_benchmark" --benchmark_min_time=0.05 --benchmark_format=csv \
            --benchmark_filter=-BesideParser 2>/dev/null >>"$folder/$side.csv"
    done
done
printf '\n| engine | new / base |\n|---|---:|\n'
awk 'NR == FNR { base[$1] = $2; next } $1 in base { printf "| %s | %.2f |\n", $1, $2 / base[$1] }' \
    <(shortest "$folder/base.csv") <(shortest "$folder/new.csv")
