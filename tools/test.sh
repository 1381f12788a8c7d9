#!/usr/bin/env bash
# Builds and runs the suite on the systems named: native (headless window system, sanitizers), win32 and
# win64 (Windows programs under Wine). Closes with one line of counts over all of them.
set -u
cd "$(dirname "$0")/.." || exit 1
root=$PWD
mkdir -p build
passed=0 failed=0 skipped=0 broken=0 unsteady=0

# The tests in the source tree that a system must run; those over types or values count once.
tests_in_tree() {
    python3 tools/compare_tests.py "$1" names | wc -l
}

# Real windows share a desktop and a clock with all that runs on the machine. A few tests that fail there get a
# second run of their own; those that pass it count as passed and are named, those that fail it have failed.
run_again() {  # SYSTEM PROGRAM FILTER
    local folder=$root/build/$1 first=$f again
    (cd "$folder" && rm -f "reports/again.json" && ZX_WINE_PREFIX=$folder/wine ZX_WINE_TIMEOUT=600 \
        "$root/tools/run-wine.sh" "bin/$2.exe" --gtest_brief=1 "--gtest_filter=$3" \
        "--gtest_output=json:reports\\again.json")
    read -r again f _ < <(python3 tools/count_tests.py "$folder/reports/again.json")
    [ "$again" -gt 0 ] && [ "$f" = 0 ] || { f=$first; return; }
    echo "    passed in a second run: $3"
    p=$((p + again)) unsteady=$((unsteady + again)) result=0
}

run_program() {  # SYSTEM PROGRAM
    local system=$1 program=$2 folder=$root/build/$1 report list result p f s
    report=$folder/reports/$program.json
    list=$folder/reports/$program.list
    rm -f "$report" "$list"
    echo "--- $system: $program"
    case $system in
        native) "$folder/bin/$program" --gtest_list_tests >"$list"
                ASAN_OPTIONS=detect_leaks=1 timeout 1800 "$folder/bin/$program" --gtest_brief=1 \
                    --gtest_output=json:"$report" ;;
        # A Windows program takes its report's path relative to the folder that it starts in.
        *) (cd "$folder" && ZX_WINE_PREFIX=$folder/wine "$root/tools/run-wine.sh" "bin/$program.exe" \
                --gtest_list_tests | tr -d '\r' >"$list")
           (cd "$folder" && ZX_WINE_PREFIX=$folder/wine ZX_WINE_TIMEOUT=1800 "$root/tools/run-wine.sh" \
               "bin/$program.exe" --gtest_brief=1 "--gtest_output=json:reports\\$program.json") ;;
    esac
    result=$?
    read -r p f s < <(python3 tools/count_tests.py "$report")
    echo "    $p passed, $f failed, $s skipped"
    if [ "$system" != native ] && [ "$f" -ge 1 ] && [ "$f" -le 3 ]; then
        run_again "$system" "$program" "$(python3 tools/count_tests.py "$report" failures)"
    fi
    passed=$((passed + p)) failed=$((failed + f)) skipped=$((skipped + s))
    if [ $result != 0 ] && [ "$f" = 0 ]; then
        echo "    $program ended with $result"
        broken=1
    fi
}

run_system() {
    local system=$1 program
    echo "=== $system: build"
    cmake --preset "$system" >"build/$system-configure.log" 2>&1 || { cat "build/$system-configure.log"; return 1; }
    cmake --build --preset "$system" 2>&1 | grep -vE '^\[[0-9]+/[0-9]+\]' ; [ "${PIPESTATUS[0]}" = 0 ] || return 1
    mkdir -p "build/$system/reports"
    while read -r program; do
        [ -n "$program" ] && run_program "$system" "$program"
    done <"build/$system/test-programs.txt"
    python3 tools/compare_tests.py "$system" check "build/$system" || {
        echo "    the tests that ran are not those of the tree"
        return 1
    }
}

for system in "$@"; do
    if [ "$system" = native ]; then
        tools/setup.sh native || exit 1
    else
        said=$(tools/setup.sh windows 2>&1)
        [ -z "$said" ] || printf '%s\n' "$said"
        reason=$(printf '%s\n' "$said" | tail -n 1)
        reason=${reason:-no 32-bit cross compiler or no Wine on the path}
        if ! command -v wine >/dev/null || ! command -v i686-w64-mingw32-g++-posix >/dev/null; then
            count=$(tests_in_tree "$system")
            echo "=== $system: $count tests skipped, no Windows tools: $reason"
            skipped=$((skipped + count))
            continue
        fi
    fi
    run_system "$system" || broken=1
done

# Where both systems ran, random scenarios side by side count as one test.
case " $* " in
    *" native "*"win32 "*)
        if [ -x build/native/bin/zx_differential ] && [ -x build/win32/bin/zx_differential.exe ]; then
            echo "=== both window systems side by side"
            # A busy machine may keep one of them from going on in time; what differs twice does differ.
            if python3 tests/differential/compare.py short || python3 tests/differential/compare.py short; then
                passed=$((passed + 1))
            else
                failed=$((failed + 1))
            fi
        else
            echo "=== both window systems side by side: 1 test skipped, one of them was not built"
            skipped=$((skipped + 1))
        fi ;;
esac

[ $broken = 0 ] || { [ $failed -gt 0 ] || failed=1; }
[ $unsteady = 0 ] || echo "$unsteady of them in a second run"
echo "$passed passed, $failed failed, $skipped skipped"
[ $failed = 0 ]
