#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# install_test.sh: installs the Debian package into a fresh root of the same Debian release, starts
# Dezimo from there by the Exec line of its menu entry, without and with a file, closes it, removes
# the package and looks for what was left behind. Where it cannot make a fresh root, it says why and
# ends with status 77. With DEZIMO_QT=6 it does that with the package that is built with Qt 6.
#
# The root with the package's dependencies is kept under build/install-test, so that only the first
# run fetches anything.
set -euo pipefail
cd "$(dirname "$0")/../.."

# shellcheck source=tests/packaging/menu_entry.sh
. tests/packaging/menu_entry.sh
# shellcheck source=tests/packaging/made_package.sh
. tests/packaging/made_package.sh
# shellcheck source=tools/fresh_root.sh
. tools/fresh_root.sh

cache=build/install-test
[[ $qt == 5 ]] || cache+=-qt$qt
person=1000 # the user that starts the program
file="Zwei Geräte, 10 µW.dezimo"

fail() { echo "$*" >&2; exit 1; }
skip() { echo "Install test skipped: $*"; exit 77; }

in_root() {
    chroot "$root" env --ignore-environment PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}

apt_in_root() {
    in_root apt-get --quiet --quiet --yes -o Dpkg::Use-Pty=0 -o APT::Install-Recommends=false "$@" \
        >>"$cache/apt.log" 2>&1 || { tail --lines=20 "$cache/apt.log"; fail "apt-get $1 failed"; }
}

# Makes a fresh root with what the package depends on and with a person's account.
make_root() {
    [[ -n $sources ]] || skip "apt knows no archive of Debian"
    echo "Making a fresh root of Debian $release"
    make_fresh_root "$release" "$sources" "$root" >"$cache/debootstrap.log" 2>&1 || {
        ! grep --quiet 'noexec or nodev' "$cache/debootstrap.log" || skip "no devices can be made here"
        tail --lines=5 "$cache/debootstrap.log"
        fail "debootstrap failed"
    }
    apt_in_root update
    apt_in_root satisfy "$depends"
    apt_in_root clean
    in_root useradd --create-home --uid "$person" person
}

# Makes the same root as make_root, but takes it from the last run if its parts have not changed.
fresh_root() {
    local key kept
    key=$(sha256sum <<<"$release $sources $depends" | cut --characters=1-16)
    kept=$cache/root-$key.tar
    if [[ -e $kept ]]; then
        tar --extract --file "$kept" --directory "$root"
        return
    fi
    make_root
    rm -f "$cache"/root-*.tar
    tar --create --file "$kept.part" --directory "$root" .
    mv "$kept.part" "$kept"
}

# Lists every path in the root with its contents, except apt's own records and the person's state.
snapshot() {
    (
        cd "$root"
        find . \( -path ./var/lib/dpkg -o -path ./var/lib/apt -o -path ./var/cache/apt \
            -o -path ./var/log -o -path ./home/person \) -prune \
            -o -type f -exec sha256sum {} + -o -printf '%y %p %l\n' | sort
    )
}

# start_and_quit [FILE]: starts the program as the person's desktop would, and quits it.
start_and_quit() {
    local words
    mapfile -t words < <(exec_words "$root" "$@")
    echo "Starting: ${words[*]}"
    chroot --userspec="$person:$person" "$root" env --ignore-environment --chdir=/home/person \
        PATH=/usr/local/bin:/usr/bin:/bin HOME=/home/person XDG_RUNTIME_DIR=/home/person/.runtime \
        LC_ALL=C.UTF-8 DISPLAY="$DISPLAY" "${words[@]}" &
    quit_by_keyboard $!
}

stored() { stored_p1 "$root/home/person"; }

clean_up() {
    [[ -z ${server:-} ]] || kill "$server" 2>/dev/null || true
    rm -rf --one-file-system "$root"
}

command -v apt-get >/dev/null || skip "this is not Debian"
[[ $EUID -eq 0 ]] || skip "debootstrap needs root"
chroot / true 2>/dev/null || skip "chroot is not permitted here"
tools/packages.sh test package install-test
./package.sh "${package_options[@]}" | tail --lines=1
package=$(compgen -G "$build_folder/*.deb")
depends=$(dpkg-deb --field "$package" Depends)
# shellcheck source=/dev/null
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
sources=$(machine_sources)

mkdir -p "$cache"
: >"$cache/apt.log"
root=$(mktemp --directory "$PWD/$cache/root.XXXXXX")
trap clean_up EXIT
chmod 755 "$root"
fresh_root
install --directory --mode=700 --owner="$person" --group="$person" "$root/home/person/.runtime"
printf '[DbConverterProfile]\np1=5W\n' >"$root/home/person/$file"
snapshot >"$cache/before"

start_display "$cache/xvfb.log"
cp "$package" "$root/var/cache/apt/"
apt_in_root install "/var/cache/apt/${package##*/}"
grep --quiet 'application/x-dezimo' "$root/usr/share/mime/globs2" || fail "*.dezimo is unknown"
start_and_quit
[[ -z $(stored) ]] || fail "a first start shows a value: $(stored)"
start_and_quit "/home/person/$file"
[[ $(stored) == 5W ]] || fail "the file was not opened: $(stored)"

apt_in_root remove dezimo
snapshot | diff "$cache/before" - || fail "the package left something behind"
[[ $(stored) == 5W ]] || fail "the person's state is gone"
echo "Installed, started, removed; only the person's state is left."
