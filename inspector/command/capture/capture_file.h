// The messages of a capture, pcap or pcapng, read packet by packet: memory holds one packet, and what waits for others.
#pragma once

#include "capture/capture_messages.h"
#include "input/input_stream.h"

#include <functional>
#include <memory>
#include <string>

namespace mava_tum_cli
{

class packet_reader;

// Whether an input begins with the 8 bytes of a pcap or the 12 of a pcapng. No message does, but by intent.
bool is_capture(std::span<const uint8_t> beginning);

class capture_file
{
public:
    // Throws bad_use where it is no capture, or one of packets that are not read. `stream` has to outlive the object.
    capture_file(input_stream &stream, capture_choice choice, std::function<void(const std::string &)> note);
    ~capture_file();
    capture_file(const capture_file &) = delete;
    capture_file &operator=(const capture_file &) = delete;

    // Takes the next message; false at the end, and where the capture is broken.
    bool next(captured_message &message);

private:
    // False at the end, and where the capture is broken: then there is a `problem`.
    bool add_packet(std::string &problem);

    std::unique_ptr<packet_reader> m_packets;
    capture_messages m_messages;
    bool m_is_finished = false;
};

} // namespace mava_tum_cli
