# bash completion for nerlo-pro; operations and profiles come from nerlo, where it is installed

_nerlo_pro_operations() {
    nerlo operations 2>/dev/null | awk '{ print $2 }'
}

_nerlo_pro_profiles() {
    nerlo profiles 2>/dev/null | sed -nE 's/^[* ] *[0-9]+ *//p'
}

_nerlo_pro_words() { # WORDS: one a line, taken as they are: profiles may be named anything
    local word quoted
    COMPREPLY=()
    while IFS= read -r word; do
        printf -v quoted %q "$word"
        [[ -z $word || ($word != "$2"* && $quoted != "$2"*) ]] || COMPREPLY+=("$quoted")
    done <<<"$1"
}

_nerlo_pro() {
    local cur prev words cword
    _init_completion -n = || return
    case $prev in
    --operation) _nerlo_pro_words "$(_nerlo_pro_operations)" "$cur" ;;
    --profile) _nerlo_pro_words "$(_nerlo_pro_profiles)" "$cur" ;;
    --shortcut)
        _nerlo_pro_words "$(printf 'clean=\nchoose=\n'; _nerlo_pro_operations | sed 's/$/=/')" "$cur"
        compopt -o nospace
        ;;
    --automatic) COMPREPLY=($(compgen -W "on off toggle" -- "$cur")) ;;
    *) COMPREPLY=($(compgen -W "--clean --operation --choose --restore --preferences --automatic --profile --shortcut --why --doctor --quit --help --version" -- "$cur")) ;;
    esac
}

complete -F _nerlo_pro nerlo-pro
