#!/usr/bin/env bash
# Proves the Windows program under Wine.
#
# check-windows.sh           a few minutes: the calculator's tests and the bits of its results; where
#                            Qt for Windows is built already (build-qt.sh), the whole program as well,
#                            with a part of the scenarios and a few random sessions
# check-windows.sh --full    all of it; builds Qt where it is not there
# check-windows.sh --twice   what --full ends with: the program is made again from its archive of
#                            sources, in another folder and without a compiler cache, to the same bytes
#
# Pictures and printed pages are left in build/windows/pictures.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
# shellcheck source=packaging/scripts/common.sh
source "$here/../scripts/common.sh"
# shellcheck source=packaging/windows/common.sh
source "$here/common.sh"

root=$(project_root)
out=$root/build/windows
tests=$root/tests/windows
mode=${1:-}

# Debian has the sources of GoogleTest, not its library for Windows.
build_googletest() {
    local build=$out/googletest-build
    [ ! -f "$out/googletest/lib/libgtest.a" ] || return 0
    say "Building GoogleTest for Windows"
    mkdir -p "$build"
    {
        cmake -S /usr/src/googletest -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
            "-DCMAKE_TOOLCHAIN_FILE=$here/toolchain.cmake" \
            "-DCMAKE_INSTALL_PREFIX=$out/googletest" &&
            cmake --build "$build" --target install
    } >"$build.log" 2>&1 || { tail -n 40 "$build.log" >&2; fail "GoogleTest could not be built."; }
}

# build_for_here PRESET TARGET...: the same for this machine, to compare with.
build_for_here() {
    local preset=$1
    shift
    cmake --preset "$preset" >"$out/here.log" 2>&1 ||
        { cat "$out/here.log" >&2; fail "no preset $preset."; }
    cmake --build --preset "$preset" --target "$@" -- --quiet || fail "$* could not be built."
}

check_core() {
    local build=$1
    say "The calculator under Wine"
    build_for_here core result_bits
    build_windows "$build" core_tests report_tests docs_tests result_bits
    prove "$tests/core_under_wine.py" "$root/build/core/bin/result_bits" "$build/bin/result_bits.exe" \
        "$build"/bin/{core,report,docs}_tests.exe
}

# A proof that says "skipped" is none. Debian's own interpreter has the modules that the proofs need.
prove() {
    local status=0
    /usr/bin/python3 "$@" || status=$?
    [ "$status" -eq 0 ] || fail "${1##*/} ended with exit status $status (77: something is missing)."
}

check_window() {
    local build=$1 sample=() sessions=(--sessions 2 --actions 150)
    say "The whole program under Wine"
    build_for_here dev window_script tarvix
    build_windows "$build" window_script system_locale_tests
    if [ "$mode" = --full ]; then
        sessions=(--sessions 30 --actions 200)
    else
        sample=(--every 8)
    fi
    prove "$tests/window_under_wine.py" "${sample[@]}" "${sessions[@]}" \
        "$root/build/dev/bin/window_script" "$build/bin/window_script.exe" \
        "$build/bin/system_locale_tests.exe"
    prove "$tests/program_under_wine.py" "$out/Tarvix" \
        "$root"/build/dev/bin/{window_script,tarvix} "$out/pictures"
    prove "$tests/installer_under_wine.py" "$out"/tarvix-*-setup.exe "$out/Tarvix"
}

# The same sources give the same bytes. What is built here goes on to be tested; what is built there
# comes from the archive that is handed on.
check_twice() {
    local elsewhere product tree different=0
    say "The program once more, from its archive of sources"
    elsewhere=$(mktemp -d "${TMPDIR:-/tmp}/tarvix-made-again-XXXXXX")
    # shellcheck disable=SC2064  # of the folder that it is now
    trap "rm -rf '$elsewhere'" EXIT
    (cd "$elsewhere" && cmake -E tar xf "$out"/tarvix-*-source.zip)
    tree=$(echo "$elsewhere"/tarvix-*)
    CCACHE_DISABLE=1 "$tree/packaging/windows/make-windows.sh" >"$out/again.log" 2>&1 ||
        { tail -n 20 "$out/again.log" >&2; fail "the program could not be made again."; }
    for product in "$out"/tarvix-*.{zip,exe} "$out/Tarvix/tarvix.exe"; do
        cmp "$product" "$tree/build/windows/${product#"$out/"}" || different=$((different + 1))
    done
    [ "$different" -eq 0 ] || fail "$different files came out different."
    say "$(sha256sum "$out"/tarvix-*.{zip,exe} | sed "s,  $out/,  ,")" "The same bytes."
}

install_packages windows
use_compiler_cache
mkdir -p "$out"
if [ "$mode" = --twice ]; then
    "$here/make-windows.sh"
    check_twice
    exit 0
fi
build_googletest
if [ "$mode" != --full ] && ! qt=$("$here/build-qt.sh" --find); then
    configure_windows "$out/core" -DTARVIX_BUILD_WINDOW=OFF "-DCMAKE_PREFIX_PATH=$out/googletest"
    check_core "$out/core"
    say "NOT CHECKED: the window on Windows, for Qt for Windows is not built on this machine." \
        "packaging/windows/make-windows.sh builds it, once."
    exit 0
fi

"$here/make-windows.sh"
qt=$("$here/build-qt.sh" --find)
mapfile -t options < <(qt_options "$qt")
options[0]+=";$out/googletest"
configure_windows "$out/program" "${options[@]}" -DTARVIX_BUILD_TESTS=ON
check_core "$out/program"
check_window "$out/program"
if [ "$mode" = --full ]; then check_twice; fi
