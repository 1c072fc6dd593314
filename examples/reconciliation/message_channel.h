// Messages to and from the other process: each in a frame (frame_stream.h) whose first byte is the message_kind.
//
//   +-----------------+--------+-----------------+
//   | length, 4 bytes | kind   | message         |  the length counts the kind and the message
//   +-----------------+--------+-----------------+
#ifndef RECONCILIATION_MESSAGE_CHANNEL_H
#define RECONCILIATION_MESSAGE_CHANNEL_H

#include "frame_stream.h"
#include "stopwatch.h"

#include "mava_tum/cpp/adapters.hpp"

#include <array>
#include <cstddef>
#include <cstdint>

namespace examples::reconciliation
{

// Which message a frame carries. The messages themselves do not say: the bytes of a rec_start_res could as well be
// those of a rec_complete_res. In the order in which a run has them; the values are those of the byte on the pipe.
enum class message_kind : uint8_t {
    rec_start_req = 1,
    rec_start_res,
    rec_sess_req,
    rec_sess_res,
    session_delete,
    sess_oper_resp,
    rec_sess_replay_req,
    rec_sess_replay_resp,
    rec_complete_req,
    rec_complete_res,
    held_session, // a session_context after the run: what the receiver holds, for the comparison
};

inline constexpr size_t message_kinds = static_cast<size_t>(message_kind::held_session) + 1;

// "unknown" for a byte that is no kind.
const char *name_of(message_kind kind);

// The bytes are those of the messages, without length and kind.
struct traffic {
    size_t messages = 0, bytes = 0;
};

class message_channel
{
public:
    message_channel(int reading_fd, int writing_fd);

    // Calls the record's adapter once. Throws stream_error when the message cannot be sent.
    template <typename Record>
    void send(message_kind kind, const Record &record)
    {
        const auto outcome =
            m_in_adapters.measure([&] { return mava_tum::cpp::encode(record, std::span(m_outgoing).subspan(1)); });
        send_encoded(kind, outcome.size);
    }

    // Waits for the next message, and returns false when the other process has closed its stream instead.
    bool next();

    // Of the message that next() found.
    message_kind kind() const;
    std::span<const uint8_t> message() const;

    // Decodes the message that next() found, with the record's adapter.
    template <typename Record>
    void read(Record &record)
    {
        m_in_adapters.measure([&] { mava_tum::cpp::decode(message(), record); });
    }

    // Waits for the next message, which must be of this kind. Throws stream_error otherwise.
    void expect(message_kind wanted);

    // The same, and decodes it.
    template <typename Record>
    void receive(message_kind wanted, Record &record)
    {
        expect(wanted);
        read(record);
    }

    // Both directions together: no kind goes both ways.
    const traffic &traffic_of(message_kind which) const;

    // Time in the adapters of what was sent and received.
    const stopwatch &in_adapters() const
    {
        return m_in_adapters;
    }

private:
    void send_encoded(message_kind kind, uint64_t size);
    void count(message_kind which, size_t bytes);

    frame_reader m_reader;
    int m_writing_fd;
    std::vector<uint8_t> m_outgoing;
    std::span<const uint8_t> m_incoming;
    stopwatch m_in_adapters;
    std::array<traffic, message_kinds> m_traffic{};
};

} // namespace examples::reconciliation

#endif
