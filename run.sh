#!/usr/bin/env bash
# Installs what Zephyne needs, builds it and starts it:  ./run.sh [SONG]
# Where there is no display it plays for 20 seconds on an invisible one instead, and leaves a
# picture and the sound under build/demo/.
set -euo pipefail

song=()
[ $# -eq 0 ] || song=("$(realpath -s -- "$1")")
cd "$(dirname "$(realpath "$0")")"

scripts/install-packages.sh build
[ -f build/release/build.ninja ] || cmake --preset release >/dev/null
cmake --build --preset release --target zephyne

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/release/zephyne "${song[@]}"
fi
scripts/install-packages.sh demo
exec scripts/demo-without-display.sh "${song[@]}"
