#!/usr/bin/env bash
# Plays for 20 seconds on an invisible display, as somebody would see and hear it: takes a picture
# of the window, writes what sounded into a WAV file, and tells what was played.
#   scripts/demo-without-display.sh [SONG]
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

seconds=20
out=$PWD/build/demo
rm -rf "$out"
mkdir -p "$out/home"

# Everything that is started here ends here, whatever happens.
started=()
cleanup() { for pid in "${started[@]}"; do kill "$pid" 2>/dev/null || true; done; }
trap cleanup EXIT

coproc DISPLAY_SERVER { exec Xvfb -displayfd 1 -screen 0 1280x900x24 -nolisten tcp 2>"$out/xvfb.log"; }
started+=("$DISPLAY_SERVER_PID")
read -r -t 20 number <&"${DISPLAY_SERVER[0]}"
export DISPLAY=:$number
openbox >"$out/openbox.log" 2>&1 &
started+=($!)

# A home of its own, so that the demo neither meets nor leaves settings.
ZEPHYNE_HOME=$out/home ZEPHYNE_INSTANCE=demo ZEPHYNE_AUDIO=file:$out/zephyne.wav \
    build/release/zephyne "$@" >"$out/zephyne.log" 2>&1 &
program=$!
started+=("$program")

titles=$out/titles.txt
for ((second = 0; second < seconds; ++second)); do
    kill -0 "$program" 2>/dev/null || { echo "Zephyne ended by itself:"; cat "$out/zephyne.log"; exit 1; }
    sleep 1
    xdotool search --onlyvisible --name '^Zephyne' getwindowname >>"$titles" 2>/dev/null || true
    # The tip of the day is read, and lies before the picture no longer.
    if ((second == 4)) && xdotool search --onlyvisible --name '^Zephyne Quick Tip' >/dev/null 2>&1; then
        xdotool key Escape
    fi
    if ((second == 12)); then import -window root "$out/zephyne.png"; fi
done

kill -TERM "$program"
wait "$program" || true
trap - EXIT
cleanup

echo
echo "Played for $seconds seconds:"
sed -n 's/^Zephyne - Playing /  /p' "$titles" | awk '!seen[$0]++'
echo "Picture: ${out#"$PWD"/}/zephyne.png"
echo "Sound:   ${out#"$PWD"/}/zephyne.wav"
grep -q '^Zephyne - Playing' "$titles"
