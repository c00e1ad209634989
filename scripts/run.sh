#!/bin/bash
# run.sh [ARGUMENT...]: cleans the files given, or standard input, and prints the clean text.
#
# Installs what is missing and builds `nerlo`, the program without a window, on the way. Arguments go
# to `nerlo clean` (see `./scripts/run.sh --help`). Only clean text goes to standard output.
set -eu
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build/nerlo # of its own, so that nobody's other build changes its options

"$root/scripts/packages.sh" build </dev/null
mkdir -p "$build"
log=$build/run.log
[ -x "$build/cli/nerlo" ] || echo "run.sh: building, which takes a minute" >&2
if ! {
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DNERLO_DESKTOP=OFF -DNERLO_TESTS=OFF -DNERLO_BENCH=OFF &&
        cmake --build "$build" --target nerlo
} </dev/null >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi
exec "$build/cli/nerlo" clean "$@"
