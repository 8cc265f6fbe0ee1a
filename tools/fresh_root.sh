# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# To be sourced by scripts that need a fresh root of a Debian release.
# shellcheck shell=bash

# The archives of Debian that this machine installs from, as lines of a sources.list.
machine_sources() {
    # shellcheck disable=SC2016
    local wanted=(--format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)'
        'Created-By: Packages' 'Origin: Debian') found
    found=$(apt-get indextargets "${wanted[@]}")
    # A machine that has never installed anything has no lists yet.
    [[ -n $found ]] || { apt-get --quiet --quiet update; found=$(apt-get indextargets "${wanted[@]}"); }
    echo "$found"
}

# make_fresh_root RELEASE SOURCES ROOT [DEBOOTSTRAP OPTIONS]: a base system in the folder ROOT, which
# fetches packages from SOURCES, the way this machine does.
make_fresh_root() {
    local release=$1 sources=$2 root=$3 mirror
    mirror=$(awk '/^deb / { print $2; exit }' <<<"$sources")
    debootstrap --variant=minbase "${@:4}" "$release" "$root" "$mirror" || return
    echo "$sources" >"$root/etc/apt/sources.list"
    apt-config dump --format '%f "%v";%n' Acquire::http Acquire::https Acquire::Check-Valid-Until \
        Acquire::Check-Date >"$root/etc/apt/apt.conf.d/machine"
}
