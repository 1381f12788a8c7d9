#!/bin/bash
# run-wine.sh PROGRAM [ARGUMENT...]
#
# Runs a Windows program under Wine with everything of its own and gives its output and exit code:
# a prefix (made on first use as "wine" in the build folder), a display where DISPLAY is not set,
# and a time limit. Serves as CMAKE_CROSSCOMPILING_EMULATOR.
#
#   ZX_WINE_PREFIX   the prefix to use; several programs may share one
#   ZX_WINE_TIMEOUT  seconds until the program is ended and 124 is given (default 900)
#   ZX_WINE_KEEP     if not empty, the prefix's server stays for the next program
#   DISPLAY          an X display to use; without one, a virtual one is started and ended here
set -u

if [ $# -lt 1 ]; then
    echo "usage: $0 PROGRAM [ARGUMENT...]" >&2
    exit 2
fi
program=$1
shift
if [ ! -f "$program" ]; then
    echo "$0: no such program: $program" >&2
    exit 127
fi

if [ -z "${ZX_WINE_PREFIX:-}" ]; then
    folder=$(cd "$(dirname "$program")" && pwd)
    ZX_WINE_PREFIX=${folder%/bin}/wine
fi
export WINEPREFIX=$ZX_WINE_PREFIX
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree,mshtml="
unset WINEARCH

scratch=$(mktemp -d) || exit 2
xvfb_pid=
wine_pid=
started_server=

# shellcheck disable=SC2317 # called by the trap
clean_up() {
    exec 9>&-
    if [ -n "$wine_pid" ] && kill -0 "$wine_pid" 2>/dev/null; then
        kill -TERM -- "-$wine_pid" 2>/dev/null || kill -TERM "$wine_pid" 2>/dev/null
    fi
    if [ -n "$started_server" ] && [ -z "${ZX_WINE_KEEP:-}" ]; then
        # Another run that shares the prefix may still need the server: the last one ends it.
        flock -n -x "$WINEPREFIX.users" wineserver -k 2>/dev/null
    fi
    if [ -n "$xvfb_pid" ]; then
        kill "$xvfb_pid" 2>/dev/null
        wait "$xvfb_pid" 2>/dev/null
    fi
    rm -rf "$scratch"
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

start_display() {
    mkfifo "$scratch/display"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$scratch/display" \
        >"$scratch/xvfb.log" 2>&1 &
    xvfb_pid=$!
    local number=
    read -r -t 30 number <"$scratch/display"
    if [ -z "$number" ]; then
        echo "$0: no virtual display:" >&2
        cat "$scratch/xvfb.log" >&2
        exit 2
    fi
    export DISPLAY=:$number
}

# A 64-bit program needs a 64-bit prefix, which runs 32-bit programs as well.
program_bits() {
    local header
    header=$(od -An -tu4 -j60 -N4 "$program" | tr -d ' ')
    case $(od -An -tx2 -j$((header + 4)) -N2 "$program" | tr -d ' ') in
        8664) echo win64 ;;
        *) echo win32 ;;
    esac
}

make_prefix() {
    local made=$WINEPREFIX.new.$$
    rm -rf "$made"
    mkdir -p "$(dirname "$made")"
    if ! WINEPREFIX=$made WINEARCH=$(program_bits) wineboot -i >"$scratch/boot.log" 2>&1; then
        echo "$0: no Wine prefix:" >&2
        cat "$scratch/boot.log" >&2
        rm -rf "$made"
        exit 2
    fi
    # A crash must end the program, not wait in a dialog.
    WINEPREFIX=$made wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f \
        >/dev/null 2>&1
    WINEPREFIX=$made wineserver -w
    # Only with these fonts is the dialog font the real one, and with it the dialog units.
    find /usr/share/wine/fonts -name '*.ttf' -o -name '*.fon' |
        while read -r font; do cp "$font" "$made/drive_c/windows/Fonts/"; done
    mv -T "$made" "$WINEPREFIX"
}

[ -n "${DISPLAY:-}" ] || start_display
mkdir -p "$(dirname "$WINEPREFIX")"
exec 8>"$WINEPREFIX.lock"
flock 8
[ -d "$WINEPREFIX" ] || make_prefix
exec 8>&-
exec 9>"$WINEPREFIX.users"
flock -s 9
started_server=yes

# Wine's helpers keep an inherited output open, so it goes to a file and is printed afterwards. The
# program leads a process group of its own (set -m), which the time limit ends as a whole.
set -m
wine "$program" "$@" >"$scratch/output" 2>&1 </dev/null 9>&- &
wine_pid=$!
set +m
limit=${ZX_WINE_TIMEOUT:-900}
(
    sleep "$limit" &
    sleep_pid=$!
    trap 'kill "$sleep_pid" 2>/dev/null' TERM
    wait "$sleep_pid" && : >"$scratch/timeout" && kill -KILL -- "-$wine_pid"
) >/dev/null 2>&1 9>&- &
watchdog_pid=$!
wait "$wine_pid" 2>/dev/null
code=$?
wine_pid=
kill "$watchdog_pid" 2>/dev/null
wait "$watchdog_pid" 2>/dev/null
cat "$scratch/output"
if [ -e "$scratch/timeout" ]; then
    echo "$0: ended after $limit seconds: $program" >&2
    code=124
fi
exec 9>&-
exit "$code"
