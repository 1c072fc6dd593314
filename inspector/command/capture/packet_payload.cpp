#include "capture/packet_payload.h"

#include <algorithm>
#include <arpa/inet.h>
#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

// The rest of a packet, while its headers are taken off.
class packet_rest
{
public:
    packet_rest(packet_bytes captured, size_t missing_bytes) : m_captured(captured), m_missing_bytes(missing_bytes) {}

    bool has(size_t size) const
    {
        return size <= m_captured.size();
    }

    // As it was sent.
    size_t sent_bytes() const
    {
        return m_captured.size() + m_missing_bytes;
    }

    packet_bytes captured() const
    {
        return m_captured;
    }

    size_t missing_bytes() const
    {
        return m_missing_bytes;
    }

    // These three need has().
    uint32_t number(size_t at, size_t size) const
    {
        uint32_t number = 0;
        for (const uint8_t byte : m_captured.subspan(at, size))
            number = number << 8 | byte;
        return number;
    }

    void copy_to(std::array<uint8_t, 16> &address, size_t at, size_t size) const
    {
        std::ranges::copy(m_captured.subspan(at, size), address.begin());
    }

    void skip(size_t size)
    {
        m_captured = m_captured.subspan(size);
    }

    // A header tells how long the rest was; behind it is padding.
    void limit(size_t sent)
    {
        m_captured = m_captured.first(std::min(sent, m_captured.size()));
        m_missing_bytes = sent - m_captured.size();
    }

    packet_fault too_short() const
    {
        return m_missing_bytes != 0 ? packet_fault::cut : packet_fault::not_ours;
    }

private:
    packet_bytes m_captured;
    size_t m_missing_bytes;
};

// ---- links ---------------------------------------------------------------------------------------------------

struct link_header {
    int type; // LINKTYPE_...
    size_t size;
    int protocol_at; // -1: it names no protocol; that the packet is IP shows in the first half byte
};

constexpr link_header link_headers[] = {
    {0, 4, -1},    // loopback of BSD
    {1, 14, 12},   // Ethernet
    {12, 0, -1},   // IP
    {14, 0, -1},   // IP, on OpenBSD
    {101, 0, -1},  // IP
    {108, 4, -1},  // loopback of OpenBSD
    {113, 16, 14}, // all devices of Linux
    {228, 0, -1},  // IPv4
    {229, 0, -1},  // IPv6
    {276, 20, 0},  // all devices of Linux, version 2
};

const link_header *header_of(int link_type)
{
    const link_header *found = std::ranges::find(link_headers, link_type, &link_header::type);
    return found == std::end(link_headers) ? nullptr : found;
}

constexpr size_t ethertype_bytes = 2;
constexpr uint32_t ethertype_ipv4 = 0x0800, ethertype_ipv6 = 0x86DD;

constexpr bool is_vlan_tag(uint32_t ethertype)
{
    return ethertype == 0x8100 || ethertype == 0x88A8 || ethertype == 0x9100;
}

packet_fault skip_link_header(int link_type, packet_rest &rest)
{
    const link_header *header = header_of(link_type);
    if (header == nullptr)
        return packet_fault::not_ours;
    if (!rest.has(header->size))
        return rest.too_short();
    const bool has_protocol = header->protocol_at >= 0;
    uint32_t protocol = has_protocol ? rest.number(static_cast<size_t>(header->protocol_at), ethertype_bytes) : 0;
    rest.skip(header->size);
    while (is_vlan_tag(protocol)) {
        constexpr size_t tag_bytes = 4;
        if (!rest.has(tag_bytes))
            return rest.too_short();
        protocol = rest.number(2, ethertype_bytes);
        rest.skip(tag_bytes);
    }
    const bool is_ip = !has_protocol || protocol == ethertype_ipv4 || protocol == ethertype_ipv6;
    return is_ip ? packet_fault::none : packet_fault::not_ours;
}

// ---- IP ------------------------------------------------------------------------------------------------------

constexpr uint32_t tcp_protocol = 6, udp_protocol = 17;

packet_fault skip_ipv4_header(packet_rest &rest, packet_payload &payload, uint32_t &protocol)
{
    constexpr size_t least_bytes = 20;
    if (!rest.has(least_bytes))
        return rest.too_short();
    const size_t header_bytes = size_t{rest.number(0, 1) & 0x0F} * 4;
    // Zero: the network card is left to divide the packet, and its length is that of the link.
    const size_t total_bytes = rest.number(2, 2) != 0 ? rest.number(2, 2) : rest.sent_bytes();
    if (header_bytes < least_bytes || total_bytes < header_bytes)
        return packet_fault::not_ours;
    protocol = rest.number(9, 1);
    rest.copy_to(payload.source.address, 12, 4);
    rest.copy_to(payload.destination.address, 16, 4);
    const bool is_fragment = (rest.number(6, 2) & 0x3FFF) != 0; // more follow, or it is not the first
    rest.limit(total_bytes);
    if (!rest.has(header_bytes))
        return rest.too_short();
    rest.skip(header_bytes);
    const bool is_read = protocol == tcp_protocol || protocol == udp_protocol;
    return is_fragment && is_read ? packet_fault::fragment : packet_fault::none;
}

packet_fault skip_ipv6_extensions(packet_rest &rest, uint32_t &protocol)
{
    constexpr uint32_t hop_by_hop = 0, routing = 43, fragment = 44, authentication = 51, destination_options = 60;
    while (protocol == hop_by_hop || protocol == routing || protocol == fragment || protocol == authentication ||
           protocol == destination_options) {
        constexpr size_t least_bytes = 8;
        if (!rest.has(least_bytes))
            return rest.too_short();
        constexpr uint32_t offset_or_more = 0xFFF9;
        if (protocol == fragment && (rest.number(2, 2) & offset_or_more) != 0)
            return packet_fault::fragment;
        const size_t units = rest.number(1, 1);
        const size_t size = protocol == fragment         ? least_bytes
                            : protocol == authentication ? (units + 2) * 4
                                                         : (units + 1) * 8;
        if (!rest.has(size))
            return rest.too_short();
        protocol = rest.number(0, 1);
        rest.skip(size);
    }
    return packet_fault::none;
}

packet_fault skip_ipv6_header(packet_rest &rest, packet_payload &payload, uint32_t &protocol)
{
    constexpr size_t header_bytes = 40;
    if (!rest.has(header_bytes))
        return rest.too_short();
    payload.source.is_ipv6 = payload.destination.is_ipv6 = true;
    rest.copy_to(payload.source.address, 8, 16);
    rest.copy_to(payload.destination.address, 24, 16);
    protocol = rest.number(6, 1);
    const size_t content_bytes = rest.number(4, 2);
    rest.skip(header_bytes);
    if (content_bytes != 0) // zero: as for IPv4
        rest.limit(content_bytes);
    return skip_ipv6_extensions(rest, protocol);
}

packet_fault skip_ip_header(packet_rest &rest, packet_payload &payload, uint32_t &protocol)
{
    if (!rest.has(1))
        return rest.too_short();
    switch (rest.number(0, 1) >> 4) {
    case 4:
        return skip_ipv4_header(rest, payload, protocol);
    case 6:
        return skip_ipv6_header(rest, payload, protocol);
    default:
        return packet_fault::not_ours;
    }
}

// ---- UDP and TCP ---------------------------------------------------------------------------------------------

packet_fault skip_udp_header(packet_rest &rest)
{
    constexpr size_t header_bytes = 8;
    if (!rest.has(header_bytes))
        return rest.too_short();
    const size_t length = rest.number(4, 2);
    if (length < header_bytes || length > rest.sent_bytes())
        return packet_fault::not_ours;
    rest.limit(length);
    rest.skip(header_bytes);
    return packet_fault::none;
}

packet_fault skip_tcp_header(packet_rest &rest, packet_payload &payload)
{
    constexpr size_t least_bytes = 20;
    if (!rest.has(least_bytes))
        return rest.too_short();
    const size_t header_bytes = size_t{rest.number(12, 1) >> 4} * 4;
    if (header_bytes < least_bytes)
        return packet_fault::not_ours;
    if (!rest.has(header_bytes))
        return rest.too_short();
    constexpr uint32_t fin = 1, syn = 2, rst = 4;
    const uint32_t flags = rest.number(13, 1);
    payload.sequence = rest.number(4, 4);
    payload.starts = (flags & syn) != 0;
    payload.ends = (flags & (fin | rst)) != 0;
    rest.skip(header_bytes);
    return packet_fault::none;
}

} // namespace

std::string endpoint::to_string() const
{
    char text[INET6_ADDRSTRLEN] = "";
    inet_ntop(is_ipv6 ? AF_INET6 : AF_INET, address.data(), text, sizeof text);
    return is_ipv6 ? fmt::format("[{}]:{}", text, port) : fmt::format("{}:{}", text, port);
}

std::string packet_payload::direction() const
{
    return source.to_string() + " > " + destination.to_string();
}

bool is_known_link(int link_type)
{
    return header_of(link_type) != nullptr;
}

packet_fault read_packet_payload(int link_type, packet_bytes packet, size_t missing_bytes, packet_payload &payload)
{
    packet_rest rest(packet, missing_bytes);
    packet_fault fault = skip_link_header(link_type, rest);
    uint32_t protocol = 0;
    if (fault == packet_fault::none)
        fault = skip_ip_header(rest, payload, protocol);
    if (fault != packet_fault::none)
        return fault;
    if (protocol != tcp_protocol && protocol != udp_protocol)
        return packet_fault::not_ours;
    constexpr size_t ports_bytes = 4;
    if (!rest.has(ports_bytes))
        return rest.too_short();
    payload.source.port = static_cast<uint16_t>(rest.number(0, 2));
    payload.destination.port = static_cast<uint16_t>(rest.number(2, 2));
    payload.protocol = protocol == tcp_protocol ? transport::tcp : transport::udp;
    fault = protocol == tcp_protocol ? skip_tcp_header(rest, payload) : skip_udp_header(rest);
    payload.content = rest.captured();
    payload.missing_bytes = rest.missing_bytes();
    return fault;
}

} // namespace mava_tum_cli
