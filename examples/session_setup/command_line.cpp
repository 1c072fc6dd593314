#include "command_line.h"

#include "reported_run.h"
#include "subscriber_file.h"

namespace examples::session_setup
{

command_line parse_command_line(std::span<char *const> arguments)
{
    command_line result;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string argument = arguments[i];
        if (argument == "--help" || argument == "-h")
            result.what = job::help;
        else if (argument == "--send")
            result.what = job::send;
        else if (argument == "--receive")
            result.what = job::receive;
        else if (argument == "--receiver" && i + 1 < arguments.size())
            result.receiver = arguments[++i];
        else if (argument.starts_with('-'))
            throw usage_error("unknown or incomplete argument " + argument + "; see --help");
        else if (result.file.empty())
            result.file = argument;
        else
            throw usage_error("more than one file: " + result.file + " and " + argument + "; give one");
    }
    if (result.file.empty())
        result.file = shipped_file;
    return result;
}

std::string help_text()
{
    return std::string("Usage: session_setup [FILE]\n"
                       "\n"
                       "Sends every subscriber of FILE as a session to a second process and lets that process compare\n"
                       "each value it received with the file. Prints the first sessions, the wire bytes of one, and\n"
                       "totals. Without FILE it takes\n"
                       "  ") +
           shipped_file +
           "\n"
           "\n"
           "  --send [FILE]          only send, to the standard output\n"
           "  --receive [FILE]       only receive, from the standard input\n"
           "  --receiver PROGRAM     start PROGRAM as the receiver: it gets --receive FILE as its arguments\n"
           "  --help                 print this\n"
           "\n"
           "On the stream each session follows its length in 4 bytes, big-endian.\n"
           "\n"
           "FILE is text: lines with '#' in front and empty lines mean nothing; the first other line names the "
           "columns:\n" +
           column_names() +
           "\n"
           "The comment at the top of the shipped file says what each cell holds.\n"
           "\n"
           "Exit status: 0 all sessions arrived as the file has them; 1 a session differs or was lost; 2 the file or "
           "the\n"
           "arguments are wrong; otherwise the receiver's own.\n";
}

} // namespace examples::session_setup
