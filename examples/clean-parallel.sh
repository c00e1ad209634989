#!/bin/bash
# clean-parallel.sh FILE ARGUMENT...: one large file of JSON Lines through `nerlo batch` on all cores.
#
#     clean-parallel.sh data.jsonl --field text --profile web > clean.jsonl
#     zstdcat data.jsonl.zst | clean-parallel.sh - --field text | zstd > clean.jsonl.zst
#
# The order of the lines is kept. It ends with another status than 0 as soon as one block fails.
# BLOCK (64M) is what one process gets, cut at a line break; JOBS is how many run at a time.
set -eu
file=$1
shift
options=(--block "${BLOCK:-64M}" --keep-order --halt "now,fail=1" --quote)
[ -z "${JOBS:-}" ] || options+=(--jobs "$JOBS")
if [ "$file" = - ]; then
    exec parallel --pipe "${options[@]}" nerlo batch "$@"
fi
# The processes read the file themselves, which is faster than one that hands it out.
exec parallel --pipepart --arg-file "$file" "${options[@]}" nerlo batch "$@"
