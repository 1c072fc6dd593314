#include "message_channel.h"

#include <string>

namespace examples::reconciliation
{

const char *name_of(message_kind kind)
{
    switch (kind) {
    case message_kind::rec_start_req:
        return "rec_start_req";
    case message_kind::rec_start_res:
        return "rec_start_res";
    case message_kind::rec_sess_req:
        return "rec_sess_req";
    case message_kind::rec_sess_res:
        return "rec_sess_res";
    case message_kind::session_delete:
        return "session_delete";
    case message_kind::sess_oper_resp:
        return "sess_oper_resp";
    case message_kind::rec_sess_replay_req:
        return "rec_sess_replay_req";
    case message_kind::rec_sess_replay_resp:
        return "rec_sess_replay_resp";
    case message_kind::rec_complete_req:
        return "rec_complete_req";
    case message_kind::rec_complete_res:
        return "rec_complete_res";
    case message_kind::held_session:
        return "session_context";
    }
    return "unknown";
}

message_channel::message_channel(int reading_fd, int writing_fd)
    : m_reader(reading_fd), m_writing_fd(writing_fd), m_outgoing(frame_limit_bytes)
{
}

void message_channel::send_encoded(message_kind kind, uint64_t size)
{
    const std::string name = name_of(kind);
    if (size > m_outgoing.size() - 1) // the output was cut
        throw stream_error(name + " not sent: it needs " + std::to_string(size) + " bytes, more than a frame may have");
    m_outgoing[0] = static_cast<uint8_t>(kind);
    try {
        write_frame(m_writing_fd, std::span(m_outgoing).first(static_cast<size_t>(size) + 1));
    } catch (const stream_error &error) {
        throw stream_error(name + " not sent: " + error.what());
    }
    count(kind, static_cast<size_t>(size));
}

bool message_channel::next()
{
    if (!m_reader.next(m_incoming))
        return false;
    if (m_incoming.empty() || m_incoming[0] == 0 || m_incoming[0] >= message_kinds)
        throw stream_error("a frame does not start with the kind of a message: this is no stream of our messages");
    count(kind(), message().size());
    return true;
}

message_kind message_channel::kind() const
{
    return static_cast<message_kind>(m_incoming[0]);
}

std::span<const uint8_t> message_channel::message() const
{
    return m_incoming.subspan(1);
}

const traffic &message_channel::traffic_of(message_kind which) const
{
    return m_traffic[static_cast<size_t>(which)];
}

void message_channel::expect(message_kind wanted)
{
    const std::string name = name_of(wanted);
    bool is_there = false;
    try {
        is_there = next();
    } catch (const stream_error &error) {
        throw stream_error(name + " not received: " + error.what());
    }
    if (!is_there)
        throw stream_error(name + " not received: the other process has closed its stream");
    if (kind() != wanted)
        throw stream_error(name + " not received: a " + name_of(kind()) + " came instead");
}

void message_channel::count(message_kind which, size_t bytes)
{
    traffic &total = m_traffic[static_cast<size_t>(which)];
    ++total.messages;
    total.bytes += bytes;
}

} // namespace examples::reconciliation
