// What a UDP or TCP packet of a capture carries, below its link, IP and transport headers. Knows nothing of files.
#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace mava_tum_cli
{

using packet_bytes = std::span<const uint8_t>;

enum class transport { udp, tcp };

struct endpoint {
    bool is_ipv6 = false;
    std::array<uint8_t, 16> address{}; // IPv4: the first 4
    uint16_t port = 0;

    auto operator<=>(const endpoint &) const = default;

    // "192.0.2.1:5000", "[2001:db8::1]:5000"
    std::string to_string() const;
};

struct packet_payload {
    transport protocol{};
    endpoint source, destination;
    packet_bytes content;     // what was captured of it
    size_t missing_bytes = 0; // the headers announce so many more
    uint32_t sequence = 0;    // tcp: of the first byte of `content`, or of the SYN before it
    bool starts = false;      // tcp: SYN
    bool ends = false;        // tcp: FIN or RST

    // "192.0.2.1:5000 > 192.0.2.2:21017"
    std::string direction() const;
};

enum class packet_fault {
    none,
    not_ours, // neither UDP nor TCP over IP, or with headers that contradict themselves
    fragment, // of an IP packet
    cut,      // the capture has a part of the headers
};

// `link_type` is that of the file (LINKTYPE_...). `missing_bytes` is how much longer the packet was on the link.
packet_fault read_packet_payload(int link_type, packet_bytes packet, size_t missing_bytes, packet_payload &payload);

// Whether packets of such a link can be read at all.
bool is_known_link(int link_type);

} // namespace mava_tum_cli
