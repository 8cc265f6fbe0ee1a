#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/windows_sdk.sh [--where]: prints the folder of Qt for Windows. The first run builds it, which
# takes half an hour, and keeps it in the user's cache, named after the checksum of its recipe. With
# --where it builds nothing, and its status is 1 if the folder is not there yet.
set -euo pipefail
cd "$(dirname "$0")/.."

recipe=packaging/windows/qt_recipe.sh
key=$(sha256sum "$recipe" | cut --characters=1-16)
cache=${XDG_CACHE_HOME:-$HOME/.cache}/dezimo
sdk=$cache/windows-sdk-$key

case "$*" in
    "") ;;
    --where) [[ -d $sdk ]] || exit 1; echo "$sdk/qt"; exit ;;
    *) echo "usage: tools/windows_sdk.sh [--where]" >&2; exit 2 ;;
esac

make_sdk() {
    local scratch log=$cache/windows-sdk-$key.log
    scratch=$(mktemp --directory "$cache/making.XXXXXX")
    # shellcheck disable=SC2064
    trap "rm -rf '$scratch'" EXIT
    mkdir "$scratch/sdk" "$scratch/work"
    echo "Building Qt for Windows. This takes half an hour, but only once. The log: $log" >&2
    "$recipe" "$scratch/sdk" "$scratch/work" >"$log" 2>&1 || {
        tail --lines=20 "$log" >&2
        exit 1
    }
    # The SDK gets its name only when it is complete.
    mv "$scratch/sdk" "$sdk"
}

tools/packages.sh windows >&2
mkdir -p "$cache"
# If two runs start at once, the second one waits for what the first one builds.
exec {lock}>"$cache/windows-sdk.lock"
flock "$lock"
[[ -d $sdk ]] || make_sdk
echo "$sdk/qt"
