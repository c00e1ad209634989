#!/bin/bash
# lines.sh: how many lines of code each folder has, and the share of the tests in all of them.
#
# Counted are the tracked C, C++, JavaScript, Python and shell files, session scripts without a suffix included, with
# their comments but without blank lines; tests are the files below tests/, fakes and fuzz targets
# included. Catalogues, build files and documentation count nowhere.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."

git ls-files -z | while IFS= read -r -d '' file; do
    case $file in
    *.c | *.cpp | *.h | *.js | *.py | *.sh) ;;
    *)
        [ -f "$file" ] && [ -x "$file" ] && IFS= read -r first <"$file" && [[ $first == '#!'* ]] ||
            continue
        ;;
    esac
    echo "${file%%/*} $(grep -c '[^[:space:]]' "$file")"
done | awk '
    { lines[$1] += $2; all += $2 }
    END {
        for (folder in lines) printf "%7d %s\n", lines[folder], folder | "sort -rn"
        close("sort -rn")
        printf "%7d in all, %.1f %% of them tests\n", all, 100 * lines["tests"] / all
    }'
