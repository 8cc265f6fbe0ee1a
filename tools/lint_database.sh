#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/lint_database.sh: writes build/lint/compile_commands.json, by which clang-tidy and clazy read
# what build/asan has compiled. GCC's precompiled headers are left out: clang cannot read them, and
# without them the linters see whether each source includes what it uses.
set -euo pipefail
cd "$(dirname "$0")/.."

# The linters read headers that the build makes.
if [[ ! -e build/asan/compile_commands.json ]]; then
    cmake --preset asan -DDEZIMO_BENCHMARKS=ON
    cmake --build --preset asan
fi >&2
mkdir -p build/lint
sed --regexp-extended 's/ -Winvalid-pch -include (\\"[^"]*"|[^ ]+)//; s/ -fpch-preprocess//' \
    build/asan/compile_commands.json >build/lint/compile_commands.json
