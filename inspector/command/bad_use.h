// What ends a command: its exit codes, and the two ways in which it can go wrong.
#pragma once

#include <stdexcept>

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

} // namespace mava_tum_cli
