#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# package_test.sh CHECK: one check of the zip and the installer for Windows, which the check "build"
# makes. CTest runs each from the source folder, with DEZIMO_VERSION as the project has it. What is
# installed is looked at and started under Wine: an installer that does nothing also succeeds.
set -euo pipefail
# shellcheck source=/dev/null
. tools/wine_session.sh

packages=build/windows/package
zip=$packages/dezimo_${DEZIMO_VERSION}_win64.zip
installer=$packages/dezimo_${DEZIMO_VERSION}_win64-setup.exe
scratch=$(mktemp --directory)
trap clean_up EXIT

# What a failed check leaves behind in its Windows is no good to others.
clean_up() {
    [[ $? -eq 0 ]] || rm -f "${WINEPREFIX:-$scratch}/made"
    end_wine
    rm -rf "$scratch"
}

fail() { echo "$*" >&2; exit 1; }

# expect WHAT WANTED FOUND
expect() { [[ $2 == "$3" ]] || fail "$1: expected \"$2\", found \"$3\""; }

build() {
    expect "last line" "The zip and the installer: $installer $zip" "$(./package.sh windows | tail --lines=1)"
    [[ -s $zip && -s $installer ]] || fail "not both are there"
}

# What is in the zip, as a list of files.
contents() {
    {
        printf 'Dezimo/%s\n' dezimo.exe Qt5Core.dll Qt5Gui.dll Qt5Svg.dll Qt5Widgets.dll \
            libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll \
            platforms/qwindows.dll styles/qwindowsvistastyle.dll \
            imageformats/qsvg.dll iconengines/qsvgicon.dll
        printf 'Dezimo/examples/%s.dezimo\n' antenna-mismatch receiver-chain two-transmitters
        echo Dezimo/guide.md
        (cd docs && printf 'Dezimo/%s\n' pictures/*.png)
        printf 'Dezimo/licenses/%s.txt\n' Apache-2.0 Dezimo GPL-3 LGPL-3 third-party
    } | sort >"$scratch/expected"
    unzip -Z1 "$zip" | grep --invert-match '/$' | sort | diff "$scratch/expected" -
}

# What the executable tells of itself to Windows.
resources() {
    unzip -q "$zip" Dezimo/dezimo.exe -d "$scratch"
    local program=$scratch/Dezimo/dezimo.exe text
    wrestool --extract --raw --type=16 "$program" | tr --delete '\0' >"$scratch/version"
    for text in Vantrel "$DEZIMO_VERSION" dezimo.exe; do
        grep --quiet --text --fixed-strings "$text" "$scratch/version" || fail "no $text in the version"
    done
    wrestool --extract --raw --type=24 "$program" >"$scratch/manifest"
    xmllint --noout "$scratch/manifest"
    for text in PerMonitorV2 'UTF-8</activeCodePage>' asInvoker; do
        grep --quiet --fixed-strings "$text" "$scratch/manifest" || fail "no $text in the manifest"
    done
    # 16, 24, 32, 48, 64 and 256 pixels
    expect "sizes of the icon" 6 "$(wrestool --list --type=3 "$program" | wc --lines)"
}

# Nothing of this machine gets into the files: neither the folder of the sources nor that of the user.
no_paths() {
    unzip -q "$zip" -d "$scratch"
    ! grep --recursive --text --files-with-matches --fixed-strings -e "$PWD" -e "$HOME/" "$scratch/Dezimo" ||
        fail "a path of this machine is in the files above"
}

# Again from sources in another place, at another hour and without what the first build left behind.
reproducible() {
    mkdir "$scratch/sources"
    tar --create --exclude=./build --exclude=./.git . | tar --extract --touch --directory "$scratch/sources"
    (
        umask 027
        cd "$scratch/sources"
        env TZ=Pacific/Kiritimati LC_ALL=C CCACHE_DISABLE=1 ./package.sh windows >/dev/null
    )
    cmp "$zip" "$scratch/sources/$zip"
}

# query KEY [VALUE]: the data of a value of the user's registry; empty if there is none.
query() {
    local choice=(/ve)
    [[ $# -eq 1 ]] || choice=(/v "$2")
    wine reg query "HKCU\\$1" "${choice[@]}" 2>/dev/null |
        iconv --from-code=CP437 | tr --delete '\r' | sed --quiet 's/.* REG_[A-Z]* *//p' || true
}

# Every file and every key that an installer may leave behind.
snapshot() {
    find "$WINEPREFIX/drive_c" -not -path '*/Temp/*' -not -name run.bat | sort
    local key
    for key in 'Software\Classes' 'Software\Microsoft\Windows\CurrentVersion\Uninstall'; do
        # An empty key and none are the same here.
        wine reg query "HKCU\\$key" /s 2>/dev/null | tr --delete '\r' | sed '/^$/d; /^reg: /d' || true
    done
}

# main_window: the main window, once it is there and in front.
main_window() {
    local window
    window=$(window_named 60 '^Dezimo \[') || fail "no window appeared"
    timeout 60 xdotool windowactivate --sync "$window" || fail "the window stays in the background"
    echo "$window"
}

# ended PROCESS: whether it ends within a second.
ended() { timeout 1 tail --pid="$1" --follow /dev/null; }

# quit PROCESS: leaves by the keys of the menu's Quit; Wine loses keys right after a start.
quit() {
    local attempt
    for attempt in {1..30}; do
        ! ended "$1" || break
        xdotool key ctrl+q
    done
    kill -0 "$1" 2>/dev/null && fail "the program does not quit after $attempt attempts"
    wait "$1" || fail "the program ended with status $?"
}

start_and_quit() {
    wine "$@" &
    local program=$!
    main_window >/dev/null
    quit "$program"
    wineserver --wait
}

# run_line LINE: runs it as it stands, since a set-up program wants no quotes round its folder.
run_line() {
    local status=0
    printf '@%s\r\n' "$1" | iconv --to-code=CP437 >"$WINEPREFIX/drive_c/line.bat"
    wine cmd /c 'C:\line.bat' || status=$?
    rm "$WINEPREFIX/drive_c/line.bat"
    return "$status"
}

# command_line LINE: the same to the end. The uninstaller goes on as a copy of itself.
command_line() {
    run_line "$1"
    wineserver --wait
}

# windows_path FILE: how a program of Windows names a file of this machine.
windows_path() {
    local path
    path=$(realpath "$1")
    echo "Z:${path//\//\\}"
}

# set_up INSTALLER [FOLDER]: installs without a question.
set_up() { command_line "$(windows_path "$1") /S${2:+ /D=$2}"; }

# holds_the_files_of_the_zip FOLDER: whether nothing else than them and the uninstaller is there.
holds_the_files_of_the_zip() {
    unzip -Z1 "$zip" | sed --quiet 's,^Dezimo/\(.*[^/]\)$,\1,p' | sort >"$scratch/zipped"
    (cd "$1" && find . -type f -not -name uninstall.exe -printf '%P\n') | sort |
        diff "$scratch/zipped" -
}

# classes_of_machine ACTION KEY...: Wine looks for file types only among those of the machine, where
# Windows sees the user's own as well; so these are copied there or removed again.
classes_of_machine() {
    local action=$1 key
    shift
    for key in "$@"; do
        if [[ $action == copy ]]; then
            wine reg copy "HKCU\\Software\\Classes\\$key" "HKLM\\Software\\Classes\\$key" /s /f >/dev/null
        else
            wine reg delete "HKLM\\Software\\Classes\\$key" /f >/dev/null
        fi
    done
}

# In a folder with spaces and letters beyond ASCII, as is the name of the calculation that is opened.
folder='C:\Geräte für µW\Dezimo'
uninstall='Software\Microsoft\Windows\CurrentVersion\Uninstall\Dezimo'

start_wine_with_a_place() {
    start_wine
    place=$WINEPREFIX/drive_c/Geräte\ für\ µW/Dezimo
    mkdir -p "${place%/*}"
}

installed() {
    start_wine_with_a_place
    local class=Vantrel.Dezimo.Calculation
    local file=$WINEPREFIX/drive_c/Zwei\ Geräte,\ 10\ µW.dezimo
    printf '[DbConverterProfile]\np1=5W\n' >"$file"
    wine reg delete 'HKCU\Software\Vantrel' /f >/dev/null 2>&1 || true
    snapshot >"$scratch/before"

    set_up "$installer" "$folder"
    holds_the_files_of_the_zip "$place"
    [[ -s $(find "$WINEPREFIX/drive_c/users" -path '*/Start Menu/Programs/Dezimo.lnk') ]] ||
        fail "no entry in the start menu"
    expect "file type" "$class" "$(query 'Software\Classes\.dezimo')"
    expect "open command" "\"$folder\\dezimo.exe\" \"%1\"" \
        "$(query "Software\\Classes\\$class\\shell\\open\\command")"
    expect "icon" "\"$folder\\dezimo.exe\",0" "$(query "Software\\Classes\\$class\\DefaultIcon")"
    expect "publisher" Vantrel "$(query "$uninstall" Publisher)"
    expect "version" "$DEZIMO_VERSION" "$(query "$uninstall" DisplayVersion)"

    start_and_quit "$folder\\dezimo.exe"
    expect "P1 after a first start" "" "$(query 'Software\Vantrel\Dezimo\DbConverterProfile' p1)"
    classes_of_machine copy .dezimo "$class"
    start_and_quit start /wait /unix "$file"
    classes_of_machine delete .dezimo "$class"
    expect "P1 of the file" 5W "$(query 'Software\Vantrel\Dezimo\DbConverterProfile' p1)"

    command_line "$(query "$uninstall" QuietUninstallString)"
    snapshot | diff "$scratch/before" - || fail "the installer left something behind"
    expect "the person's state" 5W "$(query 'Software\Vantrel\Dezimo\DbConverterProfile' p1)"
}

# The installer of an earlier version, with a file that this one no longer has.
make_earlier() {
    local staged=$scratch/earlier
    mkdir -p "$staged/gone"
    touch "$staged/dezimo.exe" "$staged/gone/gone.txt"
    # shellcheck disable=SC2016
    printf 'Delete "$INSTDIR\\%s"\n' dezimo.exe 'gone\gone.txt' >"$staged.files.nsh"
    # shellcheck disable=SC2016
    printf 'RMDir "$INSTDIR\\gone"\n' >"$staged.folders.nsh"
    makensis -V2 -DSTAGED="$staged" -DINSTALLER="$staged-setup.exe" \
        build/windows/packaging/windows/dezimo.nsi
}

# Over an earlier version, to the same place and to another one; while the program runs it refuses.
updated() {
    start_wine_with_a_place
    make_earlier
    snapshot >"$scratch/before"
    set_up "$scratch/earlier-setup.exe" "$folder"
    [[ -e $place/gone/gone.txt ]] || fail "the earlier version is not there"
    set_up "$installer"
    holds_the_files_of_the_zip "$place"

    wine "$folder\\dezimo.exe" &
    local program=$! line
    main_window >/dev/null
    for line in "$(windows_path "$installer") /S" "\"$folder\\uninstall.exe\" /S _?=$folder"; do
        ! run_line "$line" || fail "not refused: $line"
        holds_the_files_of_the_zip "$place"
    done
    quit "$program"
    wineserver --wait

    set_up "$scratch/earlier-setup.exe" "$folder"
    set_up "$installer" "${folder}2"
    holds_the_files_of_the_zip "${place}2"
    [[ ! -e $place ]] || fail "the earlier version is still there"
    command_line "$(query "$uninstall" QuietUninstallString)"
    snapshot | diff "$scratch/before" - || fail "the installer left something behind"
}

# picture_of_rest FILE: the screen, once two pictures in a row are the same.
picture_of_rest() {
    import -window root "$1"
    until import -window root "$scratch/next.png" && cmp --quiet "$1" "$scratch/next.png"; do
        mv "$scratch/next.png" "$1"
    done
}

# The About window of the program from the zip, with each of its three tabs in front.
about() {
    local pictures=$PWD/$packages/pictures tab
    unzip -q "$zip" -d "$scratch"
    mkdir -p "$pictures"
    start_wine
    # One driver, without which there is no tab of drivers; the program itself has a version to tell.
    local windows=$WINEPREFIX/drive_c/windows
    touch "$windows/inf/kelexample.inf"
    cp "$scratch/Dezimo/dezimo.exe" "$windows/system32/drivers/kelexample.SYS"
    wine "$scratch/Dezimo/dezimo.exe" &
    local program=$! main window
    main=$(main_window)
    until window=$(window_named 5 '^Information about Dezimo$'); do
        # The last menu and its only entry, which no key leads to.
        xdotool key Escape mousemove --window "$main" 134 14 click 1 key --delay 200 Down Return
        kill -0 "$program" || fail "the program has ended"
    done
    xdotool windowactivate --sync "$window"
    for tab in legal drivers system; do
        picture_of_rest "$pictures/about-$tab.png"
        [[ $(identify -format %k "$pictures/about-$tab.png") -gt 100 ]] || fail "the tab $tab is empty"
        xdotool key ctrl+Tab
    done
    xdotool key Escape
    main_window >/dev/null
    quit "$program"
    rm "$windows/inf/kelexample.inf" "$windows/system32/drivers/kelexample.SYS"
    expect "different pictures" 3 "$(md5sum "$pictures"/about-*.png | cut --characters=1-32 | sort --unique | wc -l)"
}

[[ $# -eq 1 && $(type -t "$1") == function ]] || fail "usage: package_test.sh CHECK"
"$1"
