#!/bin/sh
# Installs what building and testing Zelkon needs on Debian 12.
set -eu
SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update
$SUDO apt-get install -y --no-install-recommends \
    cmake g++ make \
    qtbase5-dev libqt5xmlpatterns5-dev libqt5svg5-dev qttools5-dev \
    "$@"
