#!/usr/bin/env bash
# Measures how much of the program its tests run through: lines and branches of every source, as a
# table in BUILD_FOLDER/lines.txt and BUILD_FOLDER/branches.txt. Needs gcovr beside what ./test needs.
# The program's real end writes no figures, so what only the journeys run through counts as missed.
#
# tests/coverage.sh [BUILD_FOLDER]     build/coverage without
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build/coverage}
command -v gcovr >/dev/null || { echo "Stopped: gcovr is not installed." >&2; exit 1; }

cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_FLAGS="--coverage -O0 -fprofile-update=atomic"
cmake --build "$build" -- --quiet
ctest --test-dir "$build" --parallel 2 --quiet || echo "Some tests failed; the figures are theirs, too."

report() {
    gcovr -r . --object-directory "$build" --exclude 'tests/.*' --exclude 'bench/.*' \
        --exclude-throw-branches --exclude-unreachable-branches "$@"
}
report --txt "$build/lines.txt"
report --branches --txt "$build/branches.txt"
tail -n 3 "$build/lines.txt" "$build/branches.txt"
