// Runs the program as a user does: two processes, a file, a report.
#include "run_program.h"
#include "subscriber_file.h"
#include "subscriber_lines.h"

#include <gtest/gtest.h>
#include <regex>

namespace
{

const std::string program = "'" RECONCILIATION "'";
const std::string shipped = "'" SUBSCRIBERS_FILE "'";

bool has(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

size_t number_in(std::string text)
{
    std::erase(text, ',');
    return std::stoul(text);
}

// The number after a label; a wrong one if the label does not exist.
size_t count_of(const std::string &report, const std::string &label)
{
    std::smatch found;
    const bool is_there = std::regex_search(report, found, std::regex("\n *" + label + " +([0-9,]+)\n"));
    EXPECT_TRUE(is_there) << label;
    return is_there ? number_in(found[1]) : 999999999;
}

struct row {
    size_t messages = 0, bytes = 0;
};

row row_of(const std::string &report, const std::string &name)
{
    std::smatch found;
    const bool is_there =
        std::regex_search(report, found, std::regex("\n  " + name + " +(?:keeper|receiver)? +([0-9,]+) +([0-9,]+)\n"));
    EXPECT_TRUE(is_there) << name;
    return is_there ? row{number_in(found[1]), number_in(found[2])} : row{};
}

const char *const kinds[] = {"rec_start_req", "rec_start_res", "rec_sess_req", "rec_sess_res", "session_delete",
    "sess_oper_resp", "rec_sess_replay_req", "rec_sess_replay_resp", "rec_complete_req", "rec_complete_res"};

const std::string &shipped_report()
{
    static const program_result result = run_program(program + " " + shipped);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    return result.output;
}

} // namespace

TEST(reconciliation, of_the_shipped_subscribers_ends_with_the_same_sessions_on_both_sides)
{
    const std::string &report = shipped_report();
    std::smatch found;
    ASSERT_TRUE(std::regex_search(report, found,
        std::regex("\nBoth sides hold the same 1,200 sessions, ([0-9,]+) bytes: compared byte by byte\\.\n")))
        << report;
    const row held = row_of(report, "session_context");
    EXPECT_EQ(held.messages, 1200U);
    EXPECT_EQ(held.bytes, number_in(found[1]));
    EXPECT_EQ(count_of(report, "held by the receiver at the end"), 1200U);
}

TEST(reconciliation, finds_what_the_old_store_lacks_and_what_it_has_otherwise)
{
    const std::string &report = shipped_report();
    EXPECT_EQ(count_of(report, "sessions there are"), 1200U);
    EXPECT_EQ(count_of(report, "not in the receiver's store"), 240U);
    EXPECT_EQ(count_of(report, "outdated"), 137U);
    EXPECT_EQ(count_of(report, "of subscribers who have gone"), 109U);
    EXPECT_EQ(count_of(report, "as they should be"), 1200U - 240U - 137U);
    // The receiver has its own count.
    EXPECT_EQ(count_of(report, "in the receiver's store after its restart"), 1200U - 240U + 109U);
    EXPECT_EQ(count_of(report, "replayed, missing and outdated ones"), 240U + 137U);
    EXPECT_EQ(count_of(report, "removed"), 109U);
}

TEST(reconciliation, takes_one_message_for_each_request_and_each_answer)
{
    const std::string &report = shipped_report();
    const size_t refused = count_of(report, "refused at first and replayed again");
    EXPECT_EQ(refused, 377U / 10U);
    EXPECT_EQ(row_of(report, "rec_start_req").messages, 1U);
    EXPECT_EQ(row_of(report, "rec_sess_req").messages, 1200U / 30U + 109U / 30U + 1U);
    EXPECT_EQ(row_of(report, "session_delete").messages, 109U);
    EXPECT_EQ(row_of(report, "rec_sess_replay_req").messages, 377U + refused);
    EXPECT_EQ(row_of(report, "rec_complete_req").messages, 1U);
    for (size_t i = 0; i < std::size(kinds); i += 2)
        EXPECT_EQ(row_of(report, kinds[i]).messages, row_of(report, kinds[i + 1]).messages) << kinds[i];
}

TEST(reconciliation, adds_up_the_messages_of_all_kinds)
{
    row sum;
    for (const char *kind : kinds) {
        const row each = row_of(shipped_report(), kind);
        EXPECT_GT(each.bytes, 0U) << kind;
        sum.messages += each.messages;
        sum.bytes += each.bytes;
    }
    const row together = row_of(shipped_report(), "together");
    EXPECT_EQ(together.messages, sum.messages);
    EXPECT_EQ(together.bytes, sum.bytes);
}

TEST(reconciliation, starts_the_services_of_the_replayed_sessions)
{
    const std::string &report = shipped_report();
    const size_t starts = count_of(report, "replayed with services to start");
    EXPECT_GT(starts, 0U);
    EXPECT_LT(starts, 377U); // some of them have none
    EXPECT_GE(count_of(report, "services started"), starts);
}

TEST(reconciliation, without_a_file_takes_the_shipped_one)
{
    const program_result result = run_program("cd / && " + program);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(has(result.output, "\nBoth sides hold the same 1,200 sessions")) << result.output;
}

TEST(reconciliation, of_one_full_subscriber_replays_nothing)
{
    const scratch_folder scratch;
    const std::string names = examples::column_names();
    const std::string file = scratch.file("one.csv", names + "\n" + line_of(full_cells(), names));
    const program_result result = run_program(program + " " + file);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(row_of(result.output, "rec_sess_replay_req").messages, 0U);
    EXPECT_TRUE(has(result.output, "\nBoth sides hold the same 1 sessions")) << result.output;
}

TEST(reconciliation, a_session_that_differs_at_the_end_is_named)
{
    const program_result result = run_program(program + " --spoil-one " + shipped);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(std::regex_match(result.errors,
        std::regex("line id node-[^:\n]*: [0-9]+ bytes held, [0-9]+ wanted; they differ from byte [0-9]+ on\n")))
        << result.errors;
    EXPECT_TRUE(has(result.output, "\nThe two sides hold different sets: 1 sessions differ.\n")) << result.output;
    EXPECT_FALSE(has(result.output, "Both sides hold the same")) << result.output;
}

TEST(reconciliation, help_names_the_framing_and_the_options)
{
    const program_result result = run_program(program + " --help");
    EXPECT_EQ(result.status, 0);
    for (const char *part : {"4 bytes, big-endian", "--restarted", "--receiver PROGRAM", "--spoil-one"})
        EXPECT_TRUE(has(result.output, part)) << part;
}

// ---- what goes wrong ----

TEST(reconciliation, an_unknown_argument_is_named)
{
    const program_result result = run_program(program + " --spoil");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "reconciliation: unknown or incomplete argument --spoil; see --help\n");
}

TEST(reconciliation, a_missing_file_is_named_once)
{
    const program_result result = run_program(program + " /nowhere/subscribers.csv");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "/nowhere/subscribers.csv: cannot be opened: No such file or directory; give the path of "
                             "a file of subscribers (--help says more)\n");
}

TEST(reconciliation, a_bad_line_is_named_once)
{
    const scratch_folder scratch;
    const std::string names = examples::column_names();
    const std::string file = scratch.file("bad.csv", names + "\n" + line_of(full_cells_but("value_9", "65536"), names));
    const program_result result = run_program(program + " " + file);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, file + ":2: value_9: \"65536\" is not a number from 0 to 65535; write decimal digits, or "
                                    "nothing for 0\n");
}

TEST(reconciliation, a_receiver_that_cannot_be_started_is_named)
{
    const program_result result = run_program(program + " --receiver /nowhere/receiver " + shipped);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(
        result.errors, "reconciliation: cannot start the receiver /nowhere/receiver: No such file or directory\n");
}

// Which of the two errors the keeper sees depends on the time at which the receiver ends.
const std::string receiver_gone = "reconciliation: (rec_start_req not sent: the reader has gone away \\(broken pipe\\)|"
                                  "rec_start_res not received: the other process has closed its stream)\n";

TEST(reconciliation, a_receiver_that_takes_nothing_is_a_failure_even_if_it_claims_success)
{
    const program_result result = run_program(program + " --receiver /bin/true " + shipped);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(std::regex_match(result.errors, std::regex(receiver_gone))) << result.errors;
    EXPECT_FALSE(has(result.output, "Both sides hold the same")) << result.output;
}

TEST(reconciliation, the_exit_status_of_the_receiver_is_passed_on)
{
    const scratch_folder scratch;
    const std::string receiver = scratch.program("receiver", "head -c 1 >/dev/null; exit 7");
    const program_result result = run_program(program + " --receiver " + receiver + " " + shipped);
    EXPECT_EQ(result.status, 7);
    EXPECT_TRUE(std::regex_match(
        result.errors, std::regex(receiver_gone + "reconciliation: the receiver ended with status 7\n")))
        << result.errors;
}

TEST(reconciliation, the_exit_status_counts_even_if_the_sets_are_the_same)
{
    const scratch_folder scratch;
    const std::string receiver = scratch.program("receiver", program + " \"$@\"; exit 7");
    const program_result result = run_program(program + " --receiver " + receiver + " " + shipped);
    EXPECT_EQ(result.status, 7);
    EXPECT_EQ(result.errors, "reconciliation: the receiver ended with status 7\n");
    EXPECT_TRUE(has(result.output, "Both sides hold the same 1,200 sessions")) << result.output;
}

TEST(reconciliation, a_signal_that_ends_the_receiver_shows_in_the_exit_status)
{
    const scratch_folder scratch;
    const std::string receiver = scratch.program("receiver", "head -c 1 >/dev/null; kill -KILL $$");
    const program_result result = run_program(program + " --receiver " + receiver + " " + shipped);
    EXPECT_EQ(result.status, 128 + 9);
    EXPECT_TRUE(has(result.errors, "reconciliation: the receiver ended with status 137\n")) << result.errors;
}

// dd passes each byte on at once; head would buffer an answer that the keeper waits for. The shell closes its ends of
// the pipes, so that only dd holds them.
TEST(reconciliation, a_pipe_that_breaks_during_the_run_is_a_failure_of_both_sides)
{
    const scratch_folder scratch;
    const std::string receiver = scratch.program("receiver",
        "exec 3<&0\n" + program + " \"$@\" <&3 3<&- | dd bs=1 count=5000 2>/dev/null 3<&- &\nexec 3<&- <&- >&-; wait");
    const program_result result = run_program(program + " --receiver " + receiver + " " + shipped);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(std::regex_search(result.errors,
        std::regex("reconciliation: rec_sess_res not received: the stream ends inside a frame, after [0-9]+ of [0-9]+ "
                   "bytes\n")))
        << result.errors;
    EXPECT_FALSE(has(result.output, "Both sides hold the same")) << result.output;
}

TEST(reconciliation, a_stream_that_goes_on_behind_the_last_session_is_a_failure)
{
    const scratch_folder scratch;
    const std::string receiver =
        scratch.program("receiver", program + " \"$@\"; printf '\\000\\000\\000\\001\\013'; cat >/dev/null");
    const program_result result = run_program(program + " --receiver " + receiver + " " + shipped);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "reconciliation: session_context: more sessions came than the receiver claims to hold\n");
}

TEST(reconciliation, a_frame_without_a_kind_is_refused)
{
    const scratch_folder scratch;
    for (const char *frame : {"\\000\\000\\000\\000", "\\000\\000\\000\\001\\000", "\\000\\000\\000\\001\\014"}) {
        const std::string receiver = scratch.program("receiver", "printf '" + std::string(frame) + "'; cat >/dev/null");
        const program_result result = run_program(program + " --receiver " + receiver + " " + shipped);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.errors, "reconciliation: rec_start_res not received: a frame does not start with the kind of "
                                 "a message: this is no stream of our messages\n");
    }
}

TEST(reconciliation, a_restarted_receiver_without_a_keeper_says_so)
{
    const program_result result = run_program(program + " --restarted " + shipped + " </dev/null");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "reconciliation: the keeper has closed its stream before it completed the run\n");
    EXPECT_EQ(result.output, "");
}

TEST(reconciliation, an_output_that_cannot_be_written_is_a_failure)
{
    const program_result result = run_program(program + " " + shipped + " >/dev/full");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(has(result.errors, "cannot write to the standard output")) << result.errors;
}
