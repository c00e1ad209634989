# fish completion for nerlo-pro

function __nerlo_pro_operations
    nerlo operations 2>/dev/null | string replace -r '^ *\d+ +(\S+) +' '$1\t'
end
function __nerlo_pro_profiles
    nerlo profiles 2>/dev/null | string replace -rf '^[* ] *\d+ +' ''
end

complete -c nerlo-pro -f
complete -c nerlo-pro -l clean -d 'Clean the text on the clipboard'
complete -c nerlo-pro -l operation -x -a '(__nerlo_pro_operations)' -d 'Run one operation on it'
complete -c nerlo-pro -l choose -d 'Choose what is done to it'
complete -c nerlo-pro -l restore -d 'Put back what stood there before the last clean'
complete -c nerlo-pro -l preferences -d 'Open the preferences'
complete -c nerlo-pro -l automatic -x -a 'on off toggle' -d 'Clean each new copy by itself'
complete -c nerlo-pro -l profile -x -a '(__nerlo_pro_profiles)' -d 'Use this profile from now on'
complete -c nerlo-pro -l shortcut -x -a 'clean= choose= (__nerlo_pro_operations | string replace \t =\t)' -d 'Store a global shortcut'
complete -c nerlo-pro -l why -d 'Say why the last copy was cleaned as it was'
complete -c nerlo-pro -l doctor -d 'Say what works on this desktop'
complete -c nerlo-pro -l quit -d 'End the running program'
complete -c nerlo-pro -s h -l help -d 'Tell more'
complete -c nerlo-pro -s v -l version -d 'Print the version'
