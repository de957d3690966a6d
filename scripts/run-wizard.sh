#!/bin/sh
# Builds Zelkon on a fresh Debian 12 machine and starts the wizard on the example device
# tree with an example configuration. Extra arguments go to the wizard, e.g.
#   scripts/run-wizard.sh --platform wes --standalone
# The wizard needs a display. Without one, ZELKON_USE_XVFB=1 runs it under a virtual X
# server that nobody sees; --screenshots DIR renders the pages to PNG files instead and
# needs no display at all.
set -eu

cd "$(dirname "$0")/.."

if [ -z "${DISPLAY:-}" ]; then
    sh scripts/install-build-deps.sh xvfb xauth
else
    sh scripts/install-build-deps.sh
fi

cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DZELKON_BUILD_TESTS=OFF
cmake --build build -j "$(nproc)"

set -- --device-root examples/device examples/lunvex-kiosk.tavlocfg "$@"

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec build/app/zelkon "$@"
fi

for argument in "$@"; do
    case "$argument" in
    --screenshots | --screenshots=*) exec build/app/zelkon "$@" ;;
    esac
done

if [ "${ZELKON_USE_XVFB:-0}" = 1 ]; then
    echo "Zelkon runs on an invisible virtual display (xvfb-run): no window will appear, and"
    echo "this terminal stays busy until the wizard ends. Press Ctrl+C to stop it."
    echo "To see the pages, render them to PNG files instead and open those:"
    echo "    $0 --screenshots /tmp/zelkon-shots"
    exec xvfb-run -a build/app/zelkon "$@"
fi

echo "Zelkon was built as build/app/zelkon, but it needs a display to show its window." >&2
echo "Run this script from a desktop session, or set ZELKON_USE_XVFB=1 to use a virtual X server," >&2
echo "or render the pages without a display: $0 --screenshots /tmp/zelkon-shots" >&2
exit 1
