#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/endurance/in_weston.sh COMMAND...: runs COMMAND on a Wayland compositor and returns its status.
# No window gets the focus without a keyboard, and a headless Weston has none. So Weston runs as a window
# of X, and a window manager gives it the keyboard. Both write to build/weston.log.
set -euo pipefail

if [[ -z ${DISPLAY:-} ]]; then
    exec xvfb-run --auto-servernum '--server-args=-screen 0 1920x1080x24' "$0" "$@"
fi
runtime=$(mktemp -d)
openbox >build/weston.log 2>&1 &
XDG_RUNTIME_DIR=$runtime weston --backend=x11-backend.so --use-pixman --width=1600 --height=900 --socket=dezimo \
    --idle-time=0 >>build/weston.log 2>&1 &
compositor=$!
trap 'kill "$compositor"; wait "$compositor" || true; rm -rf "$runtime"' EXIT
while [[ ! -S $runtime/dezimo ]]; do sleep 0.1; done
QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=$runtime/dezimo "$@"
