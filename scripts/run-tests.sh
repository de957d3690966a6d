#!/bin/sh
# Sets up a fresh Debian 12 machine, builds Zelkon from clean and runs the whole test suite.
# The build uses Debian's compiler flags and the /usr prefix, as the packages do, so that CI
# can package the very build it has tested (scripts/run-package.sh build-tests).
set -eu
cd "$(dirname "$0")/.."
sh scripts/install-build-deps.sh
rm -rf build-tests
export DEB_BUILD_MAINT_OPTIONS=hardening=+bindnow
CXXFLAGS="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)" \
LDFLAGS="$(dpkg-buildflags --get LDFLAGS)" \
    cmake -S . -B build-tests -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr -DZELKON_WERROR=ON
cmake --build build-tests -j"$(nproc)"
cd build-tests
QT_QPA_PLATFORM=offscreen ctest --output-on-failure
