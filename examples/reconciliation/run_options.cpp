#include "run_options.h"

#include "reported_run.h"
#include "subscriber_file.h"

namespace examples::reconciliation
{

run_options parse_run_options(std::span<char *const> arguments)
{
    run_options result;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string argument = arguments[i];
        if (argument == "--help" || argument == "-h")
            result.what = part::help;
        else if (argument == "--restarted")
            result.what = part::restarted_receiver;
        else if (argument == "--receiver" && i + 1 < arguments.size())
            result.receiver = arguments[++i];
        else if (argument == "--spoil-one")
            result.spoils_one = true;
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

std::string run_help()
{
    return std::string(
               "Usage: reconciliation [FILE]\n"
               "\n"
               "Lets two processes agree on a set of sessions again after one of them has restarted: this one\n"
               "knows a session for every subscriber of FILE, the other one comes back with what an old store\n"
               "has of them: some are missing, some outdated, some of subscribers who have gone. At the end the\n"
               "two sets are compared byte by byte. Prints what was found, the messages of each kind, and the\n"
               "time. Without FILE it takes\n"
               "  ") +
           shipped_file +
           "\n"
           "\n"
           "  --restarted [FILE]     be the restarted receiver, on the standard input and output\n"
           "  --receiver PROGRAM     start PROGRAM as the restarted receiver: it gets --restarted FILE as arguments\n"
           "  --spoil-one            let the receiver change a session at the end, to see that this is found\n"
           "  --help                 print this\n"
           "\n"
           "On the stream each message follows its length (4 bytes, big-endian, counting what follows) and a byte\n"
           "that names its kind: the messages themselves do not say which one they are.\n"
           "\n"
           "FILE is that of session_setup, whose --help explains it.\n"
           "\n"
           "Exit status: 0 both sides hold the same sessions; 1 they do not, or the run broke off; 2 the file or the\n"
           "arguments are wrong; otherwise the receiver's own.\n";
}

} // namespace examples::reconciliation
