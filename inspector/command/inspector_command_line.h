// From the words of the command line to a command, and from what it throws to a line on standard error.
#pragma once

namespace mava_tum_cli
{

// Returns an exit_status.
int run_command_line(int argc, char **argv);

} // namespace mava_tum_cli
