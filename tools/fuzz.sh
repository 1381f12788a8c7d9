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
    seeds=$(find fuzz -type d -path "*/corpus/${name#zx_fuzz_}" -o -type d -path "fuzz/${name#zx_fuzz_}/corpus" | head -n 1)
    echo "--- $name, $seconds s"
    # shellcheck disable=SC2086  # no seeds, no argument
    "$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=4096 -print_final_stats=1 "$corpus" $seeds 2>&1 | tail -n 8
done
