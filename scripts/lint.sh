#!/bin/bash
# lint.sh [--changed [COMMITS] | FILE...]: runs clang-tidy with the checks of .clang-tidy.
#
# Over all source files, over those given, or over those that differ from the last commit or were
# touched by the last COMMITS commits (10) to C++ files; a changed header is looked at through one
# source file that includes it. Finding no file to check is a failure.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."

changed() {
    {
        git diff --name-only HEAD -- '*.cpp' '*.h'
        git log --max-count="$1" --format= --name-only -- '*.cpp' '*.h'
    } | sort -u | while read -r file; do
        case $file in
        *.h)
            includes="#include \"$file\""
            source=${file%.h}.cpp
            grep -qsF "$includes" "$source" ||
                source=$(git grep -lF "$includes" -- '*.cpp' | head -n 1)
            echo "$source"
            ;;
        *) echo "$file" ;;
        esac
    done | sort -u
}

./scripts/packages.sh build desktop-build test style
cmake --preset debug >/dev/null
cmake --build --preset debug >/dev/null # some headers are made by the build
case ${1:-} in
"") files=$(git ls-files '*.cpp') ;;
--changed) files=$(changed "${2:-10}") ;;
*) files=$(printf '%s\n' "$@") ;;
esac
# Files that this build leaves out, such as the fuzz targets, have no command to check them with.
commands=$(sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' build/debug/compile_commands.json)
files=$(printf '%s\n' "$files" | while read -r file; do
    [ -e "$file" ] && grep -qxF "$(realpath "$file")" <<<"$commands" && echo "$file"
done) || true
[ -n "$files" ] || { echo "lint.sh: no source file to check" >&2; exit 1; }
echo "lint.sh: checking $(wc -l <<<"$files") files" >&2
xargs -P "$(nproc)" -n 4 clang-tidy-14 -p build/debug --quiet \
    --extra-arg=-Wno-unknown-warning-option <<<"$files"
