#!/usr/bin/env bash
# Checks the source tree: formatting, platform conditions where they do not belong, file lengths, includes against
# the arrows between the rooms, what the headless window system shows, and that both resource compilers make the
# same bytes of every template. --format rewrites instead of checking.
set -u
cd "$(dirname "$0")/.." || exit 1
mkdir -p build
tools/setup.sh lint || exit 1
# The headers of the resources are tables for the resource compilers.
sources=$(git ls-files '*.h' '*.cpp' ':!resources/')
if [ "${1:-}" = --format ]; then
    # shellcheck disable=SC2086  # a list of files
    exec clang-format -i $sources
fi
status=0

# shellcheck disable=SC2086
if ! clang-format --dry-run -Werror $sources 2>build/format.log; then
    grep -oE '^[^:]+:[0-9]+' build/format.log | sort -u | head -n 20
    echo "lint: not formatted; 'make format' mends it"
    status=1
fi

platform='^[[:space:]]*#[[:space:]]*(if|ifdef|ifndef|elif).*(_WIN32|_WIN64|__linux__|__MINGW|_MSC_VER|__unix__|__APPLE__)'
found=$(git grep -nE "$platform" -- '*.h' '*.cpp' ':!src/platform/' ':!include/ZXADLG.h' ':!include/zxadlg/headless.h' ':!include/zxadlg/CurveFit.h' ':!include/zxadlg/Filter.h' ':!include/zxadlg/Graph.h' ':!resources/')
if [ -n "$found" ]; then
    printf '%s\nlint: conditions on the platform belong in src/platform/ alone\n' "$found"
    status=1
fi

long=$(git ls-files '*.h' '*.cpp' | xargs wc -l | awk '$1 > 650 && $2 != "total" {print $2 ": " $1 " lines"}')
if [ -n "$long" ]; then
    printf '%s\nlint: a file of more than 650 lines holds two ideas\n' "$long"
    status=1
fi

if ! python3 tools/check_includes.py; then
    echo "lint: the arrows between the rooms stand in src/rooms.txt"
    status=1
fi
if ! (cd tools && python3 -B check_includes_test.py 2>../build/includes.log); then
    cat build/includes.log
    echo "lint: the check of the includes does not see what it should"
    status=1
fi
if ! python3 tools/headless_surface.py; then
    echo "lint: the headless system shows what is declared, called and exported, no more"
    status=1
fi

# A script that another one includes is a part of it.
included=$(git grep -h '#include ".*\.rc"' -- '*.rc' | sed 's/.*"\(.*\)".*/\1/')
for rc in $(git ls-files '*.rc'); do
    printf '%s\n' "$included" | grep -qx "$(basename "$rc")" && continue
    python3 tools/compare_resources.py "$rc" || status=1
done
[ $status = 0 ] && echo "lint: clean"
exit $status
