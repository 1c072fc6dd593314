// A replica: takes sessions from a stream into a store that outlives it.
#ifndef REPLICATION_REPLICA_H
#define REPLICATION_REPLICA_H

#include "engine.h"
#include "frame_stream.h"
#include "mava_tum/cpp/session_messages.hpp"
#include "session_set.h"

#include <fcntl.h>
#include <filesystem>
#include <string>
#include <system_error>
#include <unistd.h>

namespace examples::replication
{

inline constexpr const char *session_stream = "sessions", *replica_group = "replica-1";

// A file descriptor that is closed.
class open_file
{
public:
    open_file(const std::string &name, int flags) : m_fd(open(name.c_str(), flags | O_CLOEXEC, 0600))
    {
        if (m_fd < 0)
            throw std::system_error(errno, std::generic_category(), "cannot open " + name);
    }

    ~open_file()
    {
        close(m_fd);
    }

    open_file(const open_file &) = delete;
    open_file &operator=(const open_file &) = delete;

    int fd() const
    {
        return m_fd;
    }

private:
    int m_fd;
};

// The store: a file of length-prefixed messages, to which each session that arrives is appended. If its writer was
// killed inside a message, that message, which was not acknowledged, is cut off here.
inline reconciliation::session_set read_store(const std::string &name)
{
    reconciliation::session_set sessions;
    const open_file store(name, O_RDWR | O_CREAT);
    frame_reader reader(store.fd());
    std::uintmax_t whole = 0;
    try {
        for (std::span<const uint8_t> message; reader.next(message);) {
            sessions.put_wire(message);
            whole += TUM_NAL_MESSAGE_LENGTH_BYTES + message.size();
        }
    } catch (const truncated_stream &) {
        std::filesystem::resize_file(name, whole);
    }
    return sessions;
}

// One replica's sessions, in memory and in its store.
class replica
{
public:
    explicit replica(const std::string &store) : m_sessions(read_store(store)), m_store(store, O_WRONLY | O_APPEND) {}

    // Applies what arrives, and acknowledges it afterwards, until an entry without a message ends the stream. Entries
    // that this replica received in an earlier life and did not acknowledge come first, and are applied again. Throws
    // engine_error or stream_error; the store then has all that was acknowledged.
    void run(const std::string &socket_path)
    {
        engine connection(socket_path);
        connection.make_group(session_stream, replica_group);
        bool is_open = true;
        std::vector<entry> entries;
        for (std::string after = "0"; is_open; after = entries.back().id) {
            entries = connection.pending(session_stream, replica_group, after);
            if (entries.empty())
                break;
            redelivered += entries.size();
            is_open = apply(connection, entries);
        }
        while (is_open) {
            entries = connection.fresh(session_stream, replica_group);
            if (entries.empty())
                throw stream_error("nothing arrived for " + std::to_string(longest_wait_ms / 1000) + " seconds");
            is_open = apply(connection, entries);
        }
    }

    size_t redelivered = 0, applied = 0;

private:
    // Returns false at the end of the stream. Applies all entries before it acknowledges any: if it is killed in
    // between, they are delivered again. Applies none if one is not a session.
    bool apply(engine &from, const std::vector<entry> &entries)
    {
        for (const entry &each : entries)
            require_session(each);
        for (const entry &each : entries) {
            if (each.message.empty())
                continue;
            m_sessions.put_wire(each.message);
            write_frame(m_store.fd(), each.message);
            ++applied;
        }
        from.acknowledge(session_stream, replica_group, entries);
        return !entries.back().message.empty();
    }

    // The adapter stores the fields before a fault and reports none, so the codec judges.
    static void require_session(const entry &arrived)
    {
        if (arrived.message.size() > TUM_NAL_SESSION_CONTEXT_MAX_SIZE)
            throw stream_error("entry " + arrived.id + " has " + std::to_string(arrived.message.size()) +
                               " bytes, more than any session");
        mava_tum::cpp::session_context session;
        const auto result = session.decode(mava_tum::cpp::alias, arrived.message);
        if (result != mava_tum::cpp::result::ok)
            throw stream_error(
                "entry " + arrived.id + " is not a session: " + std::string(mava_tum::cpp::text_of(result)));
    }

    reconciliation::session_set m_sessions;
    open_file m_store;
};

} // namespace examples::replication

#endif
