# shellcheck shell=bash
# Sourced by the checks, which keep what their builds print in a file.

# logged <log> <command...>: the command's output goes to the end of the log, of which the last lines are shown when it
# fails: a check that stops without a word does not say what to mend.
logged() {
    local log=$1 status=0
    shift
    "$@" >>"$log" || status=$?
    [ "$status" -eq 0 ] || { tail -n 20 "$log" && echo "$1 ended with $status: see $log"; } >&2
    return "$status"
}
