// A session crosses the wire: one process encodes the subscribers of a file, another one decodes and checks them.
//
//   sender process                                 receiver process
//   file -> record -> encode -> frame  == pipe ==> frame -> decode -> record -> compare <- file
#include "child_process.h"
#include "frame_stream.h"
#include "receiver.h"
#include "reported_run.h"
#include "sender.h"
#include "subscriber_file.h"

#include <iostream>
#include <span>
#include <string>
#include <unistd.h>

namespace examples::session_setup
{

namespace
{

enum class job { send_and_receive, send, receive, help };

struct command_line {
    job what = job::send_and_receive;
    std::string file;
    std::string receiver; // empty: this program itself
};

// `arguments` without the program's name.
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
        else
            take_file(argument, result.file);
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

int send_only(const command_line &arguments)
{
    const std::vector<subscriber> subscribers = read_subscribers(arguments.file);
    std::cerr << send_sessions(arguments.file, subscribers, STDOUT_FILENO) << "\n";
    return done;
}

int receive_only(const command_line &arguments)
{
    const std::vector<subscriber> subscribers = read_subscribers(arguments.file);
    return receive_sessions(arguments.file, subscribers, STDIN_FILENO) == 0 ? done : not_done;
}

int send_and_receive(const command_line &arguments)
{
    // Read before the receiver starts, so that only one of the two complains about the file.
    const std::vector<subscriber> subscribers = read_subscribers(arguments.file);
    const std::string program = arguments.receiver.empty() ? this_program : arguments.receiver;
    child_process receiver({program, "--receive", arguments.file});
    std::string summary;
    bool all_sent = true;
    try {
        summary = send_sessions(arguments.file, subscribers, receiver.input());
    } catch (const stream_error &error) {
        std::cerr << error.what() << "\n";
        all_sent = false;
    }
    const int receiver_status = receiver.finish();
    if (all_sent)
        std::cout << summary << "\n";
    if (receiver_status != 0)
        std::cerr << "session_setup: the receiver ended with status " << receiver_status << "\n";
    return receiver_status != 0 || all_sent ? receiver_status : static_cast<int>(not_done);
}

int run_job(const command_line &arguments)
{
    switch (arguments.what) {
    case job::help:
        std::cout << help_text();
        return done;
    case job::send:
        return send_only(arguments);
    case job::receive:
        return receive_only(arguments);
    case job::send_and_receive:
        break;
    }
    return send_and_receive(arguments);
}

int run(std::span<char *const> arguments)
{
    return run_job(parse_command_line(arguments));
}

} // namespace

} // namespace examples::session_setup

int main(int argc, char **argv)
{
    using namespace examples;
    return reported_run("session_setup", std::span(argv, static_cast<size_t>(argc)), session_setup::run);
}
