#!/usr/bin/env bash
# Follows the README on a bare Debian 12: a clone of the checked-out commit, ./run with and without a
# display, ./test; then what ./run says where the surroundings are bad. Needs root, debootstrap, and
# the tools of the Debian package's check. Usage: check-bare.sh [WORK_FOLDER]
#
# Logs, and pictures of the window, are left in WORK_FOLDER (build/bare without).
set -euo pipefail
# shellcheck source=packaging/scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"
# shellcheck source=packaging/scripts/bare-root.sh
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/bare-root.sh"
# shellcheck source=packaging/scripts/window.sh
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/window.sh"
make_bare_root
own_namespaces "$@"
cd "$(project_root)"

work=${1:-build/bare}
mkdir -p "$work"
work=$(cd "$work" && pwd -P)
place=$(mktemp -d)
trap 'stop_virtual_screen; unmount_bare_root "$place"' EXIT
project=/home/tarvix
unset DISPLAY WAYLAND_DISPLAY

# readme NAME COMMAND...: runs a command of the README in the clone. Its whole output is kept as
# NAME.log and shown; its time and the size of the root afterwards are noted.
rm -f "$work/times.txt"
readme() {
    local name=$1 begin=$SECONDS status=0
    shift
    say "-- $* ($name)"
    in_bare_root "$place" "$project" "$@" 2>&1 | tee "$work/$name.log" || status=$?
    printf '%-20s %4d s, the root has grown by %s\n' "$name" $((SECONDS - begin)) \
        "$(du -shx "$place/changes" | cut -f 1)" >>"$work/times.txt"
    return "$status"
}

# The window with what is installed for it alone: it comes up, in a proportional font.
run_with_display() {
    local window program fonts
    start_virtual_screen
    readme run-with-display ./run &
    window=$(wait_for_main_window $! 900) || fail "./run showed no window."
    import -window "$window" "$work/window.png"
    # The files of the fonts that it shows are open in it.
    program=$(pgrep -x tarvix)
    fonts=$(grep -oE '/[^ ]*/fonts/[^ ]*' "/proc/$program/maps" | sort -u) || true
    close_window "$window" 60
    wait_for_end $! 60 || fail "./run ended with an error."
    stop_virtual_screen
    unset DISPLAY
    say "The window's fonts: $fonts"
    if [ -z "$fonts" ] || grep -qi mono <<<"$fonts"; then
        fail "the window's font is not a proportional one that the list of packages brings."
    fi
}

run_without_display() {
    readme run-without-display ./run || fail "./run without a display ended with an error."
    cp "$place/tree$project/build/example-run.png" "$work/"
    grep -qE '^ +Flow Rate +142\.3 ' "$work/run-without-display.log" ||
        fail "the example run did not give its flow rate."
    readme run-again ./run || fail "./run ended with an error the second time."
    if grep -qi ninja "$work/run-again.log"; then fail "the second ./run speaks of ninja."; fi
}

run_tests() {
    readme test ./test || fail "./test ended with an error."
    tail -n 1 "$work/test.log" | grep -qE '^Passed: ([0-9]+) of \1 tests; 0 skipped; none failed\.$' ||
        fail "./test did not pass every test, skipping none."
}

# expect NAME TEXT PLACE FOLDER COMMAND...: the command ends with an error, and says one line of its
# own, with TEXT in it, last.
expect() {
    local name=$1 text=$2 status=0
    shift 2
    in_bare_root "$@" >"$work/$name.log" 2>&1 || status=$?
    [ "$status" -ne 0 ] || fail "$name: ./run ended as if all were well."
    if ! tail -n 1 "$work/$name.log" | grep -E "^Stopped: .*$text" ||
        [ "$(grep -c '^Stopped:' "$work/$name.log")" -ne 1 ]; then
        tail -n 5 "$work/$name.log" >&2
        fail "$name: ./run did not say what to do."
    fi
}

# Nothing of what ./run needs is there yet.
bad_surroundings_before() {
    expect no-network 'network' "$place" "$project" unshare --net ./run
    in_bare_root "$place" / git clone --quiet file:///srv/tarvix.git /home/guest
    in_bare_root "$place" / chown -R 1000:1000 /home/guest
    expect no-sudo 'As root: apt-get install' "$place" /home/guest \
        setpriv --reuid 1000 --regid 1000 --clear-groups ./run
    # Another distribution: no package tools of Debian, or a package source without the packages.
    expect other-system 'packaging/debian-packages.txt' "$place" "$project" \
        sh -c 'mv /usr/bin/dpkg-query /srv/; ./run; status=$?; mv /srv/dpkg-query /usr/bin/; exit $status'
    expect other-release 'made for Debian 12' "$place" "$project" \
        sh -c 'cp /etc/apt/sources.list /srv/; : >/etc/apt/sources.list; ./run; status=$?
               mv /srv/sources.list /etc/apt/; exit $status'
}

# A full disk: for the packages, and, where these are there, for the build.
full_disk_for_packages() {
    local small
    small=$(mktemp -d)
    mount_bare_root "$small" 150M
    clone_into "$small"
    expect full-disk-packages 'disk is full' "$small" "$project" ./run
    unmount_bare_root "$small"
}

full_disk_for_build() {
    mkdir -p "$place/tree/mnt/small"
    mount -t tmpfs -o size=25M tarvix "$place/tree/mnt/small"
    in_bare_root "$place" / git clone --quiet file:///srv/tarvix.git /mnt/small/tarvix
    expect full-disk-build 'disk is full' "$place" /mnt/small/tarvix ./run
    umount "$place/tree/mnt/small"
}

mount_bare_root "$place"
clone_into "$place"
bad_surroundings_before
full_disk_for_packages
keep_packages "$place"
run_with_display
run_without_display
full_disk_for_build
run_tests
cat "$work/times.txt"
