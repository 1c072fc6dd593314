// A session crosses the wire: one process encodes the subscribers of a file, another one decodes and checks them.
//
//   sender process                                            receiver process
//   file -> subscriber -> record -> encode -> frame  =pipe=>  frame -> decode -> record -> compare <- subscriber <-
//   file
#include "child_process.h"
#include "command_line.h"
#include "csv_file.h"
#include "frame_stream.h"
#include "receiver.h"
#include "sender.h"
#include "subscriber_file.h"

#include <csignal>
#include <iostream>
#include <unistd.h>

namespace session_setup
{

namespace
{

enum exit_status { all_arrived = 0, not_all_arrived = 1, bad_input = 2 };

// The link names the running program, however it was started.
constexpr const char *this_program = "/proc/self/exe";

int send_only(const command_line &arguments)
{
    const std::vector<subscriber> subscribers = read_subscribers(arguments.file);
    std::cerr << send_sessions(arguments.file, subscribers, STDOUT_FILENO) << "\n";
    return all_arrived;
}

int receive_only(const command_line &arguments)
{
    const std::vector<subscriber> subscribers = read_subscribers(arguments.file);
    return receive_sessions(arguments.file, subscribers, STDIN_FILENO) == 0 ? all_arrived : not_all_arrived;
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
    return receiver_status != 0 || all_sent ? receiver_status : static_cast<int>(not_all_arrived);
}

int run(const command_line &arguments)
{
    switch (arguments.what) {
    case job::help:
        std::cout << help_text();
        return all_arrived;
    case job::send:
        return send_only(arguments);
    case job::receive:
        return receive_only(arguments);
    case job::send_and_receive:
        break;
    }
    return send_and_receive(arguments);
}

int run_and_report(std::span<char *const> arguments)
{
    try {
        const int status = run(parse_command_line(arguments));
        if (std::cout.flush())
            return status;
        std::cerr << "session_setup: cannot write to the standard output; what it shows is incomplete\n";
        return status != 0 ? status : static_cast<int>(not_all_arrived);
    } catch (const file_error &error) {
        std::cerr << error.what() << "\n";
        return bad_input;
    } catch (const usage_error &error) {
        std::cerr << "session_setup: " << error.what() << "\n";
        return bad_input;
    } catch (const std::exception &error) {
        std::cerr << "session_setup: " << error.what() << "\n";
        return not_all_arrived;
    }
}

} // namespace

} // namespace session_setup

int main(int argc, char **argv)
{
    std::signal(SIGPIPE, SIG_IGN); // a reader that has gone away is an error message, not a silent end
    const std::span<char *const> arguments(argv, static_cast<size_t>(argc));
    return session_setup::run_and_report(arguments.empty() ? arguments : arguments.subspan(1));
}
