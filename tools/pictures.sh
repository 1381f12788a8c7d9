#!/usr/bin/env bash
# Pictures of every page of every dialog, from real windows with frame and title: docs/pictures/dialogs. With
# ZX_PICTURE_SCALE=150 they go to build/pictures-150 instead, to be looked at; with ZX_PICTURE_ARGUMENTS the
# host is given more arguments, such as --read-only. tools/pictures.sh [ANALYSIS...]
set -u
cd "$(dirname "$0")/.." || exit 1
tools/setup.sh native windows pictures || exit 1
scale=${ZX_PICTURE_SCALE:-100}
out=$PWD/docs/pictures/dialogs
[ "$scale" = 100 ] && [ -z "${ZX_PICTURE_ARGUMENTS:-}" ] || out=$PWD/build/pictures-$scale
mkdir -p "$out" build
work=$(mktemp -d) || exit 1
xvfb=

# Ends what this script started, by id.
# shellcheck disable=SC2317  # called by the trap
clean_up() {
    WINEPREFIX=$prefix wineserver -k 2>/dev/null
    [ -n "$xvfb" ] && kill "$xvfb" 2>/dev/null
    rm -rf "$work"
}
prefix=$PWD/build/pictures-wine
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

cmake --preset win32 >build/pictures-build.log 2>&1 && cmake --build --preset win32 --target zxhost CURVEFIT FILTER GraphMT >>build/pictures-build.log 2>&1 ||
    { tail -n 40 build/pictures-build.log; exit 1; }
ZX_WINE_PREFIX=$prefix tools/run-wine.sh build/win32/bin/zxhost.exe list >"$work/list" || exit 1
export WINEPREFIX=$prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/display" >/dev/null 2>&1 &
xvfb=$!
read -r -t 30 number <"$work/display"
[ -n "${number:-}" ] || { echo "pictures: no virtual display"; exit 1; }
export DISPLAY=:$number
wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d $((96 * scale / 100)) /f >/dev/null 2>&1
wineserver -w

# One page: the dialog is opened on a desktop of its own, which draws frames, and what stands out from it is cut out.
shoot() {  # ANALYSIS NAME STEP...
    local analysis=$1 name=$2
    shift 2
    printf '%s\n' "$@" "wait 4000" cancel >"$work/steps"
    # shellcheck disable=SC2086  # the arguments are words
    (cd build/win32/bin && wine explorer /desktop="zx$name,1024x768" zxhost.exe ${ZX_PICTURE_ARGUMENTS:-} $recording run "$analysis" \
        --script "Z:${work//\//\\}\\steps" --store "Z:${work//\//\\}\\store") >"$work/log" 2>&1 &
    local run=$!
    local tries
    for tries in $(seq 40); do
        sleep 0.5
        import -window root "$work/shot.png" 2>/dev/null || continue
        convert "$work/shot.png" -bordercolor "$(convert "$work/shot.png" -format '%[pixel:p{1,1}]' info:)" -border 1 -trim \
            +repage "$work/cut.png"
        # The window stands when two pictures in turn show the same, larger than a message.
        [ "$tries" -gt 1 ] && cmp -s <(convert "$work/cut.png" rgb:-) <(convert "$work/last.png" rgb:- 2>/dev/null) &&
            [ "$(identify -format '%w' "$work/cut.png")" -gt 200 ] && break
        cp "$work/cut.png" "$work/last.png"
    done
    cp "$work/cut.png" "$out/$name.png"
    echo "  $name $(identify -format '%wx%h' "$out/$name.png")"
    wait "$run"
}

# An analysis, and behind a colon the recording that it is shown over where that is not the usual one.
while read -r spec pages; do
    analysis=${spec%%:*}
    recording=
    [ "$spec" = "$analysis" ] || recording="--recording ${spec#*:}"
    [ $# -eq 0 ] || [[ " $* " == *" $analysis "* ]] || continue
    for page in $pages; do
        case $page in
            -) shoot "$analysis" "${spec/:/-}" ;;
            *) shoot "$analysis" "$analysis-$(echo "$page" | tr 'A-Z_' 'a-z-')" "tab \"${page//_/ }\"" ;;
        esac
    done
done <<'END'
normalize Options Data
time-shift Options Data
force-values Options Data
adjust-baseline Options Data
leak-subtraction Options Data
resistance Options Data
sampling-rate -
current-voltage -
trace-vs-trace -
subtract-control -
curve-fit Function Advanced Seed_Values Data
filter Options Data
power-spectrum Options Data
correlation Options Data
histogram Options Data
arithmetic -
arithmetic:sheet -
new-column:sheet -
measurement Measurements Output Data
END
