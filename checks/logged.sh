# shellcheck shell=bash
# Sourced by the checks, which keep what their builds print in a file.

# logged <log> <command...>: appends the command's output to the log. If the command fails, prints the last lines of the
# log.
logged() {
    local log=$1 status=0
    shift
    "$@" >>"$log" || status=$?
    [ "$status" -eq 0 ] || { tail -n 20 "$log" && echo "$1 ended with $status: see $log"; } >&2
    return "$status"
}
