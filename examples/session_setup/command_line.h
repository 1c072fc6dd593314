// The arguments of the program.
#ifndef SESSION_SETUP_COMMAND_LINE_H
#define SESSION_SETUP_COMMAND_LINE_H

#include <span>
#include <stdexcept>
#include <string>

namespace session_setup
{

enum class job { send_and_receive, send, receive, help };

struct command_line {
    job what = job::send_and_receive;
    std::string file;
    std::string receiver; // empty: this program itself
};

// An argument that is none of ours. what() says which.
class usage_error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// `arguments` without the program's name.
command_line parse_command_line(std::span<char *const> arguments);

std::string help_text();

} // namespace session_setup

#endif
