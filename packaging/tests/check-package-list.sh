#!/usr/bin/env bash
# Whether the list of packages is padded: in a bare Debian 12, with everything of the sections
# installed, each package is removed by itself, together with what only hangs on it, and what its
# section is for is tried. Says which packages nothing misses. Run by hand as root; takes long.
# Usage: check-package-list.sh [SECTION...]     run, demo and test without
set -euo pipefail
# shellcheck source=packaging/scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"
# shellcheck source=packaging/scripts/bare-root.sh
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/bare-root.sh"
make_bare_root
own_namespaces "$@"
cd "$(project_root)"

sections=("$@")
[ $# -gt 0 ] || sections=(run demo test)
work=build/package-list
rm -rf "$work"
mkdir -p "$work"
place=$(mktemp -d)
project=/home/tarvix
trap 'unmount_bare_root "$place"' EXIT

inside() {
    in_bare_root "$place" "$project" "$@"
}

# The packages that a section names itself.
own_packages() {
    awk -v wanted="[$1]" '/^\[/ { inside = $1 == wanted; next }
        inside && $1 !~ /^#/ && NF { print $1 }' packaging/debian-packages.txt
}

# What a section is for, with the packages as they are: nothing is installed.
# shellcheck disable=SC2016 # run inside
try_section() {
    case $1 in
        run)
            # Configured and built anew as far as a compiler's or a library's absence would show, and
            # started on a screen, in a proportional font, on both window systems.
            inside bash -c 'set -e; rm -rf build/run; cmake --preset run
                cmake --build build/run --target tarvix_ui_windows tarvix
                for platform in xcb wayland; do
                    ls /usr/lib/*/qt6/plugins/platforms | grep -q "$platform"
                done
                fc-match --format "%{family}\n" sans-serif | grep -v Mono
                fc-match --format "%{family}\n" "Courier New" | grep Mono'
            ;;
        demo) inside bash -c 'rm -rf build/run && sed "/^install_packages/d" run >run-as-it-is &&
                sed -i "s/^    install_packages/    :/" run-as-it-is && bash run-as-it-is' ;;
        test) inside bash -c 'set -e; cmake --preset dev; cmake --build --preset dev -- --quiet
                ctest --preset dev --parallel 2 >tests.log 2>&1 || { tail tests.log; exit 1; }
                ! grep "Skipped" tests.log' ;;
        *) fail "what section [$1] is for is not tried here." ;;
    esac
}

mount_bare_root "$place"
keep_packages "$place"
clone_into "$place"
last=${sections[-1]}
inside bash -c "source packaging/scripts/common.sh; install_packages '$last'"
needless=()
for section in "${sections[@]}"; do
    say "[$section] complete"
    try_section "$section" >"$work/$section.log" 2>&1 ||
        { tail -n 20 "$work/$section.log"; fail "[$section] does not work with all of its packages."; }
    for package in $(own_packages "$section"); do
        inside sh -c "apt-mark auto '$package'; apt-get -qq -y autoremove --purge \
            -o APT::AutoRemove::RecommendsImportant=false \
            -o APT::AutoRemove::SuggestsImportant=false" >"$work/$package.log" 2>&1
        if inside dpkg-query --show --showformat '${db:Status-Status}' "$package" 2>/dev/null |
            grep -qx installed; then
            # What is used is named, whoever else brings it today.
            say "  $package: another package of the list brings it, too"
        elif try_section "$section" >>"$work/$package.log" 2>&1; then
            say "  $package: NOTHING MISSES IT"
            needless+=("$package")
        else
            say "  $package: needed"
        fi
        inside sh -c "DEBIAN_FRONTEND=noninteractive apt-get -qq -y install \
            --no-install-recommends '$package'" >>"$work/$package.log" 2>&1
    done
done
[ "${#needless[@]}" -eq 0 ] || { say "Not missed: ${needless[*]}"; exit 1; }
say "Every package is needed."
