#!/bin/sh
# Builds Zelkon on a fresh Debian 12 machine and starts the wizard on the example device
# tree with an example configuration. Extra arguments go to the wizard, e.g.
#   scripts/run-wizard.sh --platform wes --standalone
# The wizard needs a display. Without one, set ZELKON_USE_XVFB=1 to run it under a
# virtual X server (useful with --screenshots DIR, which needs no display at all).
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
    echo "No display: running the wizard under a virtual X server (xvfb-run)."
    exec xvfb-run -a build/app/zelkon "$@"
fi

echo "Zelkon was built as build/app/zelkon, but it needs a display to show its window." >&2
echo "Run this script from a desktop session, or set ZELKON_USE_XVFB=1 to use a virtual X server," >&2
echo "or render the pages without a display: $0 --screenshots shots" >&2
exit 1
