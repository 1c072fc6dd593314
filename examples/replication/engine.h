// What the replication needs of the engine, Redis Streams: the only file that uses its client library is engine.cpp.
#ifndef REPLICATION_ENGINE_H
#define REPLICATION_ENGINE_H

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

struct redisContext;

namespace examples::replication
{

// The server cannot be reached, has gone away, does not answer or refuses. what() says which.
class engine_error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// An entry of a stream.
struct entry {
    std::string id;
    std::vector<uint8_t> message;
};

inline constexpr int short_wait_ms = 1'000, longest_wait_ms = 60'000;

// One connection; not for several threads at once. Each call may throw engine_error.
class engine
{
public:
    explicit engine(const std::string &socket_path);

    // Puts a session at the end of `stream` and into the state. Nothing is certain before wait_for_answers().
    void queue_session(std::string_view stream, std::string_view line, std::span<const uint8_t> message);
    // Sends what is queued, and waits for nothing.
    void send_queued();
    // Returns when the server has everything that was queued.
    void wait_for_answers();

    // Puts a message at the end of `stream`. It is sent at once, and certain after wait_for_answers().
    void append(std::string_view stream, std::span<const uint8_t> message);
    uint64_t length_of(std::string_view stream);
    // The entries after an id, "0" for the first. Waits for one; none came in short_wait_ms: none.
    std::vector<entry> read(std::string_view stream, std::string_view after);

    // A group gets each entry of the stream, from the first on. Making one that exists changes nothing.
    void make_group(std::string_view stream, std::string_view group);
    // Entries that were delivered and never acknowledged, after an id.
    std::vector<entry> pending(std::string_view stream, std::string_view group, std::string_view after);
    // Entries that were never delivered. Waits for one; none came in longest_wait_ms: none.
    std::vector<entry> fresh(std::string_view stream, std::string_view group);
    void acknowledge(std::string_view stream, std::string_view group, std::span<const entry> entries);

    // The last message of each session.
    void each_state(const std::function<void(std::span<const uint8_t>)> &take);

private:
    struct disconnect {
        void operator()(redisContext *connection) const;
    };

    using words = std::vector<std::string_view>;
    void queue(const words &command);
    template <typename Take>
    void answer(Take take);
    std::vector<entry> entries_of(const words &command);

    std::unique_ptr<redisContext, disconnect> m_connection;
    std::size_t m_queued = 0;
};

} // namespace examples::replication

#endif
