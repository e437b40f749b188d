#!/usr/bin/env bash
# Builds the fuzzers with clang and runs each for some seconds, beginning with the kept corpus.
#
# run_fuzzers.sh [SECONDS [NAME...]]     60 seconds each without; NAME as in fuzz_NAME.cpp
# run_fuzzers.sh keep                    adds to the corpus what the runs have found beside it
#
# TARVIX_FUZZ_BUILD is the build folder (build/fuzz without), TARVIX_FUZZ_FOUND where inputs that reach
# something new are kept for the next run (found/ in the build folder without), TARVIX_FUZZ_JOBS how
# many run at once (2 without). A fuzzer that finds a fault leaves its input below the build folder in
# faults/ and the script ends with status 1.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
build=${TARVIX_FUZZ_BUILD:-build/fuzz}
found_inputs=${TARVIX_FUZZ_FOUND:-$build/found}
jobs=${TARVIX_FUZZ_JOBS:-2}
corpus=tests/fuzz/corpus
clang=$(command -v clang++-14 || command -v clang++)

launcher=()
if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER="$clang" \
    -DTARVIX_BUILD_WINDOW=OFF -DTARVIX_FUZZ=ON "${launcher[@]}" >"$build.configure.log" 2>&1 ||
    { cat "$build.configure.log" >&2; exit 1; }
cmake --build "$build" --target fuzzers -- --quiet

# The corpus is kept as text, one input a line in hexadecimal digits; the fuzzers read files.
unpack() {
    local name=$1 folder=$2 line
    mkdir -p "$folder"
    [ -f "$corpus/$name.hex" ] || return 0
    while IFS= read -r line; do
        xxd -r -p <<<"$line" >"$folder/$(sha1sum <<<"$line" | cut -c 1-16)"
    done <"$corpus/$name.hex"
}

pack() {
    local name=$1 folder=$2 file
    for file in "$folder"/*; do
        xxd -p -c 100000 "$file"
    done | sort -u >"$corpus/$name.hex"
}

run_one() {
    local name=$1 seconds=$2
    local kept=$build/kept/$name found=$found_inputs/$name log=$build/$name.log
    rm -rf "$kept"
    unpack "$name" "$kept"
    mkdir -p "$found" "$build/faults"
    if "$build/bin/fuzz_$name" -max_total_time="$seconds" -max_len=512 -timeout=10 -print_final_stats=1 \
        -artifact_prefix="$build/faults/$name-" "$found" "$kept" >"$log" 2>&1; then
        printf '%-13s %s runs in %s s, nothing found\n' "$name" \
            "$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")" "$seconds"
    else
        printf '%-13s FAULT, see %s\n' "$name" "$log"
        grep -E 'BROKEN|SUMMARY|runtime error|Test unit written' "$log" || tail -n 20 "$log"
        return 1
    fi
}

names=()
for source in tests/fuzz/fuzz_*.cpp; do
    name=$(basename "$source" .cpp)
    names+=("${name#fuzz_}")
done

if [ "${1:-}" = keep ]; then
    for name in "${names[@]}"; do
        smallest=$build/smallest/$name
        rm -rf "$smallest" "$build/kept/$name"
        unpack "$name" "$build/kept/$name"
        mkdir -p "$smallest" "$found_inputs/$name"
        "$build/bin/fuzz_$name" -merge=1 -max_len=512 "$smallest" "$build/kept/$name" \
            "$found_inputs/$name" >"$build/$name.merge.log" 2>&1
        pack "$name" "$smallest"
        printf '%-13s %s inputs\n' "$name" "$(wc -l <"$corpus/$name.hex")"
    done
    exit 0
fi

seconds=${1:-60}
shift || true
[ "$#" -eq 0 ] || names=("$@")
running=0
status=0
for name in "${names[@]}"; do
    run_one "$name" "$seconds" &
    running=$((running + 1))
    if [ "$running" -ge "$jobs" ]; then
        wait -n || status=1
        running=$((running - 1))
    fi
done
while [ "$running" -gt 0 ]; do
    wait -n || status=1
    running=$((running - 1))
done
exit "$status"
