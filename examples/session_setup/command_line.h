// The arguments of the program.
#ifndef SESSION_SETUP_COMMAND_LINE_H
#define SESSION_SETUP_COMMAND_LINE_H

#include <span>
#include <string>

namespace examples::session_setup
{

enum class job { send_and_receive, send, receive, help };

struct command_line {
    job what = job::send_and_receive;
    std::string file;
    std::string receiver; // empty: this program itself
};

// `arguments` without the program's name.
command_line parse_command_line(std::span<char *const> arguments);

std::string help_text();

} // namespace examples::session_setup

#endif
