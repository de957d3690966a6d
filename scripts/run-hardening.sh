#!/bin/sh
# The second half of CI, after scripts/run-tests.sh: builds the whole suite once more with
# AddressSanitizer and UndefinedBehaviorSanitizer (clang, which also builds the fuzz
# targets in the same tree), runs every test under the sanitizers, then runs each fuzz
# target for FUZZ_SECONDS (default 30). Fails on any sanitizer report or fuzzer finding.
set -eu
cd "$(dirname "$0")/.."
sh scripts/install-build-deps.sh clang libclang-rt-dev
start=$(date +%s)
fuzz_seconds=${FUZZ_SECONDS:-30}

rm -rf build-hardening
launcher=
command -v ccache >/dev/null && launcher=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache
# -O1 with line tables: quick to build, still readable stack traces.
CC=clang CXX=clang++ cmake -S . -B build-hardening -DZELKON_WERROR=ON -DZELKON_FUZZ=ON \
    -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS="-O1 -gline-tables-only" $launcher
cmake --build build-hardening -j"$(nproc)"
echo "hardening: built in $(($(date +%s) - start)) s"

# The installed-package test builds an unsanitized consumer against the sanitized
# library, which cannot link; it has run in the normal build.
(
    cd build-hardening
    export ASAN_OPTIONS=detect_leaks=1:strict_init_order=1
    export LSAN_OPTIONS="suppressions=$(pwd)/../scripts/lsan.supp:print_suppressions=0"
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
    QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)" -E '^install_consumer$'
)
echo "hardening: tests done after $(($(date +%s) - start)) s"

sh scripts/fuzz.sh build-hardening "$fuzz_seconds"
echo "hardening: finished in $(($(date +%s) - start)) s"
