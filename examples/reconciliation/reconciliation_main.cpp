// Two processes agree on a set of sessions again, after one of them has restarted with an old store.
//
//   keeper process                       == pipe ==>       restarted process
//   file -> all sessions                 <== pipe ==       file -> what an old store has of them
//
// What they say to each other: keeper.h.
#include "child_process.h"
#include "readable.h"
#include "reported_run.h"
#include "restarted_receiver.h"
#include "run_options.h"
#include "run_report.h"
#include "stale_store.h"
#include "subscriber_file.h"

#include <algorithm>
#include <iostream>
#include <unistd.h>

namespace examples::reconciliation
{

namespace
{

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
