# Shared by the scripts for Windows. Sourced by bash after packaging/scripts/common.sh, never run.
# shellcheck shell=bash

windows_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)

# Everything is linked into the program. Nothing in it depends on when and where it is linked; where
# it is loaded, Windows decides anew each time, and no data can be run.
windows_link_flags="-static -s -Wl,--no-insert-timestamp"
windows_link_flags+=" -Wl,--dynamicbase -Wl,--high-entropy-va -Wl,--nxcompat"

# configure_windows BUILD_FOLDER [OPTION]...: configures the project for Windows. No path of the
# machine gets into what is built.
configure_windows() {
    local build=$1 root map
    shift
    root=$(project_root)
    mkdir -p "$build"
    map="-ffile-prefix-map=$root=. -ffile-prefix-map=$build=build"
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        "-DCMAKE_TOOLCHAIN_FILE=$windows_folder/toolchain.cmake" \
        "-DCMAKE_CXX_FLAGS=$map" "-DCMAKE_EXE_LINKER_FLAGS=$windows_link_flags" \
        -DTARVIX_WERROR=ON -DTARVIX_BUILD_BENCH=OFF -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
        -DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST "$@" >"$build/configure.log" 2>&1 ||
        { tail -n 40 "$build/configure.log" >&2; fail "CMake could not configure for Windows."; }
}

# The options of configure_windows that let it find the Qt in this folder.
qt_options() {
    printf '%s\n' "-DCMAKE_PREFIX_PATH=$1" -DQT_HOST_PATH=/usr \
        "-DQT_HOST_PATH_CMAKE_DIR=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake"
}

# build_windows BUILD_FOLDER [TARGET]...
build_windows() {
    local build=$1
    shift
    cmake --build "$build" --target "$@" -- --quiet -j "${TARVIX_JOBS:-$(nproc)}" ||
        fail "the build for Windows failed (see above)."
}
