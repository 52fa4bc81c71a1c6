#!/usr/bin/env bash
# Runs the fuzz targets for long, one after the other at the lowest priority:
#   scripts/fuzz-long.sh [seconds per target] [target ...]
# Each stops after the time or after 10 million executions, whichever comes first. The corpus
# grows in build/fuzz/corpus/<target>, crashes land in build/fuzz/crashes/<target>/, and the
# final statistics (executions, time, coverage, corpus) in build/fuzz/long-runs.log.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-3600}
shift || true
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(property_stream_fuzzer control_bag_fuzzer form_reader_fuzzer format_fuzzer text_reading_fuzzer)

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
log=build/fuzz/long-runs.log
for target in "${targets[@]}"; do
    binary=build/fuzz/fuzz/$target
    [ -x "$binary" ] || { echo "no fuzz target $target" >&2; exit 2; }
    corpus=build/fuzz/fuzz/corpus/$target
    crashes=build/fuzz/crashes/$target
    mkdir -p "$corpus" "$crashes"
    echo "== $target $(date -u +%FT%TZ) up to ${seconds}s" | tee -a "$log"
    nice -n 19 "$binary" -max_total_time="$seconds" -runs=10000000 -timeout=30 -rss_limit_mb=2048 \
        -print_final_stats=1 -artifact_prefix="$crashes/" "$corpus" "fuzz/seeds/$target" 2>&1 \
        | grep -E '^(stat::|Done|==[0-9]+==|SUMMARY|#[0-9]+ *DONE)' | tee -a "$log"
done
