#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# fetch_sources.sh FOLDER PACKAGE...: downloads Debian's source packages into FOLDER from where this
# machine gets its packages, so that no place is named here. /etc/apt stays as it is: a configuration
# of our own has its entries, of either form, with sources in place of binaries.
set -euo pipefail

mkdir -p "$1"
cd "$1"
shift
list='' parts=''
eval "$(apt-config shell list Dir::Etc::sourcelist/f parts Dir::Etc::sourceparts/d)"

private=$(mktemp --directory)
trap 'rm -rf "$private"' EXIT
mkdir -p "$private/parts" "$private/lists/partial" "$private/cache/archives/partial"

# A machine may have only one of the two forms.
sed --quiet 's/^[[:blank:]]*deb[[:blank:]]/deb-src /p' "$list" "$parts"*.list \
    >"$private/parts/lines.list" 2>/dev/null || true
for file in "$parts"*.sources; do
    [[ ! -f $file ]] || sed 's/^Types:.*/Types: deb-src/I' "$file" >"$private/parts/${file##*/}"
done

options=(-o "Dir::Etc::sourcelist=/dev/null" -o "Dir::Etc::sourceparts=$private/parts"
    -o "Dir::State::lists=$private/lists" -o "Dir::Cache=$private/cache"
    -o APT::Sandbox::User=root --quiet --quiet)
# An entry of a third party may have no sources. The download below fails if ours are missing.
apt-get "${options[@]}" update || true
apt-get "${options[@]}" --download-only source "$@"
