#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/pictures.sh: takes the pictures of the guide and the README anew, one of each module, as the
# guided tour shows it. To be run and looked at whenever the look has changed.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/packages.sh build pictures
cmake --preset release >/dev/null # warnings and errors still show
cmake --build --preset release --target dezimo-tour
rm -f docs/pictures/*.png
tools/play_tour.sh docs/pictures
# The window has few colors; a palette of them makes a picture a third as large.
pngquant --force --strip --speed=1 --nofs --ext=.png docs/pictures/*.png
