#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# package_test.sh CHECK: one check of the zip and the installer for Windows, which the check "build"
# makes. CTest runs each from the source folder, with DEZIMO_VERSION as the project has it. An
# installer that does nothing would also succeed, so the checks look at what it installed and start
# it under Wine.
set -euo pipefail
# shellcheck source=/dev/null
. tools/wine_session.sh

packages=build/windows/package
zip=$packages/dezimo_${DEZIMO_VERSION}_win64.zip
installer=$packages/dezimo_${DEZIMO_VERSION}_win64-setup.exe
scratch=$(mktemp --directory)
trap clean_up EXIT

# A failed check may leave its Windows changed, so that Windows is not used again.
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

# What the executable tells Windows about itself.
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

# No path of this machine gets into the files: neither the source folder nor the user's home.
no_paths() {
    unzip -q "$zip" -d "$scratch"
    ! grep --recursive --text --files-with-matches --fixed-strings -e "$PWD" -e "$HOME/" "$scratch/Dezimo" ||
        fail "a path of this machine is in the files above"
}

# Makes the zip again from sources in another folder, in another time zone and without what the
# first build left behind.
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

# query KEY [VALUE]: prints the data of a value in the user's registry, or nothing if there is none.
query() {
    local choice=(/ve)
    [[ $# -eq 1 ]] || choice=(/v "$2")
    wine reg query "HKCU\\$1" "${choice[@]}" 2>/dev/null |
        iconv --from-code=CP437 | tr --delete '\r' | sed --quiet 's/.* REG_[A-Z]* *//p' || true
}

# Lists every file and every key that an installer may leave behind.
snapshot() {
    find "$WINEPREFIX/drive_c" -not -path '*/Temp/*' -not -name run.bat | sort
    local key
    for key in 'Software\Classes' 'Software\Microsoft\Windows\CurrentVersion\Uninstall'; do
        # An empty key must look like a missing one, so blank lines and error messages are dropped.
        wine reg query "HKCU\\$key" /s 2>/dev/null | tr --delete '\r' | sed '/^$/d; /^reg: /d' || true
    done
}

# main_window: prints the main window as soon as it is there and in front.
main_window() {
    local window
    window=$(window_named 60 '^Dezimo \[') || fail "no window appeared"
    timeout 60 xdotool windowactivate --sync "$window" || fail "the window stays in the background"
    echo "$window"
}

# ended PROCESS: succeeds if it ends within a second.
ended() { timeout 1 tail --pid="$1" --follow /dev/null; }

# quit PROCESS: quits by the keys of the menu's Quit. Wine loses keys right after a start, so it
# presses them again until the program ends.
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

# run_line LINE: runs the line exactly as it is, because a set-up program wants no quotes around its
# folder.
run_line() {
    local status=0
    printf '@%s\r\n' "$1" | iconv --to-code=CP437 >"$WINEPREFIX/drive_c/line.bat"
    wine cmd /c 'C:\line.bat' || status=$?
    rm "$WINEPREFIX/drive_c/line.bat"
    return "$status"
}

# command_line LINE: runs the line and waits until every process has ended, because the uninstaller
# goes on as a copy of itself.
command_line() {
    run_line "$1"
    wineserver --wait
}

# windows_path FILE: prints the name by which a Windows program knows a file of this machine.
windows_path() {
    local path
    path=$(realpath "$1")
    echo "Z:${path//\//\\}"
}

# set_up INSTALLER [FOLDER]: installs without asking anything.
set_up() { command_line "$(windows_path "$1") /S${2:+ /D=$2}"; }

# holds_the_files_of_the_zip FOLDER: checks that the folder has exactly the files of the zip and the
# uninstaller.
holds_the_files_of_the_zip() {
    unzip -Z1 "$zip" | sed --quiet 's,^Dezimo/\(.*[^/]\)$,\1,p' | sort >"$scratch/zipped"
    (cd "$1" && find . -type f -not -name uninstall.exe -printf '%P\n') | sort |
        diff "$scratch/zipped" -
}

# classes_of_machine copy|delete KEY...: copies the user's file types to those of the machine, or
# deletes them there. Windows looks for file types in both places, but Wine only in the machine's.
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

# The folder has spaces and letters beyond ASCII, and so has the name of the opened calculation.
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

# Makes the installer of an earlier version, with a file that this one no longer has.
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

# Installs over an earlier version, to the same place and to another one. While the program runs,
# installer and uninstaller refuse.
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

# picture_of_rest FILE: saves a picture of the screen once two in a row are the same.
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
    # The tab of drivers needs a driver. The program serves as one, because it has a version.
    local windows=$WINEPREFIX/drive_c/windows
    touch "$windows/inf/kelexample.inf"
    cp "$scratch/Dezimo/dezimo.exe" "$windows/system32/drivers/kelexample.SYS"
    wine "$scratch/Dezimo/dezimo.exe" &
    local program=$! main window
    main=$(main_window)
    until window=$(window_named 5 '^Information about Dezimo$'); do
        # Opens the last menu and its only entry, which has no shortcut.
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
