#!/usr/bin/env bash
# Builds every fuzz target with clang's fuzzer and sanitizers and runs each for a time (60 s unless told).
set -eu
cd "$(dirname "$0")/.."
tools/setup.sh native fuzz
seconds=${1:-60}
mkdir -p build
cmake --preset fuzz >build/fuzz-configure.log || { cat build/fuzz-configure.log; exit 1; }
cmake --build --preset fuzz
for target in build/fuzz/bin/zx_fuzz_*; do
    name=$(basename "$target")
    corpus=build/fuzz/corpus/$name
    mkdir -p "$corpus"
    # Of this target's name, or of the folder that holds the target.
    short=${name#zx_fuzz_}
    seeds=$(find fuzz -type d \( -path "*/corpus/$short" -o -path "fuzz/$short/corpus" \) | head -n 1)
    [ -n "$seeds" ] || seeds=$(find fuzz -path "fuzz/*/${short}_fuzzer.cpp" -printf '%h/corpus\n' | head -n 1)
    [ -d "${seeds:-none}" ] || seeds=
    echo "--- $name, $seconds s"
    # shellcheck disable=SC2086  # no seeds, no argument
    "$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=4096 -print_final_stats=1 "$corpus" $seeds 2>&1 | tail -n 8
done
