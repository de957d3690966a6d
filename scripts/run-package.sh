#!/bin/sh
# The last step of CI: builds the Debian packages (Release, without the tests), checks them
# with lintian, installs them on this machine and runs the installed programs from their
# installed paths. Needs root or sudo, as it installs into /usr.
#
# Given a build directory configured for /usr (CI passes build-tests, see run-tests.sh),
# it packages that build instead of building a new one.
set -eu
cd "$(dirname "$0")/.."
sh scripts/install-build-deps.sh dpkg-dev lintian desktop-file-utils appstream file
start=$(date +%s)
SUDO=
[ "$(id -u)" -eq 0 ] || SUDO=sudo

build=${1:-}
if [ -z "$build" ]; then
    build=build-pkg
    rm -rf build-pkg
    launcher=
    command -v ccache >/dev/null && launcher=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache
    # Debian's own compiler and linker flags (fortify, stack protector, relro, bind now), as
    # lintian expects them.
    export DEB_BUILD_MAINT_OPTIONS=hardening=+bindnow
    CXXFLAGS="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)" \
    LDFLAGS="$(dpkg-buildflags --get LDFLAGS)" \
        cmake -S . -B build-pkg -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
        -DZELKON_BUILD_TESTS=OFF $launcher
    cmake --build build-pkg -j"$(nproc)"
fi
rm -f "$build"/*.deb
(cd "$build" && cpack -G DEB)
echo "package: built in $(($(date +%s) - start)) s"

# Errors fail the build; warnings are shown and have been looked at.
lintian --fail-on error --tag-display-limit 0 "$build"/*.deb

# --reinstall: a machine that already has packages of this version (an earlier run) would
# otherwise keep its old libraries beside the new programs.
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y --reinstall ./"$build"/*.deb

examples=/usr/share/zelkon/examples
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
shots=$scratch/shots
/usr/bin/zelkon --device-root "$examples/device" --screenshots "$shots" "$examples/lunvex-kiosk.tavlocfg"
pages=$(find "$shots" -name '*.png' | wc -l)
if [ "$pages" -lt 6 ]; then
    echo "package: the installed zelkon rendered $pages pages, expected 6" >&2
    exit 1
fi
/usr/bin/zelkonctl --version
/usr/bin/zelkonctl check "$examples"/*.tavlocfg
# The development package: a host application builds against the installed libraries.
cmake -S tests/install/consumer -B "$scratch/consumer" >/dev/null
cmake --build "$scratch/consumer"
document=$(QT_QPA_PLATFORM=offscreen "$scratch/consumer/consumer")
case $document in
*'creator="zelkon"'*) ;;
*) echo "package: the consumer printed an unexpected document" >&2; exit 1 ;;
esac
desktop-file-validate /usr/share/applications/com.tavlo.Zelkon.desktop
appstreamcli validate --no-net /usr/share/metainfo/com.tavlo.Zelkon.metainfo.xml
echo "package: finished in $(($(date +%s) - start)) s"
