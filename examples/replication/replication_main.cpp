// Sessions from a publisher through Redis Streams to a replica, with a server of the run's own. The replica and the
// server are killed on the way; a replica with an old store is brought up to date by a reconciliation over two streams.
//
//   publisher (this process) -- XADD --> stream "sessions" -- group --> replica process -> store
//                            -- HSET --> hash "state"
#include "engine.h"
#include "keeper.h"
#include "private_server.h"
#include "readable.h"
#include "replica.h"
#include "reported_run.h"
#include "restarted_receiver.h"
#include "session_record.h"
#include "stream_link.h"
#include "subscriber_file.h"

#include "mava_tum/cpp/adapters.hpp"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <random>
#include <string_view>
#include <thread>

namespace examples::replication
{

namespace
{

using reconciliation::session_set;

constexpr size_t default_sessions = 20'000, most_sessions = 2'000'000;
constexpr size_t batch_sessions = 500; // on their way at once
constexpr size_t changed_one_in = 10, missing_one_in = 50, outdated_one_in = 70;

const char help[] =
    "Usage: replication [SESSIONS]\n"
    "\n"
    "Publishes so many sessions, 20000 if not given, through Redis Streams to a replica in another process. The\n"
    "replica and the server are killed with SIGKILL on the way. Then a replica with an old store is brought up to\n"
    "date. Starts a server of its own in a temporary folder. Prints five facts.\n"
    "\n"
    "  --replica SOCKET STORE      be the replica (the program starts itself so)\n"
    "  --stale SOCKET SESSIONS     be the replica with an old store\n"
    "\n"
    "Exit status: 0 nothing was lost and nothing differs; 1 otherwise; 2 the arguments are wrong.\n";

// What there is of a session at the end: one in ten has been changed once.
uint32_t last_version(size_t number)
{
    return number % changed_one_in == 0 ? 2 : 1;
}

// Sessions of any number, made from those of the file: each has a line id of its own. Of a batch, no two are made from
// the same one: each stays as it is until the next batch.
class session_source
{
public:
    session_source()
    {
        tum_nal_data_session_context session{};
        for (const subscriber &who : read_subscribers(shipped_file)) {
            fill_session_record(session, who);
            m_sessions.push_back(session);
        }
    }

    const tum_nal_data_session_context &session(size_t number, uint32_t version)
    {
        tum_nal_data_session_context &made =
            m_sessions[(number % changed_one_in * m_sessions.size() + number) / changed_one_in % m_sessions.size()];
        std::snprintf(made.session_text, sizeof made.session_text, "line-%zu", number);
        made.session_value_3 = version;
        return made;
    }

private:
    std::vector<tum_nal_data_session_context> m_sessions;
};

class publisher
{
public:
    explicit publisher(const private_server &server) : m_server(server) {}

    // Publishes the sessions from `first` on that `one_in` divides, in batches. `on_their_way` is called when a batch
    // has left and no answer has been read; true: the server was killed, so that the batch is published once more.
    template <typename Call>
    void publish(size_t first, size_t behind, uint32_t version, size_t one_in, Call on_their_way)
    {
        while (first < behind) {
            const size_t next = std::min(behind, first + batch_sessions * one_in);
            const std::clock_t start = std::clock();
            time.measure([&] { send(first, next, version, one_in); });
            if (on_their_way(next)) {
                m_connection.reset();
                continue;
            }
            time.measure([&] { m_connection->wait_for_answers(); });
            m_processor += std::clock() - start;
            for (const auto &message : m_batch)
                acknowledged.put_wire(message);
            published += m_batch.size();
            first = next;
        }
    }

    // Of the processor time of publishing, what the adapter takes.
    double adapter_share() const
    {
        return static_cast<double>(m_in_adapter) / static_cast<double>(m_processor);
    }

    session_set acknowledged; // the last message of each session
    size_t published = 0;
    stopwatch time; // until the answers have arrived

private:
    void send(size_t first, size_t behind, uint32_t version, size_t one_in)
    {
        if (!m_connection)
            m_connection = std::make_unique<engine>(m_server.socket_path());
        std::vector<const tum_nal_data_session_context *> sessions;
        for (size_t i = first; i < behind; i += one_in)
            sessions.push_back(&m_source.session(i, version));
        encode(sessions);
        for (size_t i = 0; i < sessions.size(); ++i)
            m_connection->queue_session(session_stream, sessions[i]->session_text, m_batch[i]);
        m_connection->send_queued();
    }

    // All of a batch one after the other, so that the clock is read twice for many.
    void encode(const std::vector<const tum_nal_data_session_context *> &sessions)
    {
        constexpr uint32_t place_bytes = TUM_NAL_SESSION_CONTEXT_MAX_SIZE;
        m_encoded.resize(sessions.size() * place_bytes);
        std::vector<uint64_t> sizes(sessions.size());
        const std::clock_t start = std::clock();
        for (size_t i = 0; i < sessions.size(); ++i)
            sizes[i] = mava_tum::cpp::encode(*sessions[i], {m_encoded.data() + i * place_bytes, place_bytes}).size;
        m_in_adapter += std::clock() - start;
        m_batch.clear();
        for (size_t i = 0; i < sessions.size(); ++i)
            m_batch.emplace_back(m_encoded.data() + i * place_bytes, m_encoded.data() + i * place_bytes + sizes[i]);
    }

    const private_server &m_server;
    session_source m_source;
    std::unique_ptr<engine> m_connection;
    std::vector<uint8_t> m_encoded;
    std::vector<std::vector<uint8_t>> m_batch;
    std::clock_t m_in_adapter = 0, m_processor = 0;
};

bool all_holds = true;

void fact(bool holds, const std::string &what)
{
    std::cout << (holds ? "ok      " : "NOT SO  ") << what << std::endl;
    all_holds = all_holds && holds;
}

std::string counted(size_t count, const char *what)
{
    return readable_count(count) + " " + what;
}

std::string percent(double share)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.1f %%", 100 * share);
    return text;
}

// The whole run, in its parts.
class replication_run
{
public:
    explicit replication_run(size_t sessions) : m_sessions(sessions), m_publisher(m_server) {}

    // After a failure, the replica has no one to wait for.
    ~replication_run()
    {
        if (m_replica)
            m_replica->kill();
    }

    replication_run(const replication_run &) = delete;
    replication_run &operator=(const replication_run &) = delete;

    int all()
    {
        restart_replica();
        publish_and_kill();
        end_replica();
        reconcile_stale_replica();
        std::cout << "rates   "
                  << counted(rate(m_publisher.published, m_publisher.time), "published a second, encoding ")
                  << percent(m_publisher.adapter_share()) << " of the publisher's processor time; "
                  << counted(rate(m_sessions, m_reconciled), "reconciled") << " a second\n";
        return all_holds ? done : not_done;
    }

private:
    static size_t rate(size_t sessions, const stopwatch &watch)
    {
        return static_cast<size_t>(static_cast<double>(sessions) / watch.seconds());
    }

    void restart_replica()
    {
        m_replica.reset();
        m_replica = std::make_unique<child_process>(
            std::vector<std::string>{this_program, "--replica", m_server.socket_path(), m_server.file("store")});
    }

    // The server dies at any point of the second quarter, the replica at any of the second half.
    void publish_and_kill()
    {
        const auto nothing = [](size_t) { return false; };
        std::mt19937_64 random(std::random_device{}());
        const size_t half = m_sessions / 2, quarter = m_sessions / 4;
        size_t server_dies = quarter + 1 + random() % (half - quarter);
        m_publisher.publish(0, quarter, 1, 1, nothing);
        wait_until_replica_applies();
        m_publisher.publish(quarter, half, 1, 1, [&](size_t sent) {
            const bool now = sent >= server_dies;
            if (now) {
                server_dies = m_sessions + 1;
                kill_server();
            }
            return now;
        });
        const size_t replica_dies = half + random() % (m_sessions - half);
        m_publisher.publish(half, replica_dies, 1, 1, nothing);
        m_replica->kill();
        restart_replica();
        m_publisher.publish(replica_dies, m_sessions, 1, 1, nothing);
        m_publisher.publish(0, m_sessions, 2, changed_one_in, nothing);
    }

    // A replica that is not connected yet would not see that the server dies.
    void wait_until_replica_applies() const
    {
        std::error_code not_there_yet;
        while (std::filesystem::file_size(m_server.file("store"), not_there_yet) == 0 || not_there_yet) {
            if (m_replica->has_ended())
                throw engine_error("the replica ended before it applied anything");
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }

    // The replica, which has said that the server has gone, starts again with it.
    void kill_server()
    {
        m_server.kill_and_restart();
        const session_set held = server_state();
        size_t lost = 0;
        for (const auto &[number, wanted] : m_publisher.acknowledged.entries())
            lost += held.has(number) && held.at(number).wire == wanted.wire ? 0 : 1;
        const size_t entries = engine(m_server.socket_path()).length_of(session_stream);
        fact(lost == 0 && entries >= m_publisher.published,
            "the server was killed and started again: of " +
                counted(m_publisher.published, "acknowledged sessions it has lost ") + readable_count(lost));
        const int status = m_replica->finish();
        if (status != not_done)
            fact(false, "the replica ended with status " + std::to_string(status) + " when the server died");
        restart_replica();
    }

    session_set server_state() const
    {
        session_set held;
        engine(m_server.socket_path()).each_state([&](std::span<const uint8_t> message) { held.put_wire(message); });
        return held;
    }

    void end_replica()
    {
        engine connection(m_server.socket_path());
        connection.append(session_stream, {});
        connection.wait_for_answers();
        const int status = m_replica->finish();
        fact(status == done && m_publisher.acknowledged.size() == m_sessions,
            counted(m_publisher.published, "messages of ") + counted(m_sessions, "sessions were published"));
        compare("the replica was killed and started again", read_store(m_server.file("store")));
        compare("the state on the server", server_state());
    }

    void compare(const std::string &what, const session_set &held) const
    {
        const size_t found = differences(m_publisher.acknowledged, held).size();
        fact(found == 0, what + ": " + counted(held.size(), "sessions, ") + counted(found, "missing or different"));
    }

    void reconcile_stale_replica()
    {
        child_process replica({this_program, "--stale", m_server.socket_path(), std::to_string(m_sessions)});
        stream_link link(m_server.socket_path(), "to-keeper", "to-replica", [&replica] { return replica.has_ended(); });
        link.run([&](int input, int output) {
            reconciliation::message_channel channel(input, output);
            reconciliation::keeper keeper(m_publisher.acknowledged, channel);
            const reconciliation::run_totals totals = m_reconciled.measure([&] { return keeper.reconcile(); });
            compare("a stale replica, of which " + counted(totals.missing, "were missing, ") +
                        counted(totals.outdated, "outdated and ") + counted(totals.gone, "gone, was reconciled"),
                keeper.receive_held_sessions());
        });
        const int status = replica.finish();
        if (status != done)
            fact(false, "the stale replica ended with status " + std::to_string(status));
    }

    const size_t m_sessions;
    private_server m_server;
    publisher m_publisher;
    std::unique_ptr<child_process> m_replica;
    stopwatch m_reconciled;
};

int be_replica(const std::string &socket_path, const std::string &store)
{
    replica self(store);
    self.run(socket_path);
    std::cout << "        the replica had " << counted(self.redelivered, "entries redelivered and applied ")
              << counted(self.applied, "entries") << std::endl;
    return done;
}

session_set stale_store(size_t sessions)
{
    session_source source;
    session_set held;
    for (size_t i = 0; i < sessions; ++i) {
        if (i % missing_one_in != 0)
            held.put(source.session(i, i % outdated_one_in == 0 ? 0 : last_version(i)));
    }
    held.put(source.session(sessions, 1)); // of a subscriber who has gone
    return held;
}

int be_stale_replica(const std::string &socket_path, size_t sessions)
{
    stream_link(socket_path, "to-replica", "to-keeper").run([&](int input, int output) {
        reconciliation::message_channel channel(input, output);
        reconciliation::restarted_receiver receiver(stale_store(sessions), channel);
        receiver.reconcile();
        receiver.send_held_sessions();
    });
    return done;
}

size_t session_count(const std::string &argument)
{
    size_t count = 0;
    const auto [end, error] = std::from_chars(argument.data(), argument.data() + argument.size(), count);
    if (error != std::errc() || end != argument.data() + argument.size() || count < 100 || count > most_sessions)
        throw usage_error("\"" + argument + "\" is not a number of sessions from 100 to 2000000; see --help");
    return count;
}

int run(std::span<char *const> given)
{
    const std::vector<std::string> arguments(given.begin(), given.end());
    if (arguments.size() == 3 && arguments[0] == "--replica")
        return be_replica(arguments[1], arguments[2]);
    if (arguments.size() == 3 && arguments[0] == "--stale")
        return be_stale_replica(arguments[1], session_count(arguments[2]));
    if (arguments.size() == 1 && arguments[0] == "--help") {
        std::cout << help;
        return done;
    }
    if (arguments.size() > 1)
        throw usage_error("too many arguments; see --help");
    return replication_run(arguments.empty() ? default_sessions : session_count(arguments[0])).all();
}

} // namespace

} // namespace examples::replication

int main(int argc, char **argv)
{
    using namespace examples;
    const std::string_view first = argc > 1 ? argv[1] : "";
    const bool is_replica = first == "--replica" || first == "--stale";
    return reported_run(
        is_replica ? "replica" : "replication", std::span(argv, static_cast<size_t>(argc)), replication::run);
}
