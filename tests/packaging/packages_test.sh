#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# packages_test.sh: tests which packages tools/packages.sh believes to be installed. The list of
# packages is made up, and apt only notes that it was called.
set -euo pipefail

scratch=$(mktemp --directory)
trap 'rm -rf "$scratch"' EXIT

fail() { echo "$*" >&2; exit 1; }

# command_in_place_of NAME: replaces the command by the script on standard input.
command_in_place_of() {
    { echo '#!/bin/sh'; cat; } >"$scratch/$1"
    chmod +x "$scratch/$1"
}
command_in_place_of dpkg-query <<<"cat '$scratch/packages'"
command_in_place_of apt-get <<<"echo called >>'$scratch/apt'"
command_in_place_of apt-cache <<<"grep --line-regexp --quiet \"\$2\" '$scratch/known'"
command_in_place_of sudo <<<'exec "$@"'

# says_of GROUP CASE WORDS: checks what is said for the group. Standard input lists the packages with
# state, name and provided names.
says_of() {
    local group=$1
    shift
    local said called=
    cat >"$scratch/packages"
    rm -f "$scratch/apt"
    said=$(PATH="$scratch:$PATH" tools/packages.sh "$group")
    [[ $said == "$2" ]] || fail "$1: expected \"$2\", found \"$said\""
    [[ ! -e $scratch/apt ]] || called=yes
    [[ ${2:+yes} == "$called" ]] || fail "$1: apt was called: ${called:-no}"
}

# The same for the group that needs only valgrind.
says() { says_of memcheck "$@"; }

says "nothing is there" "Installing: valgrind" </dev/null
says "the package is there" "" <<<"installed valgrind "
says "another one provides it" "" <<<"installed valgrind-t64 valgrind"
says "another one provides it among others, of a version" "" \
    <<<"installed checkers memcheck, valgrind (= 1:3.24), helgrind (= 1)"
says "one of a longer name is there" "Installing: valgrind" <<<"installed valgrind-dbg valgrind-mpi"
says "only its configuration is left" "Installing: valgrind" <<<"config-files valgrind valgrind"

# This group has a package with an older name.
touch "$scratch/known"
says_of run-qt6 "an old release" "Installing: libqt6svg6 qt6-wayland" </dev/null
says_of run-qt6 "an old release with all of them" "" \
    <<<$'installed libqt6svg6 libqt6svg6\ninstalled qt6-wayland '
echo qt6-svg-plugins >"$scratch/known"
says_of run-qt6 "a new release" "Installing: qt6-svg-plugins" \
    <<<$'installed libqt6svg6 libqt6svg6\ninstalled qt6-wayland '
