# bash completion for nerlo

_nerlo_operations() {
    nerlo operations 2>/dev/null | awk '{ print $2 }'
}

_nerlo_profiles() {
    nerlo profiles 2>/dev/null | sed -nE 's/^[* ] *[0-9]+ *//p; t; s/^  ([a-z]+) .*/\1/p'
}

_nerlo_words() { # WORDS: one a line, taken as they are: profiles may be named anything
    local word quoted
    COMPREPLY=()
    while IFS= read -r word; do
        printf -v quoted %q "$word"
        [[ -z $word || ($word != "$2"* && $quoted != "$2"*) ]] || COMPREPLY+=("$quoted")
    done <<<"$1"
}

_nerlo() {
    local cur prev words cword
    _init_completion -n = || return
    local command=
    [ "$cword" -gt 1 ] && command=${words[1]}
    case $prev in
    --operation)
        _nerlo_words "$(_nerlo_operations)" "$cur"
        return
        ;;
    --profile | show | export)
        _nerlo_words "$(_nerlo_profiles)" "$cur"
        return
        ;;
    --set)
        COMPREPLY=($(compgen -S = -W "$(nerlo keys 2>/dev/null | awk '/^  [a-zA-Z]/ { print $1 }')" -- "$cur"))
        compopt -o nospace
        return
        ;;
    --options)
        _filedir
        return
        ;;
    --locale)
        COMPREPLY=($(compgen -W "$(locale -a 2>/dev/null | sed 's/\..*//' | sort -u)" -- "$cur"))
        return
        ;;
    --format)
        COMPREPLY=($(compgen -W "text json sarif github" -- "$cur"))
        return
        ;;
    --diff-from)
        _nerlo_words "$(git for-each-ref --format='%(refname:short)' 2>/dev/null)" "$cur"
        return
        ;;
    --on-error)
        COMPREPLY=($(compgen -W "fail pass drop" -- "$cur"))
        return
        ;;
    --jobs)
        COMPREPLY=($(compgen -W "$(seq "$(nproc)")" -- "$cur"))
        return
        ;;
    esac
    case $command in
    '')
        COMPREPLY=($(compgen -W "clean check count batch operations keys profiles rules --version --help" -- "$cur"))
        ;;
    clean)
        if [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W "--operation --profile --options --set --locale --in-place --explain --help" -- "$cur"))
        else
            _filedir
        fi
        ;;
    check)
        if [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W "--format --diff-from --fix --profile --options --set --locale --help" -- "$cur"))
        else
            _filedir
        fi
        ;;
    count)
        if [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W "--json --locale --help" -- "$cur"))
        else
            _filedir
        fi
        ;;
    batch)
        if [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W "--field --on-error --stats --operation --jobs --profile --options --set --locale --help" -- "$cur"))
        else
            _filedir
        fi
        ;;
    operations | keys)
        COMPREPLY=($(compgen -W "--json --help" -- "$cur"))
        ;;
    rules)
        if [ "$cword" -eq 2 ] || [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W "test --help" -- "$cur"))
        else
            _filedir
        fi
        ;;
    profiles)
        if [ "$cword" -eq 2 ] || [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W "show select rename duplicate remove restore export import --json --ready --help" -- "$cur"))
        else
            _filedir
        fi
        ;;
    esac
}

complete -F _nerlo nerlo
