#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/coverage.sh: shows which lines of the program the tests do not run. Fails if there is one in
# values/, store/ or profiles/, or if it is more than one line in twenty of the whole program.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/packages.sh build run test coverage
cmake --preset coverage >/dev/null # warnings and errors still show
find build/coverage -name '*.gcda' -delete
cmake --build --preset coverage
# The package is built without counters.
ctest --preset coverage --parallel "$(nproc)" --exclude-regex '^packaging_'

# report FOLDERS LEAST: a table of the files, and status 2 if less than LEAST % of the lines ran.
report() {
    gcovr --root . --object-directory build/coverage --filter "($1)/" \
        --exclude-unreachable-branches --fail-under-line "$2" build/coverage
}
report 'values|store|profiles' 100
report 'app|profiles|resources|store|sysinfo|values|views|widgets' 95
