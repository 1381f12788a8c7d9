#!/usr/bin/env bash
# Shows the dialogs at work: opens the example host on a recording, works Normalize with real mouse and keys,
# and saves a picture of each step under build/demo. On a machine without a display it starts a virtual one;
# where Windows tools cannot be had it plays the same session by script on the in-memory window system.
set -u
cd "$(dirname "$0")/.." || exit 1
root=$PWD
out=$root/build/demo
mkdir -p "$out"
rm -f "$out"/*.png "$out"/*.txt "$out"/*.ini
pids=()
helpers=

# Ends what this script started, by id.
# shellcheck disable=SC2317  # called by the trap
clean_up() {
    local pid
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
    if [ -n "$helpers" ]; then
        # Another run that shares the prefix may still need the server.
        exec 9>&-
        WINEPREFIX=$prefix flock -n -x "$prefix.users" wineserver -k 2>/dev/null
    fi
    [ -n "${xvfb:-}" ] && kill "$xvfb" 2>/dev/null
    return 0
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

build() {  # PRESET TARGET...
    local preset=$1
    shift
    cmake --preset "$preset" >"$out/$preset-configure.txt" 2>&1 || { cat "$out/$preset-configure.txt"; exit 1; }
    cmake --build --preset "$preset" --target "$@" >"$out/$preset-build.txt" 2>&1 || { tail -n 40 "$out/$preset-build.txt"; exit 1; }
    rm -f "$out/$preset-configure.txt" "$out/$preset-build.txt"
}

by_script() {  # WHY
    echo "demo: $1"
    echo "demo: playing host/examples/normalize.script without a display"
    tools/setup.sh native || exit 1
    build native-release zxhost
    build/native-release/bin/zxhost run normalize --script host/examples/normalize.script --store "$out/settings.ini"
    exit $?
}

tools/setup.sh native || exit 1
reason=$(tools/setup.sh windows pictures 2>&1 | tee /dev/stderr | tail -n 1)
for tool in wine i686-w64-mingw32-g++-posix xdotool import Xvfb; do
    command -v "$tool" >/dev/null || by_script "no pictures, since there is no $tool here ($reason)"
done

echo "demo: building the example host"
build win32 zxhost
prefix=$root/build/win32/wine
# Makes the prefix where there is none yet.
ZX_WINE_PREFIX=$prefix tools/run-wine.sh build/win32/bin/zxhost.exe list >"$out/list.txt" || exit 1

if [ -z "${DISPLAY:-}" ]; then
    mkfifo "$out/display"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$out/display" >/dev/null 2>&1 &
    xvfb=$!
    read -r -t 30 number <"$out/display"
    rm -f "$out/display"
    [ -n "${number:-}" ] || { echo "demo: no virtual display"; exit 1; }
    export DISPLAY=:$number
    echo "demo: virtual display $DISPLAY"
fi
exec 9>"$prefix.users"
flock -s 9
export WINEPREFIX=$prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="

# The host keeps its settings where the user's own runs find them again.
start_host() {
    helpers=yes
    (cd build/win32/bin && exec wine zxhost.exe "$@") >"$out/host.txt" 2>&1 </dev/null 9>&- &
    pids+=($!)
    host=$!
}

window() {  # TITLE: waits for a window that is shown and prints its number
    local id
    for _ in $(seq 150); do
        id=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1)
        if [ -n "$id" ]; then echo "$id"; return 0; fi
        sleep 0.2
    done
    echo "demo: no window \"$1\" appeared" >&2
    import -window root "$out/failed.png"
    return 1
}

step=0
picture() {  # WHAT
    step=$((step + 1))
    sleep 0.7
    import -window root "$out/$(printf '%02d' $step)-$1.png"
    echo "  $(printf '%02d' $step) $1"
}

# The mouse to a place in a window, in pixels from its corner, and a click there.
click() {  # WINDOW X Y
    xdotool mousemove --window "$1" "$2" "$3"
    sleep 0.2
    xdotool click 1
    sleep 0.3
}

# The same for a control of a dialog: its middle in dialog units as the template has it. A unit is 6/4 by
# 13/8 pixels; the pages lie this far within the dialog.
click_units() {  # WINDOW X Y
    click "$1" $(($2 * 6 / 4)) $(($3 * 13 / 8))
}
click_page() {  # WINDOW X Y
    click "$1" $((15 + $2 * 6 / 4)) $((33 + $3 * 13 / 8))
}

press() {
    xdotool key --clearmodifiers "$1"
    sleep 0.3
}

wait_closed() {  # TITLE
    for _ in $(seq 100); do
        [ -z "$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null)" ] && return 0
        sleep 0.2
    done
    echo "demo: the window \"$1\" does not close"
    return 1
}

open_normalize() {
    click "$main" 70 271
    dialog=$(window Normalize) || exit 1
}

close_host() {
    xdotool windowfocus "$main"
    press alt+F4
    for _ in $(seq 100); do kill -0 "$host" 2>/dev/null || return 0; sleep 0.2; done
    echo "demo: the host does not close"
    return 1
}

settings="Z:${out//\//\\}\\settings.ini"
echo "demo: first session"
start_host --store "$settings"
main=$(window zxhost) || exit 1
picture recording
xdotool mousemove --window "$main" 746 20 mousedown 1
sleep 0.2
for x in 700 650 600 560; do xdotool mousemove --window "$main" "$x" 24; sleep 0.1; done
xdotool mouseup 1
picture cursor-dragged
open_normalize
picture normalize-opened
click_page "$dialog" 18 37
picture regions-chosen-by-mouse
press alt+b
press Down
press Tab
press Down
press Down
picture regions-set-by-keys
click "$dialog" 91 22
picture data-page
click_page "$dialog" 12 48
press alt+a
picture all-sweeps-selected
click_units "$dialog" 279 236
wait_closed Normalize || exit 1
picture records-and-store
close_host || exit 1
cat "$out/host.txt"
mv "$out/host.txt" "$out/first-session.txt"

echo "demo: second session"
start_host --store "$settings"
main=$(window zxhost) || exit 1
open_normalize
picture settings-found-again
click "$dialog" 40 22
picture options-found-again
press Escape
wait_closed Normalize || exit 1
close_host || exit 1
mv "$out/host.txt" "$out/second-session.txt"
grep -m1 '^result' "$out/second-session.txt"

if ! tr -d '\r' <"$out/settings.ini" | grep -q '^ePeakRegion=2$'; then
    echo "demo: the settings are not what was chosen:"
    cat "$out/settings.ini"
    exit 1
fi
echo "demo: pictures and records are in build/demo"
