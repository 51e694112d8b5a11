#!/usr/bin/env bash
# Takes the pictures of the user guide anew, from the running program on an invisible display.
#   scripts/take-help-pictures.sh [PROGRAM]
# PROGRAM is build/dev/zephyne unless given. The pictures go to data/help/pictures.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

program=$(realpath "${1:-build/dev/zephyne}")
pictures=$PWD/data/help/pictures
work=${TMPDIR:-/tmp}/zephyne-help  # the pictures show it
rm -rf "$work"
mkdir -m 700 "$work"

# Everything that is started here ends here, whatever happens.
started=()
cleanup() {
    for pid in "${started[@]}"; do kill "$pid" 2>/dev/null || true; done
    rm -rf "$work"
}
trap cleanup EXIT

coproc DISPLAY_SERVER { exec Xvfb -displayfd 1 -screen 0 1280x900x24 -nolisten tcp 2>/dev/null; }
started+=("$DISPLAY_SERVER_PID")
read -r -t 20 number <&"${DISPLAY_SERVER[0]}"
export DISPLAY=:$number
openbox >/dev/null 2>&1 &
started+=($!)

# A home in which the songs lie in a folder of their own.
export HOME=$work XDG_RUNTIME_DIR=$work ZEPHYNE_HOME=$work/settings ZEPHYNE_AUDIO=null
mkdir -p "$work/settings"
cp -r data/songs "$work/Music"
cp data/reset/*.aut data/help/zephyne.* "$work/settings/"

start() {  # ARGUMENTS...: a fresh copy that shows the demo songs
    printf 'Mode=Random\r\nConfirmExit=0\r\nShowBar=1\r\nShowTray=0\r\n' >"$work/settings/zephyne.ini"
    (cd "$work/Music" && exec env ZEPHYNE_INSTANCE="help-$$" "$program" "$@") >/dev/null 2>&1 &
    copy=$!
    started+=("$copy")
    wait_for '^Zephyne - Playing' >/dev/null
    sleep 8
}

stop() {
    kill -TERM "$copy"
    wait "$copy" || true
}

wait_for() {  # TITLE: prints the id of the window
    for _ in $(seq 100); do
        id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1 || true)
        [[ -n $id ]] && { echo "$id"; return; }
        sleep 0.2
    done
    echo "No window \"$1\" came up" >&2
    return 1
}

take() {  # TITLE FILE
    local id
    id=$(wait_for "$1")
    sleep 0.5
    import -window "$id" -strip -define png:compression-level=9 PNG24:"$pictures/$2.png"
}

click() {  # TITLE X Y: in the window's own pixels
    local id
    id=$(wait_for "$1")
    xdotool mousemove --window "$id" "$2" "$3" click 1
    xdotool mousemove 1270 890
}

mkdir -p "$pictures"
start
take '^Zephyne - Playing' main
click '^Zephyne - Playing' 54 345
take '^Zephyne Options' options
click '^Zephyne Options' 398 262
take '^About Zephyne' about
xdotool key Escape
sleep 0.5
xdotool key Escape
sleep 0.5
click '^Zephyne - Playing' 240 389
take '^Information' information
stop

start "$work/Music/Greensleeves.rmi"
take '^Zephyne - Playing' queue
stop
ls -l "$pictures"
