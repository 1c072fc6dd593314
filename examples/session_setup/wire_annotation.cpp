#include "wire_annotation.h"

#include "readable.h"

#include <algorithm>
#include <cstdio>

namespace examples::session_setup
{

namespace
{

using enum wire_content;

// urpf, icmp and mtu, acct: numbers alone.
constexpr wire_field three_numbers[] = {{1, "field_1", number}, {2, "field_2", number}, {3, "field_3", number}};
constexpr std::span two_numbers{three_numbers, 2};
constexpr std::span one_number{three_numbers, 1};

constexpr wire_field ipv4_fields[] = {{1, "field_1", number}, {2, "ipv4_address", ipv4}};

constexpr wire_field ipv6_fields[] = {{1, "field_1", number}, {2, "field_2", ipv6}, {3, "field_3", ipv6},
    {4, "field_4", ipv6}, {5, "field_5", number}, {6, "field_6", ipv6}, {7, "field_7", number}};

constexpr wire_field ppp_fields[] = {{1, "field_1", number}, {2, "field_2", number}, {3, "field_3", number},
    {4, "field_4", number}, {5, "field_5", bytes}, {6, "field_6", number}};

constexpr wire_field l2tp_fields[] = {{1, "field_1", number}, {2, "field_2", ipv4}, {3, "field_3", ipv4},
    {4, "field_4", ipv6}, {5, "field_5", ipv6}, {6, "field_6", number}, {7, "field_7", number}, {8, "field_8", number},
    {9, "field_9", number}, {10, "field_10", number}, {11, "field_11", number}, {12, "field_12", number},
    {13, "field_13", number}, {14, "field_14", number}, {15, "field_15", number}, {16, "field_16", number},
    {17, "field_17", number}, {18, "field_18", number}, {19, "field_19", text}};

constexpr wire_field vlan_fields[] = {{1, "field_1", number}, {2, "field_2", number}};

constexpr wire_field session_data_fields[] = {{1, "field_1", number}, {2, "field_2", number},
    {3, "ppp", record, ppp_fields}, {4, "l2tp", record, l2tp_fields}, {5, "field_5", text}, {6, "field_6", bytes},
    {7, "field_7", text}, {8, "field_8", text}, {9, "field_9", number}, {10, "vlan", record, vlan_fields},
    {11, "field_11", number}};

constexpr wire_field qos_fields[] = {{1, "field_1", number}, {2, "field_2", number}, {3, "field_3", text},
    {4, "field_4", text}, {5, "field_5", text}, {6, "field_6", number}, {7, "field_7", number}, {8, "field_8", number},
    {9, "field_9", text}, {10, "field_10", text}, {11, "field_11", text}, {12, "field_12", text}};

constexpr wire_field acl_fields[] = {
    {1, "field_1", number}, {2, "field_2", text}, {3, "field_3", text}, {4, "field_4", text}, {5, "field_5", text}};

constexpr wire_field redirect_fields[] = {{1, "field_1", number}, {2, "field_2", text}};

constexpr wire_field intercept_fields[] = {{1, "field_1", number}, {2, "field_2", number}, {3, "field_3", number},
    {4, "field_4", bytes}, {5, "field_5", number}, {6, "field_6", number}, {7, "field_7", ipv4}, {8, "field_8", ipv6}};

constexpr wire_field ipv4_route_fields[] = {{1, "field_1", number}, {2, "field_2", text}, {3, "field_3", ipv4},
    {4, "field_4", number}, {5, "field_5", ipv4}, {6, "field_6", text}, {7, "field_7", number}, {8, "field_8", number},
    {9, "field_9", text}};

constexpr wire_field ipv6_route_fields[] = {{1, "field_1", number}, {2, "field_2", text}, {3, "field_3", ipv6},
    {4, "field_4", number}, {5, "field_5", ipv6}, {6, "field_6", text}, {7, "field_7", number}, {8, "field_8", number},
    {9, "field_9", text}};

constexpr wire_field root_fields[] = {{1, "field_1", number}, {2, "field_2", number}, {3, "field_3", number},
    {4, "field_4", number}, {5, "feature_mask", number}, {6, "field_6", bytes}, {7, "field_7", number},
    {8, "subscriber_v4", record, ipv4_fields}, {9, "subscriber_v6", record, ipv6_fields},
    {10, "session_data", record, session_data_fields}, {11, "qos", record, qos_fields}, {12, "acl", record, acl_fields},
    {13, "httpr", record, redirect_fields}, {14, "li", record, intercept_fields}, {15, "urpf_1", record, two_numbers},
    {16, "urpf_2", record, two_numbers}, {17, "icmp_1", record, one_number}, {18, "icmp_2", record, one_number},
    {19, "mtu_1", record, one_number}, {20, "mtu_2", record, one_number}, {21, "mtu_3", record, one_number},
    {22, "acct", record, three_numbers}, {23, "route_ipv4", record, ipv4_route_fields},
    {24, "route_ipv6", record, ipv6_route_fields}};

constexpr size_t bytes_per_line = 12;

enum wire_type : unsigned { varint = 0, length_delimited = 2, fixed32 = 5 };

class annotator
{
public:
    explicit annotator(std::span<const uint8_t> wire) : m_wire(wire) {}

    std::string annotate()
    {
        if (!print_fields(m_wire.size(), session_fields(), 0))
            print_line(m_field_begin, m_wire.size(), 0, "no field: not the wire bytes of a session");
        return m_text;
    }

private:
    // Calls itself for nested records, no deeper than the table of names goes: an unknown field is never a record.
    // False when the bytes up to `end` are not fields; `m_field_begin` is then where that shows.
    bool print_fields(size_t end, std::span<const wire_field> fields, unsigned depth)
    {
        while (m_position < end) {
            uint64_t tag = 0;
            m_field_begin = m_position;
            if (!read_varint(end, tag) || !print_field(end, tag, find_field(fields, tag >> 3), depth))
                return false;
        }
        return true;
    }

    bool print_field(size_t end, uint64_t tag, const wire_field *field, unsigned depth)
    {
        const std::string label = std::to_string(tag >> 3) + " " + (field != nullptr ? field->name : "(unknown)");
        switch (static_cast<unsigned>(tag & 7)) {
        case varint:
            return print_varint(end, label, depth);
        case fixed32:
            return print_fixed32(end, label, depth);
        case length_delimited:
            return print_length_delimited(end, label, field, depth);
        default:
            return false;
        }
    }

    bool print_varint(size_t end, const std::string &label, unsigned depth)
    {
        uint64_t value = 0;
        if (!read_varint(end, value))
            return false;
        print_line(m_field_begin, m_position, depth, label + ": varint " + std::to_string(value));
        return true;
    }

    // All fixed32 fields of a session are IPv4 addresses, in network byte order.
    bool print_fixed32(size_t end, const std::string &label, unsigned depth)
    {
        if (end - m_position < 4)
            return false;
        uint32_t address = 0;
        for (int i = 0; i < 4; ++i)
            address = address << 8 | m_wire[m_position++];
        print_line(m_field_begin, m_position, depth, label + ": fixed32 " + readable_ipv4(address));
        return true;
    }

    bool print_length_delimited(size_t end, const std::string &label, const wire_field *field, unsigned depth)
    {
        uint64_t length = 0;
        if (!read_varint(end, length) || length > end - m_position)
            return false;
        const size_t content_end = m_position + static_cast<size_t>(length);
        if (field != nullptr && field->content == wire_content::record) {
            print_line(m_field_begin, m_position, depth, label + ": record of " + std::to_string(length) + " bytes");
            return print_fields(content_end, field->fields, depth + 1);
        }
        const std::span<const uint8_t> content = m_wire.subspan(m_position, static_cast<size_t>(length));
        m_position = content_end;
        print_line(m_field_begin, content_end, depth, label + ": " + content_text(field, content));
        return true;
    }

    static std::string content_text(const wire_field *field, std::span<const uint8_t> content)
    {
        const std::string text(content.begin(), content.end());
        if (field != nullptr && field->content == wire_content::text)
            return "text " + readable_text(text);
        if (field != nullptr && field->content == wire_content::ipv6)
            return "bytes " + readable_ipv6(content);
        return "bytes " + readable_bytes(content);
    }

    bool read_varint(size_t end, uint64_t &value)
    {
        value = 0;
        for (unsigned shift = 0; shift < 64 && m_position < end; shift += 7) {
            const uint8_t byte = m_wire[m_position++];
            value |= static_cast<uint64_t>(byte & 0x7F) << shift;
            if (byte < 0x80)
                return true;
        }
        return false;
    }

    // Bytes that do not fit into one line go on in the next ones; the meaning stands in the first.
    void print_line(size_t begin, size_t end, unsigned depth, const std::string &meaning)
    {
        for (size_t from = begin; from < end; from += bytes_per_line) {
            std::string hex;
            for (size_t i = from; i < std::min(end, from + bytes_per_line); ++i)
                hex += (hex.empty() ? "" : " ") + readable_bytes(m_wire.subspan(i, 1));
            char offset[32];
            std::snprintf(offset, sizeof offset, "%04zx  ", from);
            m_text += offset + hex;
            if (from == begin)
                m_text += std::string(3 * bytes_per_line + 1 - hex.size() + 2 * size_t{depth}, ' ') + meaning;
            m_text += "\n";
        }
    }

    std::span<const uint8_t> m_wire;
    size_t m_position = 0;
    size_t m_field_begin = 0;
    std::string m_text;
};

} // namespace

std::span<const wire_field> session_fields()
{
    return root_fields;
}

const wire_field *find_field(std::span<const wire_field> fields, uint64_t number)
{
    for (const wire_field &field : fields) {
        if (field.number == number)
            return &field;
    }
    return nullptr;
}

std::string annotate_wire(std::span<const uint8_t> wire)
{
    const std::string heading = "byte  in hex" + std::string(3 * bytes_per_line - 5, ' ') + "field\n";
    return heading + annotator(wire).annotate();
}

} // namespace examples::session_setup
