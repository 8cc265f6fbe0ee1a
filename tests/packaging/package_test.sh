#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# package_test.sh CHECK: one check of the Debian package, which the check "build" makes. CTest runs
# each from the source folder, with DEZIMO_VERSION and DEZIMO_ID as the project has them, and DEZIMO_QT
# as the tests are built; .ci/run runs "reproducible".
set -euo pipefail

shopt -s nullglob
# shellcheck source=tests/packaging/made_package.sh
. tests/packaging/made_package.sh
packages=("$build_folder"/*.deb)
package=${packages[0]:-}
scratch=$(mktemp --directory)
server=
trap '[[ -z $server ]] || kill "$server"; rm -rf "$scratch"' EXIT
# shellcheck source=tests/packaging/menu_entry.sh
. tests/packaging/menu_entry.sh

fail() { echo "$*" >&2; exit 1; }

# expect WHAT WANTED FOUND
expect() { [[ $2 == "$3" ]] || fail "$1: expected \"$2\", found \"$3\""; }

field() { dpkg-deb --field "$package" "$1"; }

unpack() { dpkg-deb --extract "$package" "$scratch/root"; }

build() {
    local said
    said=$(./package.sh "${package_options[@]}" | tail --lines=1)
    packages=("$build_folder"/*.deb)
    expect "packages made" 1 "${#packages[@]}"
    expect "last line" "The package: ${packages[0]}" "$said"
}

# The version has all four parts in the package, its name, its changelog and its metainfo.
version() {
    expect "Package" dezimo "$(field Package)"
    expect "Version" "$DEZIMO_VERSION" "$(field Version)"
    expect "file name" "dezimo_${DEZIMO_VERSION}_$(field Architecture).deb" "${package##*/}"
    unpack
    local share=$scratch/root/usr/share
    zcat "$share/doc/dezimo/changelog.gz" >"$scratch/changelog"
    expect "changelog" "$DEZIMO_VERSION" \
        "$(dpkg-parsechangelog --file "$scratch/changelog" --show-field Version)"
    expect "metainfo" "$DEZIMO_VERSION" \
        "$(xmllint --xpath 'string(//release/@version)' "$share/metainfo/$DEZIMO_ID.metainfo.xml")"
}

# A library's package may have another name in another Debian release, so the check finds it by its
# file. It wants one generation of Qt only.
dependencies() {
    local depends other=6
    [[ $qt == 5 ]] || other=5
    depends=$(field Depends)
    ! grep --ignore-case "qt$other" <<<"$depends $(field Recommends)" || fail "a need of Qt $other"
    for library in libc.so.6 libstdc++.so.6 "libQt$qt"{Core,Gui,Widgets,Svg}".so.$qt"; do
        grep --quiet --fixed-strings --file=<(
            dpkg-query --search "*/$library" | sed 's/:.*/ (>= /'
        ) <<<"$depends" || fail "no dependency on a package with $library in: $depends"
    done
}

contents() {
    local expected=$scratch/expected found=$scratch/found
    {
        echo ./usr/bin/dezimo
        printf './usr/share/doc/dezimo/%s\n' NEWS.gz changelog.gz copyright guide.md
        printf './usr/share/doc/dezimo/pictures/%s.png\n' dbm-calculator voltage-calculator \
            unit-converter db-converter vswr-converter
        printf './usr/share/doc/dezimo/examples/%s.dezimo\n' \
            antenna-mismatch receiver-chain two-transmitters
        printf './usr/share/%s\n' "applications/$DEZIMO_ID.desktop" man/man1/dezimo.1.gz \
            "metainfo/$DEZIMO_ID.metainfo.xml" "mime/packages/$DEZIMO_ID.xml"
        printf "./usr/share/icons/hicolor/%s/apps/$DEZIMO_ID.png\n" \
            16x16 22x22 24x24 32x32 48x48 64x64 128x128 256x256
        echo "./usr/share/icons/hicolor/scalable/apps/$DEZIMO_ID.svg"
    } | sort >"$expected"
    dpkg-deb --fsys-tarfile "$package" | tar --list | grep --invert-match '/$' | sort >"$found"
    diff "$expected" "$found"
}

# The install step puts the same files under any prefix, without a package.
prefix() {
    unpack
    cmake --install "$build_folder" --component application --prefix "$scratch/prefix" >/dev/null
    diff <(cd "$scratch/root/usr" && find . -type f | sort) \
        <(cd "$scratch/prefix" && find . -type f | sort)
}

# Each picture has the size of its folder, and the desktop entry names them.
icons() {
    unpack
    local hicolor=$scratch/root/usr/share/icons/hicolor
    for icon in "$hicolor"/*x*/apps/*.png; do
        local folder=${icon#"$hicolor/"}
        local size=${folder%%/*}
        [[ $(file --brief "$icon") == "PNG image data, ${size/x/ x }, 8-bit/color RGBA"* ]] ||
            fail "$folder is $(file --brief "$icon")"
    done
    expect "Icon" "Icon=$DEZIMO_ID" \
        "$(grep '^Icon=' "$scratch/root/usr/share/applications/$DEZIMO_ID.desktop")"
}

# A desktop makes databases from the package's files. They must lead from a calculation file to the
# program.
desktop_knows_the_files() {
    unpack
    local share=$scratch/root/usr/share
    update-mime-database "$share/mime" 2>/dev/null
    grep --quiet --line-regexp '50:application/x-dezimo:\*\.dezimo' "$share/mime/globs2" ||
        fail "no file type for *.dezimo"
    update-desktop-database "$share/applications"
    grep --quiet --line-regexp "application/x-dezimo=$DEZIMO_ID.desktop;" \
        "$share/applications/mimeinfo.cache" || fail "no program for application/x-dezimo"
    grep --quiet --line-regexp 'Exec=dezimo %f' "$share/applications/$DEZIMO_ID.desktop" ||
        fail "the desktop entry does not pass the file on"
}

# start [ARGUMENT...]: starts the unpacked program by its menu entry, and quits it.
start() {
    local words
    mapfile -t words < <(exec_words "$scratch/root" "$@")
    env --chdir="$home" --unset=XDG_CONFIG_HOME --unset=WAYLAND_DISPLAY --unset=QT_QPA_PLATFORM \
        PATH="$scratch/root/usr/bin:$PATH" HOME="$home" XDG_RUNTIME_DIR="$home" LC_ALL=C.UTF-8 \
        "${words[@]}" &
    quit_by_keyboard $!
}

# The program starts for the first time, with a file by its full name and by its name in the current
# folder, with an option and with two files, and with a file that does not exist.
starts() {
    unpack
    local home=$scratch/home file='Zwei Geräte, 10 µW.dezimo'
    mkdir --mode=700 "$home"
    printf '[DbConverterProfile]\np1=5W\n' >"$home/$file"
    printf '[DbConverterProfile]\np1=6W\n' >"$home/other.dezimo"
    start_display "$scratch/xvfb.log"
    start
    expect "first start" "" "$(stored_p1 "$home")"
    start "$home/$file"
    expect "with a file" 5W "$(stored_p1 "$home")"
    start other.dezimo
    expect "with a file in the current folder" 6W "$(stored_p1 "$home")"
    start --version
    expect "with an option" 6W "$(stored_p1 "$home")"
    start "$home/$file" "$home/$file"
    expect "with two files" 6W "$(stored_p1 "$home")"
    start "$home/none.dezimo"
    expect "without the file" 6W "$(stored_p1 "$home")"
    [[ ! -e $home/none.dezimo ]] || fail "a file that is only read was made"
}

man_page() {
    unpack
    local complaints
    complaints=$(LC_ALL=C.UTF-8 MANWIDTH=80 MANROFFSEQ='' man --warnings --local-file \
        "$scratch/root/usr/share/man/man1/dezimo.1.gz" 2>&1 >"$scratch/page")
    expect "complaints" "" "$complaints"
    grep --quiet "Dezimo $DEZIMO_VERSION" "$scratch/page" || fail "the page does not tell the version"
    local examples
    examples=$(grep --only-matching '/[a-z/]*/examples' "$scratch/page") || fail "no examples told of"
    [[ -d $scratch/root$examples ]] || fail "there is no $examples"
}

# The man page names the guide, and every picture is where the guide says.
guide() {
    unpack
    local folder=$scratch/root/usr/share/doc/dezimo picture
    zcat "$scratch/root/usr/share/man/man1/dezimo.1.gz" | grep --quiet '^\.I /usr/share/doc/dezimo/guide\.md$' ||
        fail "the man page does not name the guide"
    while read -r picture; do
        [[ -s $folder/$picture ]] || fail "the guide shows $picture, which is not there"
    done < <(grep --only-matching --perl-regexp '(?<=\]\()[^)]*\.png' "$folder/guide.md")
}

lintian() {
    local root=()
    [[ $EUID -ne 0 ]] || root=(--allow-root)
    command lintian "${root[@]}" --fail-on error,warning "$package"
}

# code_block LANGUAGE PAGE: prints what stands between the fences of a language.
code_block() { sed --quiet "/^\`\`\`$1\$/,/^\`\`\`\$/{/^\`\`\`/!p}" "$2"; }

# Builds the documented example, exactly as it is on the page, with the installed models. It asks
# for an older C++ than the models need, to test that the models ask for the right one, and is told
# which Qt they were built with.
use_of_the_models() {
    local page=docs/use-the-models.md
    cmake --install "$build_folder" --component devel --prefix "$scratch/installed" >/dev/null
    mkdir "$scratch/example"
    code_block cmake "$page" >"$scratch/example/CMakeLists.txt"
    code_block cpp "$page" >"$scratch/example/main.cpp"
    # shellcheck disable=SC2016
    echo 'message(STATUS "Dezimo_QT=${Dezimo_QT}")' >>"$scratch/example/CMakeLists.txt"
    cmake -G Ninja -S "$scratch/example" -B "$scratch/build" \
        -D CMAKE_PREFIX_PATH="$scratch/installed" -D CMAKE_CXX_STANDARD=14 \
        -D CMAKE_CXX_FLAGS="-Wall -Wextra -Werror" >"$scratch/configured"
    expect "generation of Qt" "-- Dezimo_QT=$qt" "$(grep Dezimo_QT "$scratch/configured")"
    expect "message about Qt" "-- Dezimo's models need Qt $qt" "$(grep need "$scratch/configured")"
    cmake --build "$scratch/build"
    "$scratch/build/antenna" >"$scratch/found"
    code_block text "$page" | diff - "$scratch/found"
}

# Makes the package again from sources in another folder, whose name has blanks and an umlaut, in
# another time zone and without what the first build left behind.
reproducible() {
    local sources="$scratch/Dezimo für alle"
    mkdir "$sources"
    tar --create --exclude=./build --exclude=./.git . | tar --extract --touch --directory "$sources"
    (
        umask 027
        cd "$sources"
        env TZ=Pacific/Kiritimati LC_ALL=C CCACHE_DISABLE=1 \
            ./package.sh "${package_options[@]}" >/dev/null
    )
    cmp "$package" "$sources/$package"
}

[[ $# -eq 1 && $(type -t "$1") == function ]] || fail "usage: package_test.sh CHECK"
[[ $1 == build || -n $package ]] || fail "There is no package yet; the check build makes it."
"$1"
