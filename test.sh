#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# Installs what is missing, builds the tests and runs them; the usage below says which. Ends with
# CTest's summary and status. tools/test_times.py tells what took how long.
set -euo pipefail
cd "$(dirname "$0")"

usage="usage: ./test.sh [--quick] [--qt6] [--windows]

Builds with warnings as errors and sanitizers, and runs every test.

  --quick    leaves out the tests that take long
  --qt6      builds with Qt 6, without sanitizers
  --windows  builds the tests for Windows, without sanitizers, and runs them by Wine
  --help     says this"

choice=()
qt6=
windows=
for argument in "$@"; do
    case $argument in
        --quick) choice=(--label-exclude '^slow$') ;;
        --qt6) qt6=-qt6 ;;
        --windows) windows=yes ;;
        --help) echo "$usage"; exit ;;
        *) echo "$usage" >&2; exit 2 ;;
    esac
done

# build PRESET [TARGET]
build() {
    cmake --preset "$1" --no-warn-unused-cli >/dev/null # warnings and errors still show
    cmake --build --preset "$1" ${2:+--target "$2"}
}

if [[ -n $windows ]]; then
    tools/packages.sh build windows windows-test
    tools/windows_sdk.sh >/dev/null
    build windows
    exec ctest --preset windows --parallel 2 "${choice[@]}"
fi

# Without dpkg, CTest leaves out the tests of the Debian package.
groups=("build$qt6" "run$qt6" "test$qt6")
! command -v dpkg-deb >/dev/null || groups+=(package package-test)
tools/packages.sh "${groups[@]}"

# Many tests wait longer than they calculate, for animations or for another program's window, so that
# one more than there are processors keeps these busy.
jobs=$(($(nproc) + 1))
if [[ -n $qt6 ]]; then
    build dev-qt6
    exec ctest --preset dev-qt6 --parallel "$jobs" "${choice[@]}"
fi

# The sanitizers' shadow memory is at fixed addresses. Kernels that spread mappings over more than 28
# bits sometimes put the program there, so it is loaded at fixed addresses where that is allowed.
loaded=()
if setarch --addr-no-randomize true 2>/dev/null; then
    loaded=(setarch --addr-no-randomize)
fi
export ASAN_OPTIONS=detect_leaks=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
export TSAN_OPTIONS=suppressions=$PWD/tests/tsan.supp
export UBSAN_OPTIONS=print_stacktrace=1

# This tests the one object that several threads may create at once. ThreadSanitizer needs a build of
# its own.
threads=tst_mainprofile_threads
build tsan "$threads"
"${loaded[@]}" ctest --preset tsan --tests-regex "^$threads\$"

build asan
"${loaded[@]}" ctest --preset asan --parallel "$jobs" "${choice[@]}"
