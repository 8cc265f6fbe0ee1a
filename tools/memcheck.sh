#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/memcheck.sh: runs the tests of the models under valgrind, which sees what the sanitizers
# cannot: memory that is read before it is written, also inside Qt. Takes about ten minutes. Fails if
# a test fails, or if valgrind finds an error or memory that nothing refers to any more.
set -euo pipefail
cd "$(dirname "$0")/.."

tests=(tests/values/tst_*.cpp tests/store/tst_*.cpp tests/profiles/tst_*.cpp)
tests=("${tests[@]##*/}")
tests=("${tests[@]%.cpp}")

tools/packages.sh build test memcheck
cmake --preset dev >/dev/null # warnings and errors still show
cmake --build --preset dev --target "${tests[@]}"

# Qt's regular expressions compile themselves into code that valgrind cannot follow.
export QT_ENABLE_REGEXP_JIT=0
# By default Qt Test ends a function after five minutes.
export QTEST_FUNCTION_TIMEOUT=3600000 # ms

memcheck() {
    local log=build/dev/memcheck-$1.log
    if valgrind --quiet --error-exitcode=1 --leak-check=full --errors-for-leak-kinds=definite \
        "build/dev/tests/$1" >"$log" 2>&1; then
        echo "$1: no errors"
    else
        cat "$log"
        return 1
    fi
}
export -f memcheck

printf '%s\n' "${tests[@]}" | xargs --max-procs="$(nproc)" --replace bash -c 'memcheck {}'
