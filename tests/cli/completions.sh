#!/bin/bash
# completions.sh FOLDER: what Tab offers in bash for profiles; a name is never run as a command.
set -u
# shellcheck disable=SC1091
. "$1/nerlo.bash" && . "$1/nerlo-pro.bash"
names=$'my mail\n$(echo my run >&2)\n\nmy "q"'
status=0
expect() { # WORD EXPECTED FUNCTION
    local COMPREPLY=() said
    "$3" "$names" "$1" 2>/dev/null
    said=$(printf '%s|' ${COMPREPLY[@]+"${COMPREPLY[@]}"})
    [ "$said" = "$2" ] || { echo "$3 '$1': $said, not $2" >&2; status=1; }
}
for words in _nerlo_words _nerlo_pro_words; do
    expect '' 'my\ mail|\$\(echo\ my\ run\ \>\&2\)|my\ \"q\"|' "$words"
    expect 'my\ m' 'my\ mail|' "$words"
    expect other '|' "$words"
done
nerlo() { printf '* 0  my mail\n  1  b\n\nready:\n  gentle     spaces\n'; }
[ "$(_nerlo_profiles)" = $'my mail\nb\ngentle' ] || { echo "profiles: $(_nerlo_profiles)" >&2; status=1; }
[ "$(_nerlo_pro_profiles)" = $'my mail\nb' ] || { echo "profiles: $(_nerlo_pro_profiles)" >&2; status=1; }
exit $status
