# Completion of mava-tum for fish. Names come from `mava-tum list`.

# The arguments after the command: options and their values are none.
function __mava_tum_count
    set -l count 0
    set -l skip 0
    for word in (commandline -opc)[3..-1]
        if test $skip = 1
            set skip 0
        else if contains -- $word -f --format --port --side --transport --message --name --page -o --output -t --to --color
            set skip 1
        else if not string match -qr '^-.' -- $word
            set count (math $count + 1)
        end
    end
    echo $count
end

function __mava_tum_messages
    set -l program (commandline -opc)[1]
    $program list 2>/dev/null | awk 'NR > 1 { print $1 }'
end

function __mava_tum_adapters
    set -l program (commandline -opc)[1]
    $program list 2>/dev/null | awk 'NR > 1 { for (i = 3; i <= NF; i++) { sub(/,$/, "", $i); print $i } }'
end

# Whether argument number $argv[1], from 0, of one of the commands $argv[2..] comes next.
function __mava_tum_argument
    __fish_seen_subcommand_from $argv[2..-1]; and test (__mava_tum_count) = $argv[1]
end

set -l commands decode explain encode app check guess diff list web
set -l none "not __fish_seen_subcommand_from $commands"

complete -c mava-tum -n "$none" -f -a "$commands"
complete -c mava-tum -n "$none" -s V -l version -d "Print the version"
complete -c mava-tum -s h -l help -d "Print help"

complete -c mava-tum -n "__mava_tum_argument 0 decode explain encode diff list" -f -a "(__mava_tum_messages)"
complete -c mava-tum -n "__mava_tum_argument 0 app check" -f -a "(__mava_tum_adapters)"
complete -c mava-tum -n "__mava_tum_argument 1 app" -f -a "encode decode"

complete -c mava-tum -n "__fish_seen_subcommand_from decode explain app check guess diff web" -x -s f -l format \
    -a "auto raw hex base64 frames dump c capture" -d "What the input is written in"
complete -c mava-tum -n "__fish_seen_subcommand_from decode explain app check guess diff" -x -l port \
    -d "Only packets to this port"
complete -c mava-tum -n "__fish_seen_subcommand_from decode explain app check guess diff" -x -l side \
    -a "to from both" -d "Packets to the port or from it"
complete -c mava-tum -n "__fish_seen_subcommand_from decode explain app check guess diff" -x -l transport \
    -a "udp tcp both" -d "Packets of this protocol"
complete -c mava-tum -n "__fish_seen_subcommand_from decode explain app check guess diff" -x -l message \
    -d "Only this message of each file"
complete -c mava-tum -n "__fish_seen_subcommand_from decode explain check guess diff list" -s j -l json -d "Print JSON"
complete -c mava-tum -n "__fish_seen_subcommand_from decode" -l fields -d "Say where each field is"
complete -c mava-tum -n "__fish_seen_subcommand_from decode" -l no-absent -d "Leave out absent fields"
complete -c mava-tum -n "__fish_seen_subcommand_from encode app" -x -s t -l to -a "raw hex base64 frames" \
    -d "How to write messages"
complete -c mava-tum -n "__fish_seen_subcommand_from decode explain diff" -x -l color -a "auto always never" \
    -d "When to use colours"
complete -c mava-tum -n "__fish_seen_subcommand_from web" -x -l name -a "(__mava_tum_messages)" -d "The message"
complete -c mava-tum -n "__fish_seen_subcommand_from web" -r -l page -d "Put the input into this page"
complete -c mava-tum -n "__fish_seen_subcommand_from $commands" -r -s o -l output -d "Write to this file"
