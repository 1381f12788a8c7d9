#!/usr/bin/env bash
# Builds and runs every benchmark, natively and as a 32-bit Windows program, pinned to one core.
set -eu
cd "$(dirname "$0")/.."
tools/setup.sh native bench
mkdir -p build
cmake --preset bench >build/bench-configure.log || { cat build/bench-configure.log; exit 1; }
cmake --build --preset bench
while read -r program; do
    [ -n "$program" ] || continue
    echo "--- native: $program"
    taskset -c 0 "build/bench/bin/$program"
done <build/bench/bench-programs.txt
if tools/setup.sh windows; then
    cmake --preset bench-win32 >build/bench-win32-configure.log || { cat build/bench-win32-configure.log; exit 1; }
    cmake --build --preset bench-win32
    while read -r program; do
        [ -n "$program" ] || continue
        echo "--- win32: $program"
        ZX_WINE_PREFIX=$PWD/build/bench-win32/wine taskset -c 0 tools/run-wine.sh "build/bench-win32/bin/$program.exe"
    done <build/bench-win32/bench-programs.txt
else
    echo "--- win32: skipped, no Windows tools"
fi
