#!/bin/bash
# installed.sh SOURCE BUILD NERLO [FLAG...]: the library as it is installed. Only what nerlo.h declares
# is exported, with a version each; the example in C is built by pkg-config with the flags and gives
# what `nerlo` gives.
set -eu
source=$1 build=$2 nerlo=$3
shift 3
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT

for component in libnerlo1 libnerlo-dev; do
    cmake --install "$build" --prefix "$prefix" --component $component >/dev/null
done
PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name nerlo.pc)")
export PKG_CONFIG_PATH
LD_LIBRARY_PATH=$(pkg-config --variable=libdir nerlo)
export LD_LIBRARY_PATH

library=$LD_LIBRARY_PATH/libnerlo.so.1
readelf -d "$library" | grep -qF 'soname: [libnerlo.so.1]'
declared=$(grep -oE '\bnerlo_[a-z0-9_]+\(' "$(pkg-config --variable=includedir nerlo)/nerlo.h" |
    sed 's/($/@@NERLO_1.0/' | sort -u)
exported=$(nm -D --defined-only "$library" | sed -n 's/^[0-9a-f]* [^A] //p' | sort)
diff <(echo "$declared") <(echo "$exported")

cc -std=c99 -Wall -Wextra -Wpedantic -Werror "$@" "$source/examples/clean.c" \
    $(pkg-config --cflags --libs nerlo) -o "$prefix/clean"
text=$source/README.md
"$prefix/clean" pdf <"$text" | cmp - <("$nerlo" clean --profile pdf "$text")
status=0
"$prefix/clean" nosuch <"$text" 2>"$prefix/told" || status=$?
[ $status = 1 ] && grep -qF 'no ready profile "nosuch"' "$prefix/told"
