// Two processes agree on a set of sessions again, after one of them has restarted with an old store.
//
//   keeper process                       == pipe ==>       restarted process
//   file -> all sessions                 <== pipe ==       file -> what an old store has of them
//
// What they say to each other: keeper.h.
#include "child_process.h"
#include "keeper.h"
#include "readable.h"
#include "reported_run.h"
#include "restarted_receiver.h"
#include "stale_store.h"
#include "subscriber_file.h"

#include <algorithm>
#include <iostream>
#include <span>
#include <string>
#include <unistd.h>

namespace examples::reconciliation
{

namespace
{

enum class part { both_sides, restarted_receiver, help };

struct run_options {
    part what = part::both_sides;
    std::string file;
    std::string receiver; // empty: this program itself
    bool spoils_one = false;
};

// `arguments` without the program's name.
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
        else
            take_file(argument, result.file);
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

constexpr size_t label_width = 44, name_width = 22, side_width = 10, number_width = 12;

std::string left(const std::string &text, size_t width)
{
    return text + std::string(std::max(width, text.size()) - text.size(), ' ');
}

std::string right(const std::string &text, size_t width)
{
    return std::string(std::max(width, text.size()) - text.size(), ' ') + text;
}

std::string counted(const std::string &label, size_t count)
{
    return "  " + left(label, label_width) + right(readable_count(count), number_width) + "\n";
}

std::string row(const std::string &name, const std::string &side, const traffic &total)
{
    return "  " + left(name, name_width) + left(side, side_width) +
           right(readable_count(total.messages), number_width) + right(readable_count(total.bytes), number_width) +
           "\n";
}

// Requests are the keeper's.
const char *sender_of(message_kind kind)
{
    switch (kind) {
    case message_kind::rec_start_req:
    case message_kind::rec_sess_req:
    case message_kind::session_delete:
    case message_kind::rec_sess_replay_req:
    case message_kind::rec_complete_req:
        return "keeper";
    default:
        return "receiver";
    }
}

// What the keeper found and did for the receiver.
std::string describe(const run_totals &totals, const session_set &sessions)
{
    const size_t to_send = totals.missing + totals.outdated;
    return "The sessions, as the receiver answered:\n\n" + counted("sessions there are", sessions.size()) +
           counted("in the receiver's store after its restart", totals.restored) +
           counted("  as they should be", sessions.size() - to_send) + counted("  outdated", totals.outdated) +
           counted("  of subscribers who have gone", totals.gone) +
           counted("not in the receiver's store", totals.missing) +
           counted("replayed, missing and outdated ones", totals.replayed) +
           counted("refused at first and replayed again", totals.refused) +
           counted("replayed with services to start", totals.service_starts) +
           counted("  services started", totals.services) + counted("removed", totals.gone) +
           counted("held by the receiver at the end", totals.held);
}

// The messages of each kind. What came after the run, for the comparison, has a line of its own below the sum.
std::string describe(const message_channel &channel)
{
    std::string text = "The messages:\n\n  " + left("message", name_width) + left("from", side_width) +
                       right("messages", number_width) + right("bytes", number_width) + "\n";
    traffic sum;
    for (size_t i = 1; i < static_cast<size_t>(message_kind::held_session); ++i) {
        const auto kind = static_cast<message_kind>(i);
        const traffic &total = channel.traffic_of(kind);
        text += row(name_of(kind), sender_of(kind), total);
        sum.messages += total.messages;
        sum.bytes += total.bytes;
    }
    return text + row("together", "", sum) + "\nAfter the run, for the comparison:\n\n" +
           row(name_of(message_kind::held_session), "receiver", channel.traffic_of(message_kind::held_session));
}

constexpr size_t printed_differences = 20;

int be_restarted_receiver(const run_options &options)
{
    message_channel channel(STDIN_FILENO, STDOUT_FILENO);
    restarted_receiver receiver(sessions_in_stale_store(read_subscribers(options.file)), channel);
    receiver.reconcile();
    if (options.spoils_one)
        receiver.spoil_one();
    receiver.send_held_sessions();
    return done;
}

// Returns whether there was nothing to report.
bool report_differences(const session_set &wanted, const session_set &held)
{
    const std::vector<std::string> found = differences(wanted, held);
    for (size_t i = 0; i < std::min(found.size(), printed_differences); ++i)
        std::cerr << found[i] << "\n";
    if (found.empty())
        std::cout << "\nBoth sides hold the same " << readable_count(wanted.size()) << " sessions, "
                  << readable_count(wanted.wire_bytes()) << " bytes: compared byte by byte.\n";
    else
        std::cout << "\nThe two sides hold different sets: " << readable_count(found.size()) << " sessions differ.\n";
    return found.empty();
}

bool reconcile_with(const child_process &receiver, const session_set &sessions)
{
    message_channel channel(receiver.output(), receiver.input());
    keeper side(sessions, channel);
    stopwatch run;
    const run_totals totals = run.measure([&] { return side.reconcile(); });
    const std::string in_adapters = channel.in_adapters().milliseconds();
    const session_set held = side.receive_held_sessions();
    std::cout << describe(totals, sessions) << "\n"
              << describe(channel) << "\nkeeper (process " << getpid() << "): the run took " << run.milliseconds()
              << ", " << in_adapters << " of them in the adapters\n";
    return report_differences(sessions, held);
}

int be_both_sides(const run_options &options)
{
    // Read before the receiver starts, so that only one of the two complains about the file.
    const session_set sessions = sessions_of(read_subscribers(options.file));
    std::vector<std::string> command = {
        options.receiver.empty() ? this_program : options.receiver, "--restarted", options.file};
    if (options.spoils_one)
        command.emplace_back("--spoil-one");
    child_process receiver(command, child_output::piped);
    bool agree = false;
    try {
        agree = reconcile_with(receiver, sessions);
    } catch (const stream_error &error) {
        std::cerr << "reconciliation: " << error.what() << "\n";
    }
    const int receiver_status = receiver.finish();
    if (receiver_status != 0)
        std::cerr << "reconciliation: the receiver ended with status " << receiver_status << "\n";
    return receiver_status != 0 || agree ? receiver_status : static_cast<int>(not_done);
}

int run(std::span<char *const> arguments)
{
    const run_options options = parse_run_options(arguments);
    switch (options.what) {
    case part::help:
        std::cout << run_help();
        return done;
    case part::restarted_receiver:
        return be_restarted_receiver(options);
    case part::both_sides:
        break;
    }
    return be_both_sides(options);
}

} // namespace

} // namespace examples::reconciliation

int main(int argc, char **argv)
{
    using namespace examples;
    return reported_run("reconciliation", std::span(argv, static_cast<size_t>(argc)), reconciliation::run);
}
