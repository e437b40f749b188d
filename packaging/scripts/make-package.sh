#!/usr/bin/env bash
# Builds the Debian package. Usage: make-package.sh BUILD_FOLDER
#
# Prints the package's path as its last line. The package is the same to the byte whenever and
# wherever it is built: times come from the last commit, and no path of the machine gets into it.
set -euo pipefail
# shellcheck source=packaging/scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

[ $# -eq 1 ] || fail "usage: make-package.sh BUILD_FOLDER"
root=$(project_root)
mkdir -p "$1"
build=$(cd "$1" && pwd -P)
cd "$root"

if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
    SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null) ||
        SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/debian/changelog -STimestamp)
fi
export SOURCE_DATE_EPOCH

# Debian's own flags for hardened and reproducible programs.
export DEB_BUILD_MAINT_OPTIONS="hardening=+all reproducible=+all"
CXXFLAGS="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)"
# The last map that fits a path counts, so the folder inside comes after the one around it.
CXXFLAGS+=" -ffile-prefix-map=$root=. -ffile-prefix-map=$build=build"
LDFLAGS=$(dpkg-buildflags --get LDFLAGS)
export CXXFLAGS LDFLAGS

umask 022
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
    -DTARVIX_BUILD_TESTS=OFF -DTARVIX_BUILD_BENCH=OFF -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
    -DTARVIX_WERROR="${TARVIX_WERROR:-OFF}" >"$build/configure.log" ||
    { cat "$build/configure.log" >&2; fail "CMake could not configure the package's build."; }
cmake --build "$build" -- --quiet || fail "the package's build failed (see above)."
(cd "$build" && cpack -G DEB >"$build/cpack.log" 2>&1) ||
    { cat "$build/cpack.log" >&2; fail "CPack could not make the package."; }
ls "$build"/tarvix_*.deb
