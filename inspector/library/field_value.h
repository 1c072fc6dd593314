// One field of a message as text and as JSON.
#pragma once

#include "inspector/library/json_writer.h"
#include "inspector/library/wire_event.h"

#include <cstdint>
#include <span>

namespace mava_tum_inspect
{

using wire_bytes = std::span<const uint8_t>;

// The bytes of the value; `wire` is the whole message.
wire_bytes value_bytes(const occurrence &at, wire_bytes wire);

// What a decode keeps of them: a text ends at a zero byte.
wire_bytes content_bytes(const occurrence &at, wire_bytes wire);

// A known field that is no record. A text is what the library makes of it: it ends at a zero byte.
void write_value(json_writer &writer, const occurrence &at, wire_bytes wire);

// For people: 7, "user@example.com", c0000201 = 192.0.2.1, 20010db8... = 2001:db8::1.
void write_value(text_output &output, const occurrence &at, wire_bytes wire);

// Of any field: "varint", "array of records", and for an unknown one what its wire type says.
std::string_view kind_of(const occurrence &at);

inline bool is_array_element(const path_step &step)
{
    return step.index != path_step::no_index;
}

// An address as text.
class address_text
{
public:
    static address_text ipv4(uint32_t host_order);
    static address_text ipv6(const uint8_t *address);

    std::string_view view() const
    {
        return {m_text, m_length};
    }

private:
    char m_text[46]; // of the longest IPv6 address, with its NUL
    std::size_t m_length = 0;
};

} // namespace mava_tum_inspect
