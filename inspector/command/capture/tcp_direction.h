// One direction of a TCP connection: its segments in order, and the messages in them, each behind its length in 4
// bytes, big-endian. Segments may come out of order, twice and overlapping. What the capture does not have is named: if
// it lies inside of one message, it costs that message; otherwise all up to a packet that holds whole messages.
#pragma once

#include "capture/packet_payload.h"
#include "input/frame_reader.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>

namespace mava_tum_cli
{

struct captured_message {
    byte_vector bytes;
    uint64_t packet = 0;                          // in which it begins, from 1
    std::shared_ptr<const std::string> direction; // "192.0.2.1:5000 > 192.0.2.2:21017"
};

// What the directions of a capture share.
struct captured_messages {
    std::deque<captured_message> messages;
    std::function<void(const std::string &)> note; // is told what the capture does not have, and what cannot be read
    size_t pending_bytes = 0;                      // of segments that wait for those before them
};

class tcp_direction
{
public:
    tcp_direction(std::string name, captured_messages &shared)
        : m_name(std::make_shared<const std::string>(std::move(name))), m_shared(shared)
    {
    }

    void add(const packet_payload &payload, uint64_t packet);

    // Nothing follows: segments that wait are read, and a message that is incomplete is named. `what` ended.
    void finish(std::string_view what);

    // The last one that was added.
    uint64_t last_packet() const
    {
        return m_last_packet;
    }

private:
    struct segment {
        byte_vector content;
        uint64_t packet;
    };

    enum class progress {
        not_begun, // no packet yet
        unsure,    // the capture does not have the beginning
        reading,   // messages
        searching, // a packet that holds whole messages
        over,      // the connection
    };

    static constexpr uint64_t nowhere = ~uint64_t{0};

    void start(uint32_t sequence, progress state);
    void keep(uint64_t position, std::span<const uint8_t> content, uint64_t packet);
    void deliver_pending();
    void close_gap();
    void deliver(std::span<const uint8_t> content, uint64_t packet);
    void find_beginning(std::span<const uint8_t> content, uint64_t packet);
    void take_length_byte(uint8_t byte, uint64_t packet);
    void lose(const std::string &reason);
    void note(const std::string &text) const;

    std::shared_ptr<const std::string> m_name;
    captured_messages &m_shared;
    uint64_t m_last_packet = 0;

    progress m_state = progress::not_begun;
    uint64_t m_first = nowhere;    // sequence number of the first byte, from its SYN
    uint64_t m_next = 0;           // position of the next byte; its low 32 bits are the sequence number
    uint64_t m_sent_end = 0;       // position up to which bytes were sent
    uint64_t m_close_at = nowhere; // position at which the connection ends
    std::map<uint64_t, segment> m_pending;

    frame_header m_header{};
    size_t m_header_bytes = 0;
    uint64_t m_left = 0;    // of the message whose length is known
    bool m_is_lost = false; // a part of this message is missing
    captured_message m_message;
};

} // namespace mava_tum_cli
