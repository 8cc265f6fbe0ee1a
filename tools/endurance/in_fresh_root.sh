#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# tools/endurance/in_fresh_root.sh RELEASE COMMAND...: runs a command in a clone of HEAD, in a root with
# nothing but the base system of a Debian release (bookworm, trixie) and git. So it shows what the
# project's own files do not install. Needs root; the root is removed at the end.
set -euo pipefail
cd "$(dirname "$0")/../.."

[[ $# -ge 2 ]] || { echo "usage: tools/endurance/in_fresh_root.sh RELEASE COMMAND..." >&2; exit 2; }
release=$1
shift
# shellcheck source=tools/fresh_root.sh
. tools/fresh_root.sh

# What is mounted into the root is seen here alone, and goes with this process.
if [[ -z ${DEZIMO_OWN_MOUNTS:-} ]]; then
    tools/packages.sh install-test endurance >&2
    exec unshare --mount --propagation private env DEZIMO_OWN_MOUNTS=yes "$0" "$release" "$@"
fi

mkdir -p build
root=$(mktemp --directory "$PWD/build/root.XXXXXX")
trap 'rm -rf --one-file-system "$root"' EXIT
chmod 755 "$root"
mirror=$(machine_sources | awk '{ print $2; exit }')
make_fresh_root "$release" "deb $mirror $release main" "$root" --include=git >"$root.log" 2>&1 || {
    tail --lines=5 "$root.log" >&2
    exit 1
}
rm "$root.log"
git -c safe.directory="$PWD" clone --quiet --no-hardlinks . "$root/dezimo"
for folder in proc sys dev dev/pts dev/shm; do
    mount --bind "/$folder" "$root/$folder"
done
status=0
chroot "$root" env --ignore-environment --chdir=/dezimo HOME=/root LC_ALL=C.UTF-8 \
    PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin "$@" || status=$?
umount "$root"/{dev/shm,dev/pts,dev,sys,proc}
exit "$status"
