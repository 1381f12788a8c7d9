#!/usr/bin/env bash
# Builds and runs every benchmark, natively and as a 32-bit Windows program, pinned to one core. A program
# ends with 1 when one of its ratios misses its target: that is told at the end and fails nothing, since
# these machines are noisy. Anything else that goes wrong fails.
set -eu
cd "$(dirname "$0")/.."
tools/setup.sh native bench
mkdir -p build
missed=0

run_all() {  # PRESET COMMAND-PREFIX... ; the program's path is put behind the prefix
    local preset=$1 program result
    shift
    cmake --preset "$preset" >"build/$preset-configure.log" || { cat "build/$preset-configure.log"; exit 1; }
    # shellcheck disable=SC2046  # the names are words
    cmake --build --preset "$preset" --target $(cat "build/$preset/bench-programs.txt")
    while read -r program <&3; do
        [ -n "$program" ] || continue
        echo "--- $preset: $program"
        result=0
        "$@" "build/$preset/bin/$program$suffix" || result=$?
        [ $result -le 1 ] || { echo "$program ended with $result"; exit 1; }
        missed=$((missed + result))
    done 3<"build/$preset/bench-programs.txt"
}

suffix=
run_all bench taskset -c 0
if tools/setup.sh windows; then
    suffix=.exe
    export ZX_WINE_PREFIX=$PWD/build/bench-win32/wine
    run_all bench-win32 taskset -c 0 tools/run-wine.sh
else
    echo "--- bench-win32: skipped, no Windows tools"
fi
echo "programs with a missed target: $missed"
