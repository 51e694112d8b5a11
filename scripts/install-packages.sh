#!/usr/bin/env bash
# Installs the Debian packages that a task needs: scripts/install-packages.sh build|demo|test|bench...
# Costs nothing when they are there already.
set -euo pipefail

build=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-svg-dev libxcb1-dev libfontconfig-dev libfluidsynth-dev
       libmpv-dev libutf8proc-dev libexpected-dev timgm6mb-soundfont fonts-inter fonts-liberation
       fonts-dejavu-extra)
demo=(xvfb openbox xdotool imagemagick)
test=("${demo[@]}" libgtest-dev python3 openttd-openmsx xauth trayer)
bench=("${test[@]}" libbenchmark-dev fluidsynth hyperfine)

wanted=()
for task in "$@"; do
    declare -n packages="$task"
    wanted+=("${packages[@]}")
done

missing=()
for package in "${wanted[@]}"; do
    state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$state" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install as root: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${missing[@]}"
