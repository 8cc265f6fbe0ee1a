#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/packages.sh GROUP...: installs the Debian packages of the named groups that are missing, and
# says which. Nothing else in this project installs packages. Where it cannot install (no apt, or
# neither root nor sudo), it names them and succeeds if the commands that they bring are there.
set -euo pipefail

build_tools="g++ cmake ninja-build python3 python3-fonttools python3-markdown fonts-roboto-unhinted
    fonts-dejavu-core librsvg2-bin"
test_tools="xvfb xauth x11-utils xdotool openbox dbus at-spi2-core python3-pyatspi"

# Debian's packages, and the commands that show that a system without apt has the same. new|old is a
# package that newer releases have, and the one in which older releases have its files. A build with
# Qt 6 needs nothing of Qt 5.
declare -A packages=(
    [build]="$build_tools qtbase5-dev libqt5svg5-dev"
    [build-qt6]="$build_tools qt6-base-dev qt6-base-dev-tools qt6-svg-dev"
    [run]="libqt5svg5 qtwayland5"
    [run-qt6]="qt6-svg-plugins|libqt6svg6 qt6-wayland"
    [test]="$test_tools libqt5test5 qtbase5-private-dev"
    [test-qt6]="$test_tools qt6-base-private-dev"
    [package]="dpkg-dev file"
    [package-test]="lintian desktop-file-utils appstream libxml2-utils shared-mime-info man-db"
    [install-test]="debootstrap"
    [lint]="git clang-format clang-tidy clazy shellcheck"
    [bench]="libbenchmark-dev libmuparser-dev pkg-config libxcb1-dev libxcb-damage0-dev
        libxcb-xtest0-dev xvfb xauth"
    [peers]="speedcrunch kcalc galculator qalculate-gtk"
    [windows-check]="g++-mingw-w64-x86-64-posix"
    [pictures]="pngquant"
    [fuzz]="clang libclang-rt-dev"
    [endurance]="locales-all openbox weston strace util-linux"
    [coverage]="gcovr"
    [memcheck]="valgrind"
    [windows]="g++-mingw-w64-x86-64-posix dpkg-dev make perl nsis icoutils imagemagick zip"
    [windows-test]="wine wine64 xvfb xauth openbox x11-utils xdotool imagemagick unzip
        libxml2-utils"
)
declare -A commands=(
    [build]="c++ cmake ninja python3 rsvg-convert"
    [build-qt6]="c++ cmake ninja python3 rsvg-convert"
    [run]=""
    [run-qt6]=""
    [test]="ctest"
    [test-qt6]="ctest"
    [package]="dpkg-deb dpkg-shlibdeps file"
    [package-test]="lintian desktop-file-validate appstreamcli xmllint update-mime-database man"
    [install-test]="debootstrap"
    [lint]="git clang-format clang-tidy clazy-standalone shellcheck"
    [bench]="pkg-config xvfb-run"
    [peers]=""
    [windows-check]="x86_64-w64-mingw32-g++-posix"
    [pictures]="pngquant"
    [fuzz]="clang++"
    [endurance]="openbox weston strace setpriv"
    [coverage]="gcovr"
    [memcheck]="valgrind"
    [windows]="x86_64-w64-mingw32-g++-posix make perl makensis icotool convert zip"
    [windows-test]="Xvfb openbox xprop xdotool import unzip xmllint"
)

# Prints the given packages, and of several names for one the first that apt knows, or the last.
chosen() {
    local choice name
    for choice in "$@"; do
        for name in ${choice//|/ }; do
            [[ $name != "$choice" ]] || break
            ! apt-cache show "$name" >/dev/null 2>&1 || break
        done
        echo "$name"
    done
}

# The names that the installed packages offer, one per line: their own and those that they provide. A
# package that has a new name in a later release provides the old one.
offered() {
    dpkg-query --show --showformat='${db:Status-Status} ${Package} ${Provides}\n' |
        sed --quiet 's/^installed //; T; s/([^)]*)//g; s/[ ,]\+/\n/g; p'
}

# Prints which of the wanted packages are missing under any name.
missing() {
    chosen "${wanted[@]}" | grep --invert-match --line-regexp --fixed-strings --file=<(offered) || true
}

apt_get() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get --quiet --quiet -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 "$@"
}

# A fresh machine has no package lists, and an old one has outdated lists. In both cases the first
# attempt fails, and only then are the lists fetched, which may know other names.
apt_install() {
    local install=(install --yes --no-install-recommends) names
    mapfile -t names < <(missing)
    echo "Installing: ${names[*]}"
    apt_get "${install[@]}" "${names[@]}" >/dev/null 2>&1 && return
    apt_get update
    mapfile -t names < <(missing)
    apt_get "${install[@]}" "${names[@]}" >/dev/null
}

require_commands() {
    local absent=()
    for command in "$@"; do
        command -v "$command" >/dev/null || absent+=("$command")
    done
    [[ ${#absent[@]} -eq 0 ]] || { echo "Not found: ${absent[*]}" >&2; exit 1; }
}

wanted=()
wanted_commands=()
for group in "$@"; do
    [[ -v packages[$group] ]] || { echo "No such group of packages: $group" >&2; exit 2; }
    read -r -d '' -a names <<<"${packages[$group]}" || true
    wanted+=("${names[@]}")
    read -r -a names <<<"${commands[$group]}"
    wanted_commands+=("${names[@]}")
done

as_root=()
[[ $EUID -eq 0 ]] || as_root=(sudo)

if ! command -v apt-get >/dev/null; then
    echo "No apt here. These packages are needed, by their Debian names: ${wanted[*]}"
    require_commands "${wanted_commands[@]}"
    exit
fi

[[ -n $(missing) ]] || exit 0

if [[ $EUID -ne 0 ]] && ! command -v sudo >/dev/null; then
    echo "Cannot install without root or sudo: $(missing | paste --serial --delimiters=' ')"
    require_commands "${wanted_commands[@]}"
    exit
fi

apt_install
