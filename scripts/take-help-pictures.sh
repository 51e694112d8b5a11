#!/usr/bin/env bash
# Takes the pictures of the user guide anew, from the running program on an invisible display.
#   scripts/take-help-pictures.sh [PROGRAM]
# PROGRAM is build/dev/zephyne unless given. The pictures go to data/help/pictures.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

program=$(realpath "${1:-build/dev/zephyne}")
pictures=$PWD/data/help/pictures

# The pictures show folders. In a view of the file system of our own these can have any name.
if [[ -z ${ZEPHYNE_PICTURES_VIEW:-} ]]; then
    ZEPHYNE_PICTURES_VIEW=1 exec unshare --map-root-user --mount "$PWD/scripts/${0##*/}" "$program"
fi
mount -t tmpfs none /media
work=/media/clara
mkdir -m 700 "$work"

# Everything that is started here ends here, whatever happens.
started=()
cleanup() {
    for pid in "${started[@]}"; do kill "$pid" 2>/dev/null || true; done
}
trap cleanup EXIT

coproc DISPLAY_SERVER { exec Xvfb -displayfd 1 -screen 0 1280x900x24 -nolisten tcp 2>/dev/null; }
started+=("$DISPLAY_SERVER_PID")
read -r -t 20 number <&"${DISPLAY_SERVER[0]}"
export DISPLAY=:$number
openbox >/dev/null 2>&1 &
started+=($!)
trayer --edge bottom --align right --widthtype request >/dev/null 2>&1 &
started+=($!)

# A home in which the songs lie in a folder of their own.
export HOME=$work XDG_RUNTIME_DIR=$work ZEPHYNE_HOME=$work/settings ZEPHYNE_AUDIO=null
mkdir -p "$work/settings"
cp -r data/songs "$work/Music"
cp data/reset/*.aut data/help/zephyne.* data/tips/QUICKTIP.INI "$work/settings/"
sed -i 's/^START=.*/START=F\r/' "$work/settings/QUICKTIP.INI"

start() {  # SETTINGS ARGUMENTS...: a fresh copy that shows the demo songs
    local settings=$1
    shift
    printf 'ConfirmExit=0\r\nShowBar=1\r\n%b' "$settings" >"$work/settings/zephyne.ini"
    (cd "$work/Music" && exec env ZEPHYNE_INSTANCE="help-$$" "$program" "$@") >/dev/null 2>&1 &
    copy=$!
    started+=("$copy")
    wait_for '^Zephyne' >/dev/null
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

save() {  # WINDOW FILE
    sleep 0.7
    import -window "$1" -strip -define png:compression-level=9 PNG24:"$pictures/$2.png"
}

take() {  # TITLE FILE
    save "$(wait_for "$1")" "$2"
}

click() {  # TITLE X Y: in the window's own pixels
    local id
    id=$(wait_for "$1")
    xdotool mousemove --window "$id" "$2" "$3" click 1
    xdotool mousemove 1270 20
    sleep 0.5
}

escape() {
    xdotool key Escape
    sleep 0.5
}

take_opened() {  # X Y TITLE FILE: the window that this key of the main window opens, which is closed
    click '^Zephyne - ' "$1" "$2"
    take "$3" "$4"
    escape
}

mkdir -p "$pictures"
start 'Mode=Alpha\r\nShowTray=1\r\n'
take '^Zephyne - Playing' main
click '^Zephyne - ' 54 345
take '^Zephyne Options' options
click '^Zephyne Options' 398 262
take '^About Zephyne' about
escape
escape
take_opened 240 389 '^Information' information
take_opened 216 367 '^Rename File' rename
take_opened 275 367 '^Please Verify' question
take_opened 325 367 '^Move File' move
take_opened 54 367 '^Zephyne Quick Tip' tip

# A note and two presets, to have something to show.
click '^Zephyne - ' 359 389
xdotool type --delay 20 'Bought with the old sound card. Sounds best with the large font.'
take '^Notes' notes
click '^Notes' 102 252
for preset in 200 222; do
    click '^Zephyne - ' 347 308
    click '^Zephyne - ' $preset 308
    click '^Zephyne - ' 60 309
done
take_opened 347 329 '^View Presets' presets

# The menu is the window that comes up with a click on the icon.
windows() { xdotool search --onlyvisible --class zephyne 2>/dev/null | sort; }
windows >"$work/before"
panel=$(xdotool search --onlyvisible --class trayer | tail -n 1)
xdotool mousemove --window "$panel" 12 12 click 1
sleep 1
xdotool mousemove 1270 20
save "$(windows | comm -13 "$work/before" - | head -n 1)" tray
escape
stop

start 'Mode=Alpha\r\nPlaylist=1\r\nExtended=1\r\nShowTray=0\r\n'
click '^Zephyne' 251 26
click '^Edit Playlist' 300 177  # "Add All"
take '^Edit Playlist' editor
click '^Edit Playlist' 300 203  # "Find All"
click '^Find All MIDI' 344 58  # "Find Files..."
sleep 2
take '^Find All MIDI' search
stop

start 'Mode=Random\r\nShowTray=0\r\n' "$work/Music/Greensleeves.rmi"
take '^Zephyne - Playing' queue
stop
ls -l "$pictures"
