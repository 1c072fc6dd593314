#compdef mava-tum
# Completion of mava-tum for zsh. Names come from `mava-tum list`.

_mava_tum_messages() {
    local -a names
    names=(${(f)"$(_call_program messages $program list 2>/dev/null | awk 'NR > 1 { print $1 }')"})
    _wanted messages expl message compadd -a names
}

_mava_tum_adapters() {
    local -a names
    names=(${(f)"$(_call_program adapters $program list 2>/dev/null |
        awk 'NR > 1 { for (i = 3; i <= NF; i++) { sub(/,$/, "", $i); print $i } }')"})
    _wanted adapters expl adapter compadd -a names
}

_mava_tum_arguments() {
    local -a format input output json color written
    format=('(-f --format)'{-f,--format}'[what the input is written in]:format:(auto raw hex base64 frames dump c capture)')
    input=($format '*--port[only packets to this port]:port:'
        '--side[packets to the port or from it]:side:(to from both)'
        '--transport[packets of this protocol]:transport:(udp tcp both)'
        '--message[only this message of each file]:number:')
    output=('(-o --output)'{-o,--output}'[write to this file]:file:_files' '(- *)'{-h,--help}'[print help]')
    json=('(-j --json)'{-j,--json}'[print JSON]')
    color=('--color[when to use colours]:when:(auto always never)')
    written=('(-t --to)'{-t,--to}'[how to write messages]:format:(raw hex base64 frames)')
    case $1 in
    decode) _arguments -S $input $json '--fields[say where each field is]' '--no-absent[leave out absent fields]' \
        $output $color '1:message:_mava_tum_messages' '*:file:_files' ;;
    explain) _arguments -S $input $json $output $color '1:message:_mava_tum_messages' '*:file:_files' ;;
    encode) _arguments -S $output $written '1:message:_mava_tum_messages' '*:file:_files' ;;
    app) _arguments -S $input $output $written '1:adapter:_mava_tum_adapters' '2:direction:(encode decode)' \
        '*:file:_files' ;;
    check) _arguments -S $input $json $output '1:adapter:_mava_tum_adapters' '*:file:_files' ;;
    guess) _arguments -S $input $json $output '*:file:_files' ;;
    diff) _arguments -S $input $json $output $color '1:message:_mava_tum_messages' '2:file:_files' '3:file:_files' ;;
    list) _arguments -S $json $output '1:message:_mava_tum_messages' ;;
    web) _arguments -S $format $output '--name[the message]:message:_mava_tum_messages' \
        '--page[put the input into this page]:file:_files' '*:file:_files' ;;
    esac
}

_mava_tum() {
    local curcontext=$curcontext state line program=$words[1]
    _arguments -C '(- *)'{-h,--help}'[print help]' '(- *)'{-V,--version}'[print the version]' \
        '1:command:(decode explain encode app check guess diff list web)' '*::argument:->arguments'
    [[ $state == arguments ]] || return
    _mava_tum_arguments $words[1] # which begins with the command here
}

_mava_tum "$@"
