#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/pictures.sh: takes the pictures of the guide and the README again, one of each module, as the
# guided tour shows it. Run it whenever the look has changed, and look at what it took.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/packages.sh build pictures
cmake --preset release >/dev/null # warnings and errors still show
cmake --build --preset release --target dezimo-tour
rm -f docs/pictures/*.png
tools/play_tour.sh build/release docs/pictures
# The window has few colors, so a picture with a palette is a third as large.
pngquant --force --strip --speed=1 --nofs --ext=.png docs/pictures/*.png
