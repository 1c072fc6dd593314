// The commands, each in commands/<name>_command.cpp. They throw bad_use.
#pragma once

#include "commands/command_options.h"

namespace mava_tum_cli
{

exit_status run_app(const command_options &options);
exit_status run_check(const command_options &options);
exit_status run_decode(const command_options &options);
exit_status run_diff(const command_options &options);
exit_status run_encode(const command_options &options);
exit_status run_explain(const command_options &options);
exit_status run_guess(const command_options &options);
exit_status run_list(const command_options &options);
exit_status run_web(const command_options &options);

} // namespace mava_tum_cli
