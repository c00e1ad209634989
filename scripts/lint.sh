#!/bin/bash
# lint.sh [--changed | FILE...]: runs clang-tidy with the checks of .clang-tidy.
#
# Over all source files, over those that differ from main, or over those given. The files must be
# part of the debug build.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."

./scripts/packages.sh build desktop-build test style
cmake --preset debug >/dev/null
cmake --build --preset debug >/dev/null # some headers are made by the build
case ${1:-} in
"") files=$(git ls-files '*.cpp') ;;
--changed) files=$(git diff --name-only --diff-filter=d main -- '*.cpp') ;;
*) files=$(printf '%s\n' "$@") ;;
esac
# Files that this build leaves out, such as the fuzz targets, have no command to check them with.
built=$(sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' build/debug/compile_commands.json)
printf '%s\n' "$files" | while read -r file; do
    [ -n "$file" ] && grep -qxF "$(realpath "$file")" <<<"$built" && echo "$file"
done | xargs -r -P "$(nproc)" -n 4 clang-tidy-14 -p build/debug --quiet \
    --extra-arg=-Wno-unknown-warning-option
