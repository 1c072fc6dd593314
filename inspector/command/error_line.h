// The one line that a command has for standard error.
#pragma once

#include <string>
#include <string_view>

namespace mava_tum_cli
{

// Prints "mava-tum <command>: <text>"; without a command, "mava-tum: <text>". File names and values can contain
// anything: what would begin another line, or move the cursor, is replaced.
void print_error(std::string_view command, std::string text);

} // namespace mava_tum_cli
