#!/usr/bin/env bash
# differential.sh short|long [BASE]: builds what plays on both window systems and compares; see tests/differential.
set -u
cd "$(dirname "$0")/.." || exit 1
tools/setup.sh native && tools/setup.sh windows || exit 1
for system in native win32; do
    mkdir -p "build/$system"
    cmake --preset "$system" >"build/$system-configure.log" 2>&1 || { cat "build/$system-configure.log"; exit 1; }
    cmake --build --preset "$system" --target zx_differential | grep -vE '^\[[0-9]+/[0-9]+\]|no work to do'
    [ "${PIPESTATUS[0]}" = 0 ] || exit 1
done
exec python3 tests/differential/compare.py "$1" --base "${2:-1}"
