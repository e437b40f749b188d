#!/usr/bin/env bash
# Builds Qt for the Windows program, static, from Debian's own source package, and keeps it.
#
# build-qt.sh           builds Qt where it is not there yet, and prints its folder as the last line
# build-qt.sh --find    prints the folder; fails where Qt is not built yet, and builds nothing
#
# The folder lies in ${TARVIX_CACHE:-${XDG_CACHE_HOME:-~/.cache}/tarvix}. Its name says what it was
# made from, so another Qt, compiler or option is another folder. TARVIX_JOBS says how many steps run
# at a time (all processors otherwise).
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
# shellcheck source=packaging/scripts/common.sh
source "$here/../scripts/common.sh"

cache=${TARVIX_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/tarvix}
# What the path of the sources is called inside of Qt, and the prefix that it is told.
neutral_source=/qt-source
neutral_prefix=/qt-windows

# Qt for Windows is built with the tools of the host's Qt, so it has to be the same version.
qt_version() {
    dpkg-query --show --showformat '${source:Version}\n' qt6-base-dev 2>/dev/null ||
        fail "qt6-base-dev is not installed."
}

options() {
    grep -v '^#' "$here/qt-options.txt" | grep .
}

qt_folder() {
    local version=$1 made_from
    made_from=$({
        options
        grep -v '^#' "$here/toolchain.cmake"
        x86_64-w64-mingw32-g++-posix --version
    } | sha256sum)
    say "$cache/qt-windows-${version//[^0-9a-z.]/-}-${made_from:0:12}"
}

# The machine's own package sources of this release, as lists of source packages in a folder of ours:
# nothing of the system's configuration is changed.
write_source_lists() {
    local folder=$1 codename file
    # shellcheck source=/dev/null
    codename=$(. /etc/os-release && say "$VERSION_CODENAME")
    mkdir -p "$folder/parts" "$folder/lists/partial" "$folder/cache"
    for file in /etc/apt/sources.list.d/*.sources; do
        [ -f "$file" ] || continue
        awk -v codename="$codename" '
            BEGIN { RS = ""; FS = "\n" }
            /(^|\n)Enabled:[ \t]*no/ { next }
            $0 !~ "(^|\n)Suites:[^\n]*[ \t]" codename { next }
            {
                for (i = 1; i <= NF; ++i) {
                    if ($i !~ /^#/) print ($i ~ /^Types:/ ? "Types: deb-src" : $i)
                }
                print ""
            }' "$file" >"$folder/parts/$(basename "$file")"
    done
    cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null |
        awk -v codename="$codename" '
            $1 == "deb" && index($0, " " codename) { sub(/^[ \t]*deb/, "deb-src"); print }' \
            >"$folder/parts/one-line.list" || true
}

fetch_sources() {
    local folder=$1 version=$2
    local apt=(apt-get -qq
        -o Dir::Etc::sourcelist=/dev/null -o "Dir::Etc::sourceparts=$folder/apt/parts"
        -o "Dir::State::lists=$folder/apt/lists" -o "Dir::Cache=$folder/apt/cache"
        -o APT::Sandbox::User="$(id -un)")
    write_source_lists "$folder/apt"
    "${apt[@]}" update || fail "the lists of source packages could not be read (see above)."
    (cd "$folder" && "${apt[@]}" source "qt6-base=$version" >apt.log 2>&1) ||
        { cat "$folder/apt.log" >&2; fail "the source package of qt6-base could not be fetched."; }
    mv "$folder"/qt6-base-*/ "$folder/source"
}

build_qt() {
    local folder=$1 options map
    mapfile -t options < <(options)
    # No path of this machine gets into Qt, nor from there into the program.
    map="-ffile-prefix-map=$folder/source=$neutral_source"
    map+=" -ffile-prefix-map=$folder/build=$neutral_source/build"
    say "Configuring Qt"
    cmake -S "$folder/source" -B "$folder/build" -G Ninja "${options[@]}" \
        "-DCMAKE_TOOLCHAIN_FILE=$here/toolchain.cmake" "-DCMAKE_INSTALL_PREFIX=$neutral_prefix" \
        "-DCMAKE_C_FLAGS=$map" "-DCMAKE_CXX_FLAGS=$map" \
        -DQT_HOST_PATH=/usr "-DQT_HOST_PATH_CMAKE_DIR=$host_cmake" >"$folder/configure.log" 2>&1 ||
        { tail -n 40 "$folder/configure.log" >&2; fail "CMake could not configure Qt."; }
    say "Building Qt (ten to twenty minutes on two processors)"
    ninja -C "$folder/build" -j "${TARVIX_JOBS:-$(nproc)}" >"$folder/build.log" 2>&1 ||
        { tail -n 40 "$folder/build.log" >&2; fail "Qt could not be built."; }
    DESTDIR=$folder/stage ninja -C "$folder/build" install >"$folder/install.log" 2>&1 ||
        { tail -n 40 "$folder/install.log" >&2; fail "Qt could not be installed."; }
    cp -r "$folder/source/LICENSES" "$folder/stage$neutral_prefix/"
    cp "$folder/source/debian/copyright" "$folder/stage$neutral_prefix/LICENSES/copyright"
}

# Whoever hands on a program with this Qt hands on its source as well.
keep_sources() {
    mkdir -p "$1/kept-source"
    mv "$1"/qt6-base_* "$1/kept-source/"
    mv -T "$1/kept-source" "$2/source"
}

version=$(qt_version)
kept=$(qt_folder "$version")
if [ -d "$kept/source" ]; then
    say "$kept"
    exit 0
fi
[ "${1:-}" != --find ] || exit 1

host_cmake=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake
mkdir -p "$cache"
# One at a time; what is interrupted or fails goes on from where it was.
exec 9>"$kept.lock"
flock 9
if [ -d "$kept/source" ]; then
    say "$kept"
    exit 0
fi
work=$kept.building
if [ ! -f "$work/fetched" ] && [ ! -d "$kept" ]; then
    say "Fetching the sources of Qt $version"
    rm -rf "$work"
    mkdir "$work"
    fetch_sources "$work" "$version"
    touch "$work/fetched"
fi
# In single steps, so that a folder of this name always holds a whole Qt, and its sources a whole one.
if [ ! -d "$kept" ]; then
    build_qt "$work"
    mv -T "$work/stage$neutral_prefix" "$kept"
fi
keep_sources "$work" "$kept"
rm -rf "$work" "$kept.lock"
say "$kept"
