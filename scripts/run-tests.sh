#!/bin/sh
# Sets up a fresh Debian 12 machine, builds Zelkon from clean and runs the whole test suite.
set -eu
cd "$(dirname "$0")/.."
sh scripts/install-build-deps.sh
rm -rf build-tests
cmake -S . -B build-tests -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZELKON_WERROR=ON
cmake --build build-tests -j"$(nproc)"
cd build-tests
QT_QPA_PLATFORM=offscreen ctest --output-on-failure
