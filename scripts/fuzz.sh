#!/bin/sh
# Runs the libFuzzer targets of a build configured with -DZELKON_FUZZ=ON (see docs/fuzzing.md).
#
#   scripts/fuzz.sh BUILD_DIR SECONDS [TARGET...]
#
# Runs each target (default: every fuzz_* in BUILD_DIR/fuzz) for SECONDS, as many at once
# as there are processors. New inputs go to BUILD_DIR/fuzz/corpus/NAME, crashes to
# BUILD_DIR/fuzz/findings/NAME-*, the log to BUILD_DIR/fuzz/logs/NAME.log. Exits non-zero
# when any target found a crash, a leak, a time-out or ran out of memory.
# FUZZ_RUNS=N stops each target after N inputs (SECONDS 0: no time limit).
set -eu
[ $# -ge 2 ] || { echo "usage: $0 BUILD_DIR SECONDS [TARGET...]" >&2; exit 2; }
source_dir=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "$1" && pwd)
seconds=$2
shift 2
targets="$*"
if [ -z "$targets" ]; then
    for binary in "$build"/fuzz/fuzz_*; do
        [ -f "$binary" ] && [ -x "$binary" ] && targets="$targets ${binary##*/fuzz_}"
    done
fi
[ -n "$targets" ] || { echo "no fuzz targets in $build/fuzz (configure with -DZELKON_FUZZ=ON)" >&2; exit 2; }

mkdir -p "$build/fuzz/findings" "$build/fuzz/logs"
export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=0}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}"

run_target() {
    name=$1
    dictionary="$source_dir/fuzz/$name.dict"
    [ -f "$dictionary" ] || dictionary="$source_dir/fuzz/xml.dict"
    mkdir -p "$build/fuzz/corpus/$name"
    seeds=
    [ -d "$source_dir/fuzz/corpus/$name" ] && seeds="$source_dir/fuzz/corpus/$name"
    limit=
    [ "$seconds" -gt 0 ] && limit="-max_total_time=$seconds"
    [ -n "${FUZZ_RUNS:-}" ] && limit="$limit -runs=$FUZZ_RUNS"
    # shellcheck disable=SC2086
    "$build/fuzz/fuzz_$name" $limit -max_len=1048576 -timeout=30 -rss_limit_mb=2048 \
        -dict="$dictionary" -artifact_prefix="$build/fuzz/findings/$name-" -print_final_stats=1 \
        "$build/fuzz/corpus/$name" $seeds >"$build/fuzz/logs/$name.log" 2>&1
}

failed=
running=0
jobs=$(nproc)
pids=
for name in $targets; do
    [ -f "$build/fuzz/fuzz_$name" ] || { echo "no target fuzz_$name" >&2; exit 2; }
    run_target "$name" &
    pids="$pids $!:$name"
    running=$((running + 1))
    if [ "$running" -ge "$jobs" ]; then
        for entry in $pids; do
            wait "${entry%%:*}" || failed="$failed ${entry#*:}"
        done
        pids=
        running=0
    fi
done
for entry in $pids; do
    wait "${entry%%:*}" || failed="$failed ${entry#*:}"
done

for name in $targets; do
    log="$build/fuzz/logs/$name.log"
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)
    coverage=$(grep -o 'cov: [0-9]*' "$log" | tail -n 1)
    echo "fuzz_$name: ${runs:-?} inputs, ${coverage:-cov: ?}"
done
if [ -n "$failed" ]; then
    for name in $failed; do
        echo "fuzz_$name FAILED; the end of $build/fuzz/logs/$name.log:" >&2
        tail -n 40 "$build/fuzz/logs/$name.log" >&2
    done
    exit 1
fi
