#!/usr/bin/env bash
# Installs what a task needs and this machine lacks, and says what it installs. Never asks a question.
#
#   tools/setup.sh native|windows|bench|fuzz|lint|mutate|seeds|equations|bitmaps|pictures ...
#
# Exit codes: 0 all there; 3 the packages of a group cannot be had (the reason is on standard error).
set -u

need_native="g++ cmake ninja-build make python3 googletest llvm binutils nlohmann-json3-dev"
need_windows="g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix wine wine64 wine32:i386 fonts-wine xvfb clang lld llvm"
need_bench="libbenchmark-dev libmuparser-dev libglib2.0-dev libsimpleini-dev pkg-config util-linux python3-pandas"
need_fuzz="clang libclang-rt-14-dev"
need_lint="clang-format python3 llvm binutils-mingw-w64-i686"
need_mutate="python3 python3-clang-14"
need_seeds="python3-numpy python3-scipy"
need_equations="python3-numpy python3-matplotlib python3-mpmath"
need_bitmaps="python3-numpy python3-scipy python3-matplotlib python3-pil"
need_pictures="imagemagick xdotool x11-utils xvfb"

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; elif command -v sudo >/dev/null; then sudo -n "$@"; else return 126; fi
}

installed() {
    dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null | grep -q '^installed$'
}

# Installs packages, with the two ways round a security index of the i386 architecture that is out of step
# with the amd64 one: rank the security suite below the main one, then also allow downgrades.
install() {
    local pins log
    pins=$(mktemp) && log=$(mktemp) || return 1
    local get=(as_root env DEBIAN_FRONTEND=noninteractive apt-get -y --no-install-recommends)
    chmod 644 "$pins"
    if "${get[@]}" install "$@" >"$log" 2>&1; then rm -f "$pins" "$log"; return 0; fi
    printf 'Package: *\nPin: release l=Debian-Security\nPin-Priority: 50\n' >"$pins"
    if "${get[@]}" -o Dir::Etc::preferences="$pins" install "$@" >"$log" 2>&1; then
        echo "setup: installed with the security suite ranked low (its i386 index is out of step)"
        rm -f "$pins" "$log"; return 0
    fi
    printf 'Package: *\nPin: release l=Debian\nPin-Priority: 1001\n' >"$pins"
    if "${get[@]}" -o Dir::Etc::preferences="$pins" --allow-downgrades install "$@" >"$log" 2>&1; then
        echo "setup: installed with downgrades to the main suite allowed"
        rm -f "$pins" "$log"; return 0
    fi
    tail -n 5 "$log" >&2
    rm -f "$pins" "$log"
    return 1
}

updated=
group() {
    local name=$1 missing=() package
    shift
    for package in "$@"; do installed "$package" || missing+=("$package"); done
    [ ${#missing[@]} = 0 ] && return 0
    if ! command -v apt-get >/dev/null; then
        echo "setup: no apt-get here; '$name' needs: ${missing[*]}" >&2
        return 3
    fi
    echo "setup: installing for '$name': ${missing[*]}"
    if [[ " ${missing[*]} " == *:i386* ]] && ! dpkg --print-foreign-architectures | grep -qx i386; then
        as_root dpkg --add-architecture i386 || return 3
        updated=
    fi
    # One index that fails is no reason to stop: what is needed may be in the others.
    [ -n "$updated" ] || { as_root apt-get update >/dev/null 2>&1; updated=1; }
    if ! install "${missing[@]}"; then
        echo "setup: could not install for '$name': ${missing[*]}" >&2
        return 3
    fi
}

status=0
for wanted in "$@"; do
    list=need_$wanted
    if [ -z "${!list:-}" ]; then echo "setup: unknown group '$wanted'" >&2; exit 2; fi
    # shellcheck disable=SC2086  # the lists are words
    group "$wanted" ${!list} || status=3
done
exit $status
