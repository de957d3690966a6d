#!/bin/sh
# Installs what building and testing Zelkon needs on Debian 12, plus any packages given as
# arguments. Does nothing when everything is installed already.
set -eu
packages="cmake g++ make dpkg-dev qtbase5-dev libqt5xmlpatterns5-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools $*"

missing=
for package in $packages; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

SUDO=
[ "$(id -u)" -eq 0 ] || SUDO=sudo
export DEBIAN_FRONTEND=noninteractive
echo "Installing:$missing"
$SUDO apt-get update
# shellcheck disable=SC2086
$SUDO apt-get install -y --no-install-recommends $missing
