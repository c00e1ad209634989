#!/bin/bash
# format.sh [--check] [FILE...]: lays out the C and C++ files given, or all, as .clang-format says.
#
# With --check nothing is written; the exit status tells whether something would be.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."

./scripts/packages.sh style
mode=(-i)
if [ "${1:-}" = --check ]; then
    mode=(--dry-run --Werror)
    shift
fi
if [ $# -gt 0 ]; then
    clang-format-14 "${mode[@]}" "$@"
else
    git ls-files -z '*.c' '*.cpp' '*.h' | xargs -0 clang-format-14 "${mode[@]}"
fi
