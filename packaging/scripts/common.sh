# Shared by ./run, ./test, .ci/run and the scripts below packaging/. Sourced by bash, never run.
# shellcheck shell=bash

# The folder that holds the project, whatever folder the caller stands in.
project_root() {
    cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P
}

say() {
    printf '%s\n' "$*"
}

fail() {
    printf 'Stopped: %s\n' "$*" >&2
    exit 1
}

# Runs a command as root: directly for root, through sudo for anybody else.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1; then
        sudo "$@"
    else
        fail "root is needed for '$*', and there is no sudo. Run that as root, then try again."
    fi
}

# Prints the packages of a section of debian-packages.txt and of every section above it.
packages_for() {
    local section=$1 line current="" found=""
    while IFS= read -r line; do
        line=${line%%#*}
        line=${line//[[:space:]]/}
        case $line in
            "") ;;
            "["*)
                [ "$current" = "$section" ] && return 0
                current=${line//[\[\]]/}
                [ "$current" = "$section" ] && found=yes
                ;;
            *) say "$line" ;;
        esac
    done <"$(project_root)/packaging/debian-packages.txt"
    [ -n "$found" ] || fail "debian-packages.txt has no section '$section'."
}

# Prints those of the named packages that are not installed.
missing_packages() {
    local installed package
    # dpkg-query fails when it does not know one of them; what it prints still holds for the rest.
    installed=$(dpkg-query --show --showformat '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null) ||
        true
    for package in "$@"; do
        grep -qxF "$package installed" <<<"$installed" || say "$package"
    done
}

# Installs what is missing of a section of debian-packages.txt; asks nothing, and does nothing where
# nothing is missing.
install_packages() {
    local wanted missing
    if ! command -v dpkg-query >/dev/null 2>&1; then
        need_tools
        return 0
    fi
    mapfile -t wanted < <(packages_for "$1")
    [ "${#wanted[@]}" -gt 0 ] || fail "no packages found for '$1'."
    mapfile -t missing < <(missing_packages "${wanted[@]}")
    [ "${#missing[@]}" -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null 2>&1; then
        fail "packages are missing, and there is no sudo to install them. As root: apt-get install" \
            "${missing[*]}"
    fi
    say "Installing ${#missing[@]} Debian packages: ${missing[*]}"
    apt_get update
    apt_get -y install --no-install-recommends "${missing[@]}"
}

# Where packages are not Debian's, those that are needed to begin with are asked for by their tools.
need_tools() {
    local tool
    for tool in cmake c++ ninja; do
        command -v "$tool" >/dev/null 2>&1 ||
            fail "there is no $tool here, and no apt to install it. Install what" \
                "packaging/debian-packages.txt names, as your system calls it, then try again."
    done
}

# apt-get, silent but for one line that says what to do when it does not work.
apt_get() {
    local log=build/apt.log
    mkdir -p build
    as_root env DEBIAN_FRONTEND=noninteractive LC_ALL=C apt-get -qq -o Dpkg::Use-Pty=0 \
        -o DPkg::Lock::Timeout=300 -o APT::Update::Error-Mode=any "$@" \
        </dev/null >"$log" 2>&1 && return 0
    if disk_is_full || grep -qE "No space left|enough free space" "$log"; then
        fail "the disk is full: the packages do not fit. Make room on it (df -h), then try again."
    elif grep -qE 'Unable to locate package|has no installation candidate|unmet dep' "$log"; then
        fail "the package source of this system lacks what is needed; it is made for Debian 12." \
            "On another system, install what packaging/debian-packages.txt names by hand. See $log."
    elif grep -qE 'resolving|resolve|[Cc]onnect|Failed to fetch|timed out|unreachable' "$log"; then
        fail "the package source cannot be reached. Connect this machine to the network (or install" \
            "what packaging/debian-packages.txt names), then try again. See $log."
    fi
    fail "apt-get $1 did not work: $(grep -m 1 '^E:' "$log" || tail -n 1 "$log"). See $log."
}

# Whether less than 20 MB are left for this folder or for the system's packages.
disk_is_full() {
    df -P -k . /var | awk 'NR > 1 && $4 < 20480 { full = 1 } END { exit !full }'
}

# Ends after a build that did not work, with the reason where it is the disk.
fail_build() {
    if disk_is_full; then
        fail "the disk is full: the build does not fit. Make room on it (df -h), then try again."
    fi
    fail "$1"
}

# Lets the compiler cache help where there is one.
use_compiler_cache() {
    if [ -z "${CMAKE_CXX_COMPILER_LAUNCHER+set}" ] && command -v ccache >/dev/null 2>&1; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
        # What one clone has compiled another one finds.
        CCACHE_BASEDIR=$(project_root)
        export CCACHE_BASEDIR CCACHE_NOHASHDIR=yes
    fi
}

# Starts an X server without a screen, and openbox as its window manager, and sets DISPLAY. Both
# report that they are ready through a pipe, so nothing is waited for longer than it takes.
# stop_virtual_screen ends them; the caller sets it as its exit trap.
virtual_screen_pids=()
start_virtual_screen() {
    local folder number=""
    folder=$(mktemp -d) || fail "no temporary folder."
    mkfifo "$folder/screen" "$folder/manager"

    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset \
        3>"$folder/screen" >"$folder/log" 2>&1 &
    virtual_screen_pids+=($!)
    read -r number <"$folder/screen" || { cat "$folder/log" >&2; fail "Xvfb did not start."; }
    export DISPLAY=":$number"

    openbox --sm-disable --startup "sh -c 'echo ready >$folder/manager'" >"$folder/log" 2>&1 &
    virtual_screen_pids+=($!)
    read -r _ <"$folder/manager" || { cat "$folder/log" >&2; fail "openbox did not start."; }
    rm -r "$folder"
}

stop_virtual_screen() {
    local index
    for ((index = ${#virtual_screen_pids[@]} - 1; index >= 0; index--)); do
        kill "${virtual_screen_pids[index]}" 2>/dev/null || true
        wait "${virtual_screen_pids[index]}" 2>/dev/null || true
    done
    virtual_screen_pids=()
}
