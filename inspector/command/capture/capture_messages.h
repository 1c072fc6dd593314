// The messages in the packets of a capture: each UDP datagram is one, and TCP carries them after their lengths. The
// caller reads the packets.
#pragma once

#include "capture/tcp_direction.h"

#include <optional>
#include <utility>
#include <vector>

namespace mava_tum_cli
{

enum class port_side { to, from, both };

// Which packets are read.
struct capture_choice {
    std::vector<uint16_t> ports; // none: all
    port_side side = port_side::to;
    std::optional<transport> protocol; // nothing: both
};

struct captured_packet {
    uint64_t number = 0; // from 1
    int link_type = 0;   // of the file, LINKTYPE_...
    packet_bytes content;
    size_t missing_bytes = 0; // so much longer was it on the link
};

class capture_messages
{
public:
    // `note` is told what the capture does not have, and what cannot be read of it: one line each, and not too many.
    capture_messages(capture_choice choice, std::function<void(const std::string &)> note);
    // The directions refer to what they share.
    capture_messages(const capture_messages &) = delete;
    capture_messages &operator=(const capture_messages &) = delete;

    void add(const captured_packet &packet);

    // The capture ends; `problem`, if it is not empty, is why it cannot be read on.
    void finish(const std::string &problem);

    // The next message, in the order in which they were complete; false: there is none yet.
    bool take(captured_message &message);

private:
    bool is_chosen(const packet_payload &payload) const;
    void add_payload(const packet_payload &payload, uint64_t number);
    void add_datagram(const packet_payload &payload, uint64_t number);
    void add_segment(const packet_payload &payload, uint64_t number);
    void forget_oldest_directions();
    void note(const std::string &text);
    void note_without_messages();
    void note_unknown_link(const captured_packet &packet);

    capture_choice m_choice;
    std::function<void(const std::string &)> m_note;
    uint64_t m_notes = 0;
    captured_messages m_shared;
    std::map<std::pair<endpoint, endpoint>, tcp_direction> m_directions;

    uint64_t m_packets = 0, m_foreign_packets = 0, m_messages = 0;
    std::string m_first_not_chosen;
    int m_unknown_link = -1; // the last one
};

} // namespace mava_tum_cli
