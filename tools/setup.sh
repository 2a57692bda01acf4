# What ./run, ./test and .ci/run share; sourced by bash. Sets `root`, the checkout's folder.
# Everything printed here goes to standard error: `./run mrv` leaves standard output to the tool.
# shellcheck shell=bash

set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)"

# mrv_fail TEXT: prints one line and ends the script.
mrv_fail() {
    printf '%s: %s\n' "$(basename "$0")" "$1" >&2
    exit 1
}

# mrv_packages SECTION: the packages of a section of packages.txt, one a line.
mrv_packages() {
    local line section=""
    while read -r line || [ -n "$line" ]; do
        line="${line%%#*}"
        line="${line%%[[:space:]]*}"
        case "$line" in
            "") ;;
            "["*"]") section="${line:1:-1}" ;;
            *) if [ "$section" = "$1" ]; then printf '%s\n' "$line"; fi ;;
        esac
    done < "$root/packages.txt"
}

# mrv_install SECTION...: installs what is missing of the sections' packages.
mrv_install() {
    local section name installed missing=()
    if ! command -v dpkg-query > /dev/null || ! command -v apt-get > /dev/null; then
        mrv_fail "this needs Debian 12 (apt-get was not found); packages.txt lists what to install"
    fi
    # One question for all: dpkg-query takes its time, and complains of names that it never met.
    installed=" $(dpkg-query -W -f '${db:Status-Status}:${Package} ' 2> /dev/null || true) "
    for section in "$@"; do
        while read -r name; do
            case "$installed" in
                *" installed:$name "*) ;;
                *) missing+=("$name") ;;
            esac
        done < <(mrv_packages "$section")
    done
    if [ "${#missing[@]}" -eq 0 ]; then return; fi

    printf 'Installing Debian packages: %s\n' "${missing[*]}" >&2
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo > /dev/null \
            || mrv_fail "cannot install ${missing[*]}: neither root nor sudo is at hand"
        as_root=(sudo)
    fi
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y)
    # One source of many out of reach is no reason to give up: the packages may come from another.
    "${apt[@]}" update >&2 || printf 'apt-get update failed; trying what is known\n' >&2
    "${apt[@]}" install --no-install-recommends "${missing[@]}" >&2 \
        || mrv_fail "apt-get could not install ${missing[*]}; the lines above say why"
}

# mrv_build PRESET [TARGET...]: configures where needed and builds all, or the targets. Several at once take turns.
# With MRV_QUIET=1 nothing is printed but what goes wrong and what configuring says.
mrv_build() {
    local preset="$1" dir="$root/build/$1" home=""
    shift
    case "$root" in
        *"'"*) mrv_fail "the path $root holds an apostrophe, which ninja's dependency files cannot; move the checkout" ;;
    esac
    mkdir -p "$dir"
    # Closed for the children below: one that outlives them would keep the lock.
    exec 9> "$dir/.lock"
    flock 9
    if [ -f "$dir/CMakeCache.txt" ]; then
        home="$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$dir/CMakeCache.txt")"
    fi
    # A build folder that was moved or copied with its checkout still points at the old place.
    if [ ! -f "$dir/build.ninja" ] || [ "$home" != "$root" ]; then
        (cd "$root" && cmake --fresh --preset "$preset") >&2 9>&- || mrv_fail "configuring failed"
    fi
    if [ "${MRV_QUIET:-0}" = 1 ]; then
        ninja -C "$dir" --quiet "$@" 2>&1 9>&- | sed '/^ninja: no work to do\.$/d' >&2 9>&-
    else
        ninja -C "$dir" "$@" >&2 9>&-
    fi || mrv_fail "building failed"
    exec 9>&-
}
