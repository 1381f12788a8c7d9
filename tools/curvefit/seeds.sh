#!/usr/bin/env bash
# Builds the curve-fit library, goes on with the rates of its seeds for so many minutes, and writes docs/seeds.md
# from what there is. One process, at the lowest priority.
set -eu
cd "$(dirname "$0")/../.."
tools/setup.sh native seeds
mkdir -p build
cmake --preset native-release >build/seeds-configure.log || { cat build/seeds-configure.log; exit 1; }
cmake --build --preset native-release --target CURVEFIT
python=/usr/bin/python3 # the one that Debian's packages belong to
# The matrices are small: threads would only wait for each other.
export OMP_NUM_THREADS=1 OPENBLAS_NUM_THREADS=1
nice -n 19 $python -B tools/curvefit/seeds.py --minutes "${1:-40}"
nice -n 19 $python -B tools/curvefit/seeds.py --minutes "${1:-40}" --conditions --records 100
$python -B tools/curvefit/seeds.py --report
