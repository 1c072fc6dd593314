// The replication as a user runs it: a server of its own, two processes, one of them and the server killed on the way.
// And a replica alone, with a server whose stream the test writes.
#include "run_program.h"

#include <gtest/gtest.h>
#include <regex>

namespace
{

const std::string program = "'" REPLICATION "'";
const std::string nothing_applied;

bool server_is_missing()
{
    return run_program("command -v redis-server redis-cli").status != 0;
}

// A server with a stream; `sessions` puts entries into it, each the words behind XADD's id.
class server
{
public:
    server() : m_socket(m_folder.file("socket", ""))
    {
        run_program("rm " + m_socket + "; redis-server --port 0 --unixsocket " + m_socket +
                    " --save '' --daemonize yes --logfile " + m_folder.file("log", ""));
        run_program("until " + client + m_socket + " ping | grep -q PONG; do sleep 0.05; done");
    }

    ~server()
    {
        run_program(client + m_socket + " shutdown nosave");
    }

    server(const server &) = delete;
    server &operator=(const server &) = delete;

    // `message` as printf writes it.
    void add(const std::string &message) const
    {
        const program_result added =
            run_program("printf '" + message + "' | " + client + m_socket + " -x XADD sessions '*' m");
        EXPECT_EQ(added.status, 0) << added.output << added.errors;
    }

    void call(const std::string &command) const
    {
        const program_result called = run_program(client + m_socket + " " + command);
        EXPECT_EQ(called.status, 0) << called.output << called.errors;
    }

    program_result run_replica(const std::string &store) const
    {
        return run_program(program + " --replica " + m_socket + " " + store);
    }

private:
    const std::string client = "redis-cli -s ";
    const scratch_folder m_folder;
    const std::string m_socket;
};

void expect_refused(const std::string &message, const std::string &reason)
{
    const server with;
    with.add("\\010\\001");
    with.add(message);
    const scratch_folder scratch;
    const std::string store = scratch.file("store", nothing_applied);
    const program_result result = with.run_replica(store);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(std::regex_match(result.errors, std::regex("replica: entry [0-9]+-[0-9]+ " + reason + "\n")))
        << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(read_file(store), nothing_applied);
}

// Runs the program with its folder below `folder`, which the commands after it also find as $folder.
program_result run_below(const scratch_folder &scratch, const std::string &sessions, const std::string &commands)
{
    const std::string folder = std::filesystem::path(scratch.file("here", "")).parent_path().string();
    return run_program("folder=" + folder + "; export TMPDIR=$folder\n" + program + " " + sessions +
                       " & publisher=$!\n" + "is_running() { kill -0 $publisher || exit 3; sleep 0.02; }\n" + commands);
}

} // namespace

TEST(replication, of_20000_sessions_loses_nothing_when_the_server_and_the_replica_are_killed)
{
    if (server_is_missing())
        GTEST_SKIP() << "redis-server is not installed";
    const program_result result = run_program(program + " 20000");
    EXPECT_EQ(result.status, 0) << result.output << result.errors;
    EXPECT_TRUE(std::regex_match(result.output,
        std::regex("ok      the server was killed and started again: of [0-9,]+ acknowledged sessions it has lost 0\n"
                   "        the replica had [0-9,]+ entries redelivered and applied [0-9,]+ entries\n"
                   "ok      [0-9,]+ messages of 20,000 sessions were published\n"
                   "ok      the replica was killed and started again: 20,000 sessions, 0 missing or different\n"
                   "ok      the state on the server: 20,000 sessions, 0 missing or different\n"
                   "ok      a stale replica, of which 400 were missing, 228 outdated and 1 gone, was reconciled: "
                   "20,000 sessions, 0 missing or different\n"
                   "rates   .*\n")))
        << result.output;
    // What the replica says when the server dies.
    EXPECT_TRUE(std::regex_match(result.errors, std::regex("replica: the server has gone away: [^\n]*\n")))
        << result.errors;
}

TEST(replication, a_server_that_refuses_a_command_ends_the_run_with_one_line)
{
    if (server_is_missing())
        GTEST_SKIP() << "redis-server is not installed";
    const scratch_folder scratch;
    const std::string server_program =
        scratch.program("redis-server", "exec /usr/bin/redis-server \"$@\" --maxmemory 4mb");
    const std::string folder = std::filesystem::path(server_program).parent_path().string();
    const program_result result = run_program("PATH=" + folder + ":$PATH " + program + " 20000");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(std::regex_match(result.errors, std::regex("replication: the server refuses: OOM [^\n]*\n")))
        << result.errors;
    EXPECT_EQ(result.output, "");
}

TEST(replication, a_publisher_that_is_killed_leaves_no_server_and_no_folder)
{
    if (server_is_missing())
        GTEST_SKIP() << "redis-server is not installed";
    const scratch_folder scratch;
    const program_result result = run_below(scratch, "2000000",
        "until [ -s $folder/replication-*/store ]; do is_running; done\n"
        "kill -KILL $publisher\n"
        "for second in $(seq 60); do\n"
        "    [ -e $folder/replication-* ] || grep -qsa \"[u]nixsocket.$folder\" /proc/[0-9]*/cmdline || exit 0\n"
        "    sleep 1\n"
        "done\n"
        "exit 4");
    EXPECT_EQ(result.status, 0) << result.output << result.errors;
}

TEST(replication, a_stale_replica_that_is_killed_ends_the_run_with_one_line)
{
    if (server_is_missing())
        GTEST_SKIP() << "redis-server is not installed";
    const scratch_folder scratch;
    const program_result result = run_below(scratch, "5000",
        "until found=$(grep -lsa \"[-]-stale.$folder\" /proc/[0-9]*/cmdline); do is_running; done\n"
        "kill -KILL $(echo $found | tr -dc 0-9)\n"
        "wait $publisher");
    EXPECT_EQ(result.status, 1) << result.output;
    EXPECT_TRUE(
        std::regex_match(result.errors, std::regex("replica: the server has gone away: [^\n]*\n"
                                                   "replication: the other side ended before its last message\n")))
        << result.errors;
}

TEST(replication, a_replica_takes_what_an_earlier_life_left_and_cuts_off_half_a_message)
{
    if (server_is_missing())
        GTEST_SKIP() << "redis-server is not installed";
    const server with;
    with.add("\\010\\001");
    with.call("XGROUP CREATE sessions replica-1 0");
    with.call("XREADGROUP GROUP replica-1 replica STREAMS sessions '>'"); // and no XACK
    with.add("\\010\\002");
    with.add("");
    const scratch_folder scratch;
    const std::string store = scratch.file("store", std::string("\0\0\0\2\x08", 5));
    const program_result result = with.run_replica(store);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "        the replica had 1 entries redelivered and applied 2 entries\n");
    EXPECT_EQ(read_file(store), std::string("\0\0\0\2\x08\1\0\0\0\2\x08\2", 12));
}

TEST(replication, a_store_that_is_no_stream_of_messages_is_refused_and_stays_as_it_is)
{
    const scratch_folder scratch;
    const std::string content = "a page of text, which starts with a length above any limit";
    const std::string store = scratch.file("store", content);
    const program_result result = run_program(program + " --replica /nowhere/socket " + store);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(std::regex_match(result.errors, std::regex("replica: a frame claims [0-9]+ bytes, [^\n]*\n")))
        << result.errors;
    EXPECT_EQ(read_file(store), content);
}

TEST(replication, a_replica_refuses_a_malformed_entry_and_applies_nothing_of_its_batch)
{
    if (server_is_missing())
        GTEST_SKIP() << "redis-server is not installed";
    expect_refused("\\010\\001\\020", "is not a session: [^\n]*");
}

TEST(replication, a_replica_refuses_an_entry_that_is_larger_than_any_session)
{
    if (server_is_missing())
        GTEST_SKIP() << "redis-server is not installed";
    expect_refused("%065537d", "has 65537 bytes, more than any session");
}

TEST(replication, a_replica_without_a_server_says_so)
{
    const scratch_folder scratch;
    const std::string store = scratch.file("store", "");
    const program_result result = run_program(program + " --replica /nowhere/socket " + store);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "replica: cannot reach the server at /nowhere/socket: No such file or directory\n");
    EXPECT_EQ(result.output, "");
}

TEST(replication, without_a_server_program_the_run_ends_with_one_line)
{
    const program_result result = run_program("PATH=/nowhere " + program + " 100");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "replication: cannot start a server: redis-server is not installed\n");
    EXPECT_EQ(result.output, "");
}

TEST(replication, arguments_that_are_no_number_of_sessions_are_named)
{
    for (const std::string argument : {"many", "99", "2000001", "1e3"}) {
        const program_result result = run_program(program + " " + argument);
        EXPECT_EQ(result.status, 2) << argument;
        EXPECT_EQ(result.errors,
            "replication: \"" + argument + "\" is not a number of sessions from 100 to 2000000; see --help\n");
    }
}
