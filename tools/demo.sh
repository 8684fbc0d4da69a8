#!/bin/sh
# Builds and starts the NodRutinas demo program on the bundled sample office (or on --office DIR /
# $NODRIM_DIR). Without a display it runs under Xvfb and saves a picture of every dialog instead.
# Usage: tools/demo.sh [nodrim-demo options...]
set -eu
cd "$(dirname "$0")/.."

sh tools/setup-debian.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build/release --target nodrim-demo -- -j"$(nproc)"

DEMO=build/release/apps/demo/nodrim-demo
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display: running under Xvfb and saving a screenshot of every dialog into screenshots/"
    xvfb-run -a "$DEMO" --screenshots screenshots "$@"
    echo "Screenshots are in $(pwd)/screenshots"
else
    exec "$DEMO" "$@"
fi
