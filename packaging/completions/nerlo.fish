# fish completion for nerlo

function __nerlo_operations
    nerlo operations 2>/dev/null | string replace -r '^ *\d+ +(\S+) +' '$1\t'
end
function __nerlo_profiles
    nerlo profiles 2>/dev/null | string replace -rf '^[* ] *\d+ +|^  (?=[a-z]+ )' '' | string replace -r '^([a-z]+)  +' '$1\t'
end
function __nerlo_keys
    nerlo keys 2>/dev/null | string match -r '^  [A-Za-z]\w*' | string trim | string replace -r '$' '='
end

set -l commands clean check count batch operations keys profiles rules
complete -c nerlo -n "not __fish_seen_subcommand_from $commands" -f
complete -c nerlo -n "not __fish_seen_subcommand_from $commands" -l version -d 'Print the version'
complete -c nerlo -l help -s h -d 'Tell more'
complete -c nerlo -n "not __fish_seen_subcommand_from $commands" -a clean -d 'Clean texts with the options that are on'
complete -c nerlo -n "not __fish_seen_subcommand_from $commands" -a check -d 'Tell what a clean would change'
complete -c nerlo -n "not __fish_seen_subcommand_from $commands" -a count -d 'Count characters, spaces, words and paragraphs'
complete -c nerlo -n "not __fish_seen_subcommand_from $commands" -a batch -d 'Clean texts in JSON records, one a line'
complete -c nerlo -n "not __fish_seen_subcommand_from $commands" -a operations -d 'List the operations'
complete -c nerlo -n "not __fish_seen_subcommand_from $commands" -a keys -d 'List the settings keys'
complete -c nerlo -n "not __fish_seen_subcommand_from $commands" -a profiles -d 'List, show, change, import and export profiles'

complete -c nerlo -n "not __fish_seen_subcommand_from $commands" -a rules -d 'Try lists of rules on their samples'
complete -c nerlo -n '__fish_seen_subcommand_from rules; and not __fish_seen_subcommand_from test' -f -a test

complete -c nerlo -n '__fish_seen_subcommand_from clean batch' -l operation -x -a '(__nerlo_operations)' -d 'Run only this operation'
complete -c nerlo -n '__fish_seen_subcommand_from clean check batch' -l profile -x -a '(__nerlo_profiles)' -d 'Take the options from a profile'
complete -c nerlo -n '__fish_seen_subcommand_from clean check batch' -l options -r -d 'Take the options from a property list'
complete -c nerlo -n '__fish_seen_subcommand_from clean check batch' -l set -x -a '(__nerlo_keys)' -d 'Change one key'
complete -c nerlo -n '__fish_seen_subcommand_from clean' -l in-place -s i -d 'Rewrite each file that changes'
complete -c nerlo -n '__fish_seen_subcommand_from clean check count batch' -l locale -x -d 'Rules for letter case, words and sorting'
complete -c nerlo -n '__fish_seen_subcommand_from clean' -l explain -d 'Tell what each step changed'
complete -c nerlo -n '__fish_seen_subcommand_from check' -l format -x -a 'text json sarif github' -d 'How to tell'
complete -c nerlo -n '__fish_seen_subcommand_from check' -l diff-from -x -a "(git for-each-ref --format='%(refname:short)' 2>/dev/null)" -d 'Only lines changed since this commit'
complete -c nerlo -n '__fish_seen_subcommand_from check' -l fix -d 'Also clean the files in place'
complete -c nerlo -n '__fish_seen_subcommand_from batch' -l jobs -x -d 'Blocks of lines at a time'
complete -c nerlo -n '__fish_seen_subcommand_from batch' -l field -x -d 'Clean this member of each record'
complete -c nerlo -n '__fish_seen_subcommand_from batch' -l on-error -x -a 'fail pass drop' -d 'What a bad line does'
complete -c nerlo -n '__fish_seen_subcommand_from batch' -l stats -d 'Add the four counts to each record'
complete -c nerlo -n '__fish_seen_subcommand_from operations keys' -f
complete -c nerlo -n '__fish_seen_subcommand_from count operations keys profiles' -l json -d 'Write JSON'
complete -c nerlo -n '__fish_seen_subcommand_from profiles' -l ready -d 'The ready ones alone'
complete -c nerlo -n '__fish_seen_subcommand_from profiles; and not __fish_seen_subcommand_from show select rename duplicate remove restore export import' -f -a 'show select rename duplicate remove restore export import'
complete -c nerlo -n '__fish_seen_subcommand_from show select rename duplicate remove export' -a '(__nerlo_profiles)'
