// Runs the program as a user does: two processes, a file, a report.
#include "run_program.h"
#include "subscriber_file.h"
#include "subscriber_lines.h"

#include <gtest/gtest.h>
#include <regex>

namespace
{

const std::string program = "'" SESSION_SETUP "'";
const std::string shipped = "'" SUBSCRIBERS_FILE "'";

bool has(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

std::string process_of(const std::string &output, const std::string &role)
{
    std::smatch found;
    const bool is_there =
        std::regex_search(output, found, std::regex(role + " \\(process ([0-9]+)\\): 1,200 sessions"));
    return is_there ? found[1].str() : "";
}

// A file of one subscriber with all columns, of which one cell is changed.
std::string one_subscriber(const scratch_folder &scratch, const std::string &column, const std::string &cell)
{
    const std::string names = examples::column_names();
    return scratch.file(column + ".csv", names + "\n" + line_of(full_cells_but(column, cell), names));
}

} // namespace

TEST(session_setup, every_shipped_subscriber_crosses_to_another_process_without_a_mismatch)
{
    const program_result result = run_program(program + " " + shipped);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(has(result.output, "\nmismatches: 0 sessions, 0 values\n")) << result.output;
    const std::string sender = process_of(result.output, "sender");
    const std::string receiver = process_of(result.output, "receiver");
    EXPECT_NE(sender, "") << result.output;
    EXPECT_NE(receiver, "") << result.output;
    EXPECT_NE(sender, receiver);
}

TEST(session_setup, without_a_file_takes_the_shipped_one)
{
    const program_result result = run_program("cd / && " + program);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(process_of(result.output, "receiver"), "") << result.output;
}

TEST(session_setup, prints_the_first_sessions_and_annotated_wire_bytes_as_expected)
{
    const program_result result =
        run_program(program + " --send " + shipped + " | " + program + " --receive " + shipped);
    EXPECT_EQ(result.status, 0) << result.errors;
    const std::string report = result.output.substr(0, result.output.find("\nreceiver (process"));
    EXPECT_EQ(report, read_file(EXPECTED_REPORT_FILE));
}

TEST(session_setup, help_names_the_columns_and_the_framing)
{
    const program_result result = run_program(program + " --help");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(has(result.output, examples::column_names())) << result.output;
    EXPECT_TRUE(has(result.output, "4 bytes, big-endian")) << result.output;
}

TEST(session_setup, an_unknown_argument_is_named)
{
    const program_result result = run_program(program + " --sned");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "session_setup: unknown or incomplete argument --sned; see --help\n");
}

TEST(session_setup, a_value_that_differs_from_the_file_is_named_with_both_values)
{
    const scratch_folder scratch;
    const std::string sent = one_subscriber(scratch, "mtu", "1500|1492|1280");
    const std::string expected = one_subscriber(scratch, "icmp", "1|7");
    const program_result result =
        run_program(program + " --send " + sent + " 2>&1 >" + scratch.file("frames", "") + " && " + program +
                    " --receive " + expected + " <" + std::filesystem::path(sent).parent_path().string() + "/frames");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, expected + ":2: line id node-01 1/1: icmp_2_value: the file says 7, received 2\n");
    EXPECT_TRUE(has(result.output, "\nmismatches: 1 sessions, 1 values\n")) << result.output;
}

TEST(session_setup, a_receiver_that_dies_is_a_broken_pipe_that_names_the_line)
{
    const program_result result = run_program(program + " --receiver /bin/false " + shipped);
    EXPECT_EQ(result.status, 1);
    const std::regex message("[^\n]*subscribers\\.csv:[0-9]+: line id node-[^\n]*: not sent: the reader has gone away "
                             "\\(broken pipe\\); this session and those after it are lost\\. See what the receiver "
                             "says, and send all again\nsession_setup: the receiver ended with status 1\n");
    EXPECT_TRUE(std::regex_match(result.errors, message)) << result.errors;
    EXPECT_FALSE(has(result.output, "sender (process")) << result.output;
}

TEST(session_setup, sessions_that_nobody_read_are_a_failure_even_if_the_receiver_claims_success)
{
    const program_result result = run_program(program + " --receiver /bin/true " + shipped);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(has(result.errors, "broken pipe")) << result.errors;
}

TEST(session_setup, the_exit_status_of_the_receiver_is_passed_on)
{
    const scratch_folder scratch;
    const std::string receiver = scratch.program("receiver", "cat >/dev/null; exit 7");
    const program_result result = run_program(program + " --receiver " + receiver + " " + shipped);
    EXPECT_EQ(result.status, 7);
    EXPECT_EQ(result.errors, "session_setup: the receiver ended with status 7\n");
}

TEST(session_setup, a_signal_that_ends_the_receiver_shows_in_the_exit_status)
{
    const scratch_folder scratch;
    const std::string receiver = scratch.program("receiver", "cat >/dev/null; kill -KILL $$");
    const program_result result = run_program(program + " --receiver " + receiver + " " + shipped);
    EXPECT_EQ(result.status, 128 + 9);
    EXPECT_EQ(result.errors, "session_setup: the receiver ended with status 137\n");
}

TEST(session_setup, a_receiver_that_cannot_be_started_is_named)
{
    const program_result result = run_program(program + " --receiver /nowhere/receiver " + shipped);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "session_setup: cannot start the receiver /nowhere/receiver: No such file or directory\n");
}

TEST(session_setup, an_output_that_cannot_be_written_is_a_failure)
{
    const program_result result = run_program(program + " " + shipped + " >/dev/full");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(has(result.errors, "cannot write to the standard output")) << result.errors;
}

// ---- what the receiver makes of a stream that is not whole; the first session has 378 bytes ----

namespace
{

program_result receive_cut_stream(int bytes)
{
    return run_program(program + " --send " + shipped + " 2>/dev/null | head -c " + std::to_string(bytes) + " | " +
                       program + " --receive " + shipped);
}

} // namespace

TEST(session_setup, a_stream_that_ends_between_two_sessions_names_the_first_missing_one)
{
    const program_result result = receive_cut_stream(4 + 378);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(has(result.errors,
        "subscribers.csv:42: line id node-03 1/1/2: not received: the stream ends after 1 sessions; this session and "
        "those after it are lost. See what the sender says, and send all again\n"))
        << result.errors;
}

TEST(session_setup, a_stream_that_ends_inside_a_length_is_noticed)
{
    const program_result result = receive_cut_stream(4 + 378 + 3);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(has(result.errors,
        "subscribers.csv:42: line id node-03 1/1/2: not received: the stream ends inside a frame's length, after 3 of "
        "4 bytes;"))
        << result.errors;
}

TEST(session_setup, a_stream_that_ends_inside_a_session_is_noticed)
{
    const program_result result = receive_cut_stream(4 + 100);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(has(result.errors,
        "subscribers.csv:41: line id node-02 1/1/1: not received: the stream ends inside a frame, after 100 of 378 "
        "bytes;"))
        << result.errors;
}

TEST(session_setup, a_stream_that_goes_on_behind_the_last_subscriber_is_refused)
{
    const std::string send = program + " --send " + shipped + " 2>/dev/null";
    const program_result result = run_program("{ " + send + "; " + send + "; } | " + program + " --receive " + shipped);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(has(result.errors, "received more sessions than the 1200 of ")) << result.errors;
}

TEST(session_setup, a_stream_of_something_else_is_refused_by_its_first_length)
{
    const program_result result = run_program("echo something else | " + program + " --receive " + shipped);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(has(result.errors, "a frame claims 1936682341 bytes, but 65536 is the limit")) << result.errors;
}
