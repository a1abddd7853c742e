#!/usr/bin/env bash
# What ./run does with its options, and with and without a display: runScriptTest.sh PROJECT
# Setup, build and the programs are played by scripts that write down how they were called.
set -uo pipefail
project=$1

work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
calls=$work/calls
export calls

play() { # play FILE LINE...: a program that notes its name and arguments, then does the lines
    mkdir -p "$(dirname "$work/$1")"
    printf '%s\n' '#!/usr/bin/env bash' 'echo "$(basename "$0") $*" >>"$calls"' "${@:2}" >"$work/$1"
    chmod +x "$work/$1"
}
cp "$project/run" "$work/run"
play scripts/setup
play scripts/build
play build/release/apps/firmcal/firmcal 'case "$1 $*" in "demo "*) touch "$2" ;; *agenda*) echo "the agenda" ;; esac'
play build/release/apps/firmcal-desktop/firmcal-desktop '[[ -e $2 ]] || exit 9' 'exit ${desktopStatus:-0}'

failures=0
expect() { # expect WHAT ACTUAL WANTED
    [[ $2 == "$3" ]] && return
    printf 'FAILED  %s: %s\n' "$name" "$1"
    printf '  wanted: %q\n  actual: %q\n' "$3" "$2"
    failures=$((failures + 1))
}

# try NAME DISPLAY WAYLAND_DISPLAY ARGUMENT...: with the platform of Qt in $platform; leaves status, out, err and the calls in $called
try() {
    name=$1
    : >"$calls"
    out=$(env -u FIRMCAL_DATABASE DISPLAY="$2" WAYLAND_DISPLAY="$3" QT_QPA_PLATFORM="${platform:-}" "$work/run" "${@:4}" 2>"$work/err")
    status=$?
    err=$(<"$work/err")
    # The temporary folder has another name each time.
    called=$(sed -E "s#$work/##g; s#/tmp/tmp\.[A-Za-z0-9]+/#TEMPORARY/#g" "$calls")
}
hint=$'the agenda\n\nThe same in a window: ./run --desktop'

try "without a display" "" ""
expect status "$status" 0
expect output "$out" "the agenda"
expect calls "$called" "setup 
build release --target firmcal
firmcal demo TEMPORARY/firm.db
firmcal --database TEMPORARY/firm.db agenda --week --texts"

try "with a display" :0 ""
expect status "$status" 0
expect output "$out" "$hint"

try "under Wayland" "" wayland-0
expect output "$out" "$hint"

platform=vnc
try "on a platform of Qt's that needs neither" "" ""
expect output "$out" "$hint"
unset platform

try "a firm to keep and a calendar" "" "" --database "$work/kept.db" mine.ics
expect status "$status" 0
expect calls "$called" "setup 
build release --target firmcal
firmcal demo kept.db
firmcal --database kept.db import mine.ics
firmcal --database kept.db agenda --week --texts"
expect "the file stays" "$(ls "$work/kept.db")" "$work/kept.db"

try "a firm that exists is not made anew" "" "" -d "$work/kept.db"
expect calls "$called" "setup 
build release --target firmcal
firmcal --database kept.db agenda --week --texts"

try "the desktop" :0 "" --desktop
expect status "$status" 0
expect output "$out" ""
expect calls "$called" "setup desktop
build desktop --target firmcal --target firmcal-desktop
firmcal demo TEMPORARY/firm.db
firmcal-desktop --database TEMPORARY/firm.db"

export desktopStatus=3
try "the desktop's exit status is the script's" "" wayland-0 --desktop --database "$work/kept.db"
expect status "$status" 3
unset desktopStatus

try "the desktop without a display" "" "" --desktop
expect status "$status" 1
expect output "$out" ""
expect error "$err" "./run --desktop needs a display: none of DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM is set. ./run alone needs none."
expect calls "$called" ""

try "help" "" "" --help
expect status "$status" 0
expect calls "$called" ""
expect output "${out%%$'\n'*}" "usage: ./run [--desktop] [--database FILE] [FILE.ics]"

try "a wrong option" "" "" --windows
expect status "$status" 2
expect calls "$called" ""
expect output "$out" ""

[[ $failures -eq 0 ]]
