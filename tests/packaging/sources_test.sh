#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# sources_test.sh: fetches a source package from an archive on this disk, once for each form in
# which apt's configuration may name an archive. The configuration must stay as it was.
set -euo pipefail

scratch=$(mktemp --directory)
trap 'rm -rf "$scratch"' EXIT
archive=$scratch/archive
etc=$scratch/etc
export APT_CONFIG=$scratch/apt.conf

fail() { echo "$*" >&2; exit 1; }

make_archive() {
    local debian=$scratch/kelexample-1.0/debian
    mkdir -p "$debian/source" "$archive"
    echo '3.0 (native)' >"$debian/source/format"
    printf '%s\n' 'kelexample (1.0) unstable; urgency=low' '' '  * First.' '' \
        ' -- Vantrel <nobody@example.org>  Sat, 21 Nov 2026 00:00:00 +0000' >"$debian/changelog"
    printf '%s\n' 'Source: kelexample' 'Maintainer: Vantrel <nobody@example.org>' '' \
        'Package: kelexample' 'Architecture: all' 'Description: example' >"$debian/control"
    (cd "$archive" && dpkg-source --build "$scratch/kelexample-1.0" && dpkg-scansources . >Sources) \
        >"$scratch/log" 2>&1 || { cat "$scratch/log"; fail "no archive"; }
}

# fetches FORM FILE: checks that the package is fetched if only FILE in apt's configuration names
# the archive. Standard input is the contents of FILE.
fetches() {
    rm -rf "$etc" "$scratch/fetched"
    mkdir -p "$etc/sources.list.d"
    cat >"$etc/$2"
    cp --recursive "$etc" "$scratch/before"
    packaging/windows/fetch_sources.sh "$scratch/fetched" kelexample >"$scratch/log" 2>&1 || true
    [[ -s $scratch/fetched/kelexample_1.0.dsc && -s $scratch/fetched/kelexample_1.0.tar.xz ]] || {
        cat "$scratch/log"
        fail "not fetched by $1"
    }
    diff --recursive "$scratch/before" "$etc" || fail "apt's configuration has changed"
    rm -rf "$scratch/before"
}

printf '%s\n' "Dir::Etc \"$etc\";" >"$APT_CONFIG"
make_archive
fetches "a line" sources.list <<<"deb [trusted=yes] file:$archive ./"
fetches "a line with tabs, after others" sources.list.d/example.list <<END
# deb [trusted=yes] file:$scratch/nowhere ./
deb-src [trusted=yes] file:$scratch/nowhere-either ./
  deb	[trusted=yes]	file:$archive ./
END
fetches "a stanza" sources.list.d/example.sources <<END
Types: deb
URIs: file:$archive
Suites: ./
Trusted: yes
END
fetches "a stanza of both types, after one that is off" sources.list.d/example.sources <<END
Enabled: no
Types: deb
URIs: file:$scratch/nowhere
Suites: ./

types: deb deb-src
URIs: file:$archive
Suites: ./
Trusted: yes
END
