#!/bin/bash
# bench.sh [OPTION...] [ROW...]: how `nerlo` compares with what one would use instead of it.
#
# Installs and builds what is missing, makes seeded texts under build/bench/, runs `nerlo` and the
# other tools in turn on them and prints ratios as Markdown tables: against the tools, people's own
# patterns against perl, growth and memory, hostile texts, what the guard of structure costs,
# start-up, batch, the library. Everything takes three quarters of an hour, --quick a few minutes;
# --help tells the rest.
set -eu
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build/bench # of its own, so that nobody's other build changes its options

"$root/scripts/packages.sh" build bench </dev/null
mkdir -p "$build"
log=$build/build.log
echo "bench.sh: building" >&2
if ! {
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DNERLO_DESKTOP=OFF -DNERLO_TESTS=OFF -DNERLO_BENCH=ON &&
        cmake --build "$build" --target nerlo nerlo_bench nerlo_shared
} </dev/null >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi
# Debian's own Python: one installed on top of it may start through a script.
python=/usr/bin/python3
[ -x "$python" ] || python=python3
exec "$python" "$root/bench/compare.py" --nerlo "$build/cli/nerlo" \
    --nerlo-bench "$build/bench/nerlo_bench" --library "$build/lib" --cache "$build/texts" "$@"
