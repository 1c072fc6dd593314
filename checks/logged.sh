# shellcheck shell=bash
# Sourced by the checks, which keep what their builds print in a file.

# logged <file> <command...>: appends the output of the command to the file. If the command fails, prints the last lines
# of the file. No name here is one that a command is likely to have made readonly.
logged() {
    local logged_in=$1 logged_status=0
    shift
    "$@" >>"$logged_in" || logged_status=$?
    [ "$logged_status" -eq 0 ] ||
        { tail -n 20 "$logged_in" && echo "$1 ended with $logged_status: see $logged_in"; } >&2
    return "$logged_status"
}
