#!/bin/bash
# run.sh NERLO CASE: runs one case of tests/cases and shows what differs from what it expects.
#
# A case is a folder of files, each of which may be missing:
#   in       standard input                     out      standard output, to the byte
#   op       index or name of one operation     err      standard error
#   set      KEY=VALUE, one a line              status   exit status (0)
#   options  a property list, for --options     args     arguments, one a line, in place of
#   locale   for --locale (en_US)                        `clean` and all of the left column
set -u
nerlo=$1
case_folder=$2

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# Nothing of the machine's own settings and languages may reach the case.
clean_environment=(env -u LANGUAGE LC_ALL=en_US.UTF-8 HOME="$scratch"
    XDG_CONFIG_HOME="$scratch/config" XDG_DATA_HOME="$scratch/data")

cd "$case_folder" || exit 1
if [ -f args ]; then
    mapfile -t arguments <args
else
    arguments=(clean --locale "$(cat locale 2>/dev/null || echo en_US)")
    [ ! -f op ] || arguments+=(--operation "$(cat op)")
    [ ! -f options ] || arguments+=(--options options)
    if [ -f set ]; then
        while IFS= read -r setting; do
            arguments+=(--set "$setting")
        done <set
    fi
fi
input=in
[ -f in ] || input=/dev/null

"${clean_environment[@]}" "$nerlo" "${arguments[@]}" <"$input" >"$scratch/out" 2>"$scratch/err"
status=$?

expected=0
[ ! -f status ] || expected=$(cat status)
failed=0
if [ "$status" != "$expected" ]; then
    echo "exit status $status, expected $expected"
    failed=1
fi
for stream in out err; do
    wanted=$stream
    [ -f "$stream" ] || wanted=/dev/null
    if ! cmp -s "$wanted" "$scratch/$stream"; then
        echo "standard ${stream}put differs:" | sed 's/errput/error/'
        diff -u --label expected --label actual <(cat -A "$wanted") <(cat -A "$scratch/$stream")
        failed=1
    fi
done
exit $failed
