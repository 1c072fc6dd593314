#include "engine.h"

#include <hiredis/hiredis.h>

namespace examples::replication
{

namespace
{

constexpr std::string_view state_key = "state", consumer = "replica", message_name = "m", batch = "500";
constexpr std::size_t most_unanswered = 500;
const std::string short_wait = std::to_string(short_wait_ms), longest_wait = std::to_string(longest_wait_ms);

std::string_view as_text(std::span<const uint8_t> bytes)
{
    return {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
}

std::span<const uint8_t> as_bytes(const redisReply &reply)
{
    return {reinterpret_cast<const uint8_t *>(reply.str), reply.len};
}

std::span<redisReply *const> elements_of(const redisReply *reply)
{
    if (reply == nullptr || reply->type != REDIS_REPLY_ARRAY)
        return {};
    return {reply->element, reply->elements};
}

// An entry is its id and its fields, of which there is one: name and message.
entry entry_of(const redisReply *reply)
{
    const auto parts = elements_of(reply);
    const auto fields = parts.size() == 2 ? elements_of(parts[1]) : parts;
    if (fields.size() != 2 || parts[0]->type != REDIS_REPLY_STRING || fields[1]->type != REDIS_REPLY_STRING)
        throw engine_error("the server sent an entry that is none of ours");
    const auto message = as_bytes(*fields[1]);
    return {{parts[0]->str, parts[0]->len}, {message.begin(), message.end()}};
}

} // namespace

void engine::disconnect::operator()(redisContext *connection) const
{
    redisFree(connection);
}

// The server may keep a call for longest_wait_ms; one that is silent for longer has gone.
engine::engine(const std::string &socket_path)
    : m_connection(redisConnectUnixWithTimeout(socket_path.c_str(), {longest_wait_ms / 1000, 0}))
{
    if (!m_connection || m_connection->err != 0)
        throw engine_error(
            "cannot reach the server at " + socket_path + ": " + (m_connection ? m_connection->errstr : "no memory"));
    redisSetTimeout(m_connection.get(), {2 * longest_wait_ms / 1000, 0});
}

void engine::queue(const words &command)
{
    std::vector<const char *> starts;
    std::vector<std::size_t> lengths;
    for (const std::string_view word : command) {
        starts.push_back(word.data());
        lengths.push_back(word.size());
    }
    if (redisAppendCommandArgv(m_connection.get(), static_cast<int>(command.size()), starts.data(), lengths.data()) !=
        REDIS_OK)
        throw engine_error(std::string("cannot queue a command: ") + m_connection->errstr);
    ++m_queued;
}

// Of the first command that is queued and not answered.
template <typename Take>
void engine::answer(Take take)
{
    void *received = nullptr;
    if (redisGetReply(m_connection.get(), &received) != REDIS_OK)
        throw engine_error(std::string("the server has gone away: ") + m_connection->errstr);
    --m_queued;
    const std::unique_ptr<void, void (*)(void *)> owner(received, freeReplyObject);
    const redisReply *reply = static_cast<const redisReply *>(received);
    if (reply->type == REDIS_REPLY_ERROR && std::string_view(reply->str, reply->len).substr(0, 9) != "BUSYGROUP")
        throw engine_error("the server refuses: " + std::string(reply->str, reply->len));
    take(reply);
}

void engine::queue_session(std::string_view stream, std::string_view line, std::span<const uint8_t> message)
{
    queue({"XADD", stream, "*", message_name, as_text(message)});
    queue({"HSET", state_key, line, as_text(message)});
}

void engine::send_queued()
{
    for (int is_sent = 0; is_sent == 0;) {
        if (redisBufferWrite(m_connection.get(), &is_sent) != REDIS_OK)
            throw engine_error(std::string("the server has gone away: ") + m_connection->errstr);
    }
}

void engine::wait_for_answers()
{
    while (m_queued != 0)
        answer([](const redisReply *) {});
}

void engine::append(std::string_view stream, std::span<const uint8_t> message)
{
    queue({"XADD", stream, "*", message_name, as_text(message)});
    send_queued();
    if (m_queued == most_unanswered)
        wait_for_answers();
}

uint64_t engine::length_of(std::string_view stream)
{
    uint64_t length = 0;
    queue({"XLEN", stream});
    answer([&](const redisReply *reply) { length = static_cast<uint64_t>(reply->integer); });
    return length;
}

// The answer has one stream, since one was asked for: its name and its entries. Or it is nil: nothing came.
std::vector<entry> engine::entries_of(const words &command)
{
    std::vector<entry> entries;
    queue(command);
    answer([&](const redisReply *reply) {
        for (const redisReply *stream : elements_of(reply)) {
            const auto parts = elements_of(stream);
            for (const redisReply *each : parts.size() == 2 ? elements_of(parts[1]) : parts)
                entries.push_back(entry_of(each));
        }
    });
    return entries;
}

std::vector<entry> engine::read(std::string_view stream, std::string_view after)
{
    return entries_of({"XREAD", "COUNT", batch, "BLOCK", short_wait, "STREAMS", stream, after});
}

void engine::make_group(std::string_view stream, std::string_view group)
{
    queue({"XGROUP", "CREATE", stream, group, "0", "MKSTREAM"});
    wait_for_answers();
}

std::vector<entry> engine::pending(std::string_view stream, std::string_view group, std::string_view after)
{
    return entries_of({"XREADGROUP", "GROUP", group, consumer, "COUNT", batch, "STREAMS", stream, after});
}

std::vector<entry> engine::fresh(std::string_view stream, std::string_view group)
{
    return entries_of(
        {"XREADGROUP", "GROUP", group, consumer, "COUNT", batch, "BLOCK", longest_wait, "STREAMS", stream, ">"});
}

void engine::acknowledge(std::string_view stream, std::string_view group, std::span<const entry> entries)
{
    words command = {"XACK", stream, group};
    for (const entry &each : entries)
        command.push_back(each.id);
    queue(command);
    wait_for_answers();
}

void engine::each_state(const std::function<void(std::span<const uint8_t>)> &take)
{
    std::string cursor = "0";
    do {
        queue({"HSCAN", state_key, cursor, "COUNT", batch});
        answer([&](const redisReply *reply) {
            const auto parts = elements_of(reply);
            if (parts.size() != 2)
                throw engine_error("the server sent a state that is none of ours");
            cursor.assign(parts[0]->str, parts[0]->len);
            const auto pairs = elements_of(parts[1]);
            for (std::size_t i = 1; i < pairs.size(); i += 2)
                take(as_bytes(*pairs[i]));
        });
    } while (cursor != "0");
}

} // namespace examples::replication
