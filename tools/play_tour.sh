#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/play_tour.sh BUILD FOLDER: plays the guided tour of a build, without a display, and leaves its
# pictures in the folder.
set -euo pipefail

[[ $# -eq 2 ]] || { echo "usage: tools/play_tour.sh BUILD FOLDER" >&2; exit 2; }

# The tour gets a home of its own, so that it neither shows nor changes the user's settings.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir -m 0700 "$home/runtime"
mkdir -p "$2"
env --unset=XDG_CONFIG_DIRS HOME="$home" XDG_CONFIG_HOME="$home/config" \
    XDG_CACHE_HOME="$home/cache" XDG_DATA_HOME="$home/data" XDG_RUNTIME_DIR="$home/runtime" \
    QT_QPA_PLATFORM=offscreen "$1/bin/dezimo-tour" "$2"
