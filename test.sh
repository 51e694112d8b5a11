#!/usr/bin/env bash
# Installs what the tests need, builds Zephyne with them, and runs them all.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")"

scripts/install-packages.sh build test
[ -f build/dev/build.ninja ] || cmake --preset dev >/dev/null
cmake --build --preset dev
exec ctest --preset dev
