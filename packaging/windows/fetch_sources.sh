#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# fetch_sources.sh FOLDER PACKAGE...: downloads Debian's source packages into FOLDER, from where apt
# has this machine's own packages. Its entries, of either form, are turned from binaries into
# sources in a configuration of our own, so that no place is named here and /etc/apt stays as it is.
set -euo pipefail

mkdir -p "$1"
cd "$1"
shift
list='' parts=''
eval "$(apt-config shell list Dir::Etc::sourcelist/f parts Dir::Etc::sourceparts/d)"

private=$(mktemp --directory)
trap 'rm -rf "$private"' EXIT
mkdir -p "$private/parts" "$private/lists/partial" "$private/cache/archives/partial"

# Not every machine has both forms.
sed --quiet 's/^[[:blank:]]*deb[[:blank:]]/deb-src /p' "$list" "$parts"*.list \
    >"$private/parts/lines.list" 2>/dev/null || true
for file in "$parts"*.sources; do
    [[ ! -f $file ]] || sed 's/^Types:.*/Types: deb-src/I' "$file" >"$private/parts/${file##*/}"
done

options=(-o "Dir::Etc::sourcelist=/dev/null" -o "Dir::Etc::sourceparts=$private/parts"
    -o "Dir::State::lists=$private/lists" -o "Dir::Cache=$private/cache"
    -o APT::Sandbox::User=root --quiet --quiet)
# An entry of a third party may have no sources; what counts is whether ours are found.
apt-get "${options[@]}" update || true
apt-get "${options[@]}" --download-only source "$@"
