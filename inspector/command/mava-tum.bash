# Completion of mava-tum for bash. Names come from `mava-tum list`.
# shellcheck shell=bash

_mava_tum_messages() {
    "$1" list 2>/dev/null | awk 'NR > 1 { print $1 }'
}

_mava_tum_adapters() {
    "$1" list 2>/dev/null | awk 'NR > 1 { for (i = 3; i <= NF; i++) { sub(/,$/, "", $i); print $i } }'
}

# _mava_tum_options <command>
_mava_tum_options() {
    case $1 in
    decode) echo "--format --port --side --transport --message --json --fields --no-absent --output --color --help" ;;
    explain) echo "--format --port --side --transport --message --json --output --color --help" ;;
    encode) echo "--output --to --help" ;;
    app) echo "--format --port --side --transport --message --output --to --help" ;;
    check | guess) echo "--format --port --side --transport --message --json --output --help" ;;
    diff) echo "--format --port --side --transport --message --json --output --color --help" ;;
    list) echo "--json --output --help" ;;
    web) echo "--name --page --format --output --help" ;;
    esac
}

# _mava_tum_words <program> <command> <how many words without a dash came before>
_mava_tum_words() {
    case $2:$3 in
    decode:0 | explain:0 | encode:0 | diff:0 | list:0) _mava_tum_messages "$1" ;;
    app:0 | check:0) _mava_tum_adapters "$1" ;;
    app:1) echo "encode decode" ;;
    esac
}

# How many arguments of the command stand before the present word; options and their values are none.
_mava_tum_arguments_before() {
    local i count=0
    for ((i = 2; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
        -f | --format | --port | --side | --transport | --message | --name | --page | -o | --output | -t | --to | --color)
            i=$((i + 1))
            ;;
        -?*) ;;
        *) count=$((count + 1)) ;;
        esac
    done
    echo "$count"
}

_mava_tum() {
    local program=${COMP_WORDS[0]} word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words
    case $before in
    -f | --format) words="auto raw hex base64 frames dump c capture" ;;
    --side) words="to from both" ;;
    --transport) words="udp tcp both" ;;
    -t | --to) words="raw hex base64 frames" ;;
    --color) words="auto always never" ;;
    --name) words=$(_mava_tum_messages "$program") ;;
    -o | --output | --message | --page | --port) words= ;;
    *)
        if [ "$COMP_CWORD" -eq 1 ]; then
            words="decode explain encode app check guess diff list web --help --version"
        elif [[ $word == -* ]]; then
            words=$(_mava_tum_options "${COMP_WORDS[1]}")
        else
            words=$(_mava_tum_words "$program" "${COMP_WORDS[1]}" "$(_mava_tum_arguments_before)")
        fi
        ;;
    esac
    # Nothing to offer: bash offers files, since the completion is declared with -o default.
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}

complete -o default -F _mava_tum mava-tum
