#!/usr/bin/env bash
# Checks what is installed: the data files, the Debian package, that it is built the same twice, and
# that it installs, starts and leaves nothing behind. Needs root, since it installs into the system.
# Usage: check-package.sh [WORK_FOLDER]
set -euo pipefail
# shellcheck source=packaging/scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"
# shellcheck source=packaging/scripts/window.sh
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/window.sh"
root=$(project_root)
cd "$root"

work=${1:-build/package}
rm -rf "$work"
mkdir -p "$work"
work=$(cd "$work" && pwd -P)
seconds_to_wait=60

program_pid=""
installed=""
clean_up() {
    if [ -n "$program_pid" ]; then kill "$program_pid" 2>/dev/null || true; fi
    stop_virtual_screen
    if [ -n "$installed" ]; then as_root dpkg --purge tarvix >/dev/null || true; fi
}
trap clean_up EXIT

check_data_files() {
    local version
    desktop-file-validate packaging/linux/tarvix.desktop || fail "the desktop entry has faults."
    appstreamcli validate --no-net packaging/linux/example.brindle.tarvix.metainfo.xml ||
        fail "the AppStream data have faults."
    LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 \
        man --warnings --encoding=UTF-8 --local-file packaging/linux/tarvix.1 \
        >/dev/null 2>"$work/man.log" || fail "man cannot show the manual page."
    [ ! -s "$work/man.log" ] || { cat "$work/man.log" >&2; fail "the manual page has faults."; }

    # The version is written by hand in five places; they agree.
    version=$(sed -nE 's/^ +VERSION ([0-9.]+)$/\1/p' CMakeLists.txt)
    [ -n "$version" ] || fail "no version found in CMakeLists.txt."
    grep -q "^tarvix ($version) " packaging/debian/changelog ||
        fail "the changelog does not begin with version $version."
    grep -q "<release version=\"$version\" " packaging/linux/*.metainfo.xml ||
        fail "the AppStream data do not name version $version."
    grep -q "\"Tarvix ${version%.0}\"" packaging/linux/tarvix.1 ||
        fail "the manual page does not name version ${version%.0}."
}

# Two builds in folders of different names, at different times, under another umask and time zone.
# Without precompiled headers and optimized, the compiler sees most; there are no warnings.
check_two_builds() {
    local first second
    export TARVIX_WERROR=ON
    first=$(CCACHE_DISABLE=1 packaging/scripts/make-package.sh "$work/one" | tail -n 1)
    second=$(umask 077 && CCACHE_DISABLE=1 TZ=Asia/Tokyo LC_ALL=C \
        packaging/scripts/make-package.sh "$work/another-folder" | tail -n 1)
    if ! cmp "$first" "$second"; then
        for package in "$first" "$second"; do
            dpkg-deb --raw-extract "$package" "$package.contents"
            (cd "$package.contents" && find . -type f -exec sha256sum {} + | sort -k 2) >"$package.sums"
        done
        diff "$first.sums" "$second.sums" >&2 || true
        fail "two builds of the package differ."
    fi
    package=$first
    say "Two builds of $(basename "$package") are the same to the byte."
}

check_contents() {
    local path
    dpkg-deb --fsys-tarfile "$package" | tar -t | sed 's,^\.,,' >"$work/contents"
    for path in /usr/bin/tarvix /usr/lib/tarvix/tarvix /usr/lib/tarvix/BrindleLogo.jpg \
        /usr/lib/tarvix/VeltraneLogo.jpg /usr/share/applications/tarvix.desktop \
        /usr/share/man/man1/tarvix.1.gz /usr/share/doc/tarvix/copyright \
        /usr/share/doc/tarvix/changelog.gz /usr/share/doc/tarvix/method.md \
        /usr/share/doc/tarvix/accuracy.md /usr/share/doc/tarvix/accuracy.svg \
        /usr/share/doc/tarvix/validation.md /usr/share/doc/tarvix/convergence.svg \
        /usr/share/doc/tarvix/steam.svg \
        /usr/share/icons/hicolor/scalable/apps/tarvix.svg \
        /usr/share/icons/hicolor/48x48/apps/tarvix.png; do
        grep -qxF "$path" "$work/contents" || fail "the package lacks $path."
    done
    # The manual page names no file that is not there.
    for path in $(grep -oE '/usr/[A-Za-z0-9/._-]+' packaging/linux/tarvix.1); do
        grep -qxF "$path" "$work/contents" || fail "the manual page names $path, which is not there."
    done
    dpkg-deb --field "$package" Depends | grep -q libqt6widgets6 ||
        fail "the package does not depend on the libraries that it uses."
    lintian --allow-root --fail-on error "$package" ||
        fail "lintian found errors."
}

# The files of the system that a package may add to.
system_files() {
    find /usr /etc /opt -xdev -not -path '*cache*' | sort
}

check_installed() {
    local window home command status=0
    if dpkg-query --show tarvix >/dev/null 2>&1; then
        fail "a package tarvix is installed already; remove it to run this check."
    fi
    system_files >"$work/before"
    installed=yes
    as_root dpkg --install "$package" >"$work/dpkg.log" || { cat "$work/dpkg.log" >&2; fail "dpkg."; }

    start_virtual_screen
    home=$work/home
    mkdir -m 700 "$home" "$work/runtime"
    command=$(sed -n 's/^Exec=//p' /usr/share/applications/tarvix.desktop)
    # In a session of its own, and not from the project's folder: the installed program finds what
    # it needs by itself.
    (cd / && HOME=$home XDG_RUNTIME_DIR=$work/runtime QT_QPA_PLATFORM=xcb \
        exec dbus-run-session -- sh -c "exec $command") &
    program_pid=$!
    window=$(wait_for_main_window "$program_pid" "$seconds_to_wait")
    say "Started by '$command': its main window is there."
    import -window "$window" "$work/installed-window.png"
    close_window "$window" "$seconds_to_wait"
    wait_for_end "$program_pid" "$seconds_to_wait" || status=$?
    program_pid=""
    [ "$status" -eq 0 ] || fail "the program ended with status $status."
    [ -z "$(find "$home" -type f -not -path '*/.cache/*')" ] ||
        fail "the program wrote into the home folder: $(find "$home" -type f)"

    as_root dpkg --purge tarvix >"$work/dpkg.log" || { cat "$work/dpkg.log" >&2; fail "dpkg."; }
    installed=""
    system_files >"$work/after"
    diff "$work/before" "$work/after" >&2 || fail "the removed package left traces (above)."
    say "Installed, started from its menu command, closed and removed without leftovers."
}

check_data_files
check_two_builds
check_contents
check_installed
