// What ends a command: its exit codes, the two ways in which it can go wrong, and its line on standard error.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace mava_tum_cli
{

enum exit_status {
    exit_ok = 0,
    // The data is not what it should be: a message does not decode, a check has findings, two messages differ.
    exit_broken_data = 1,
    // The command could not be carried out: wrong arguments, unreadable files, input of the wrong shape.
    exit_bad_use = 2
};

// what() is one line: the place, what is wrong there, and what to do next.
class bad_use : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Prints "mava-tum <command>: <text>"; without a command, "mava-tum: <text>". File names and values can contain
// anything: what would begin another line, or move the cursor, is replaced.
void print_error(std::string_view command, std::string text);

} // namespace mava_tum_cli
