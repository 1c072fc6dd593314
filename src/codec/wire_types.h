// The wire format's constants: wire types, and the tag that joins a field number with one.
#pragma once

#include <cstdint>

namespace mava_tum
{

enum class wire_type : uint8_t {
    varint = 0,
    fixed64 = 1, // only ever skipped: no message has a fixed64 field
    length_delimited = 2,
    group_start = 3,
    group_end = 4,
    fixed32 = 5,
};

inline constexpr uint32_t wire_type_bits = 3;
inline constexpr uint32_t wire_type_mask = (1u << wire_type_bits) - 1;

inline constexpr uint32_t fixed32_bytes = 4;
inline constexpr uint32_t fixed64_bytes = 8;
inline constexpr uint32_t max_varint32_bytes = 5;
inline constexpr uint32_t max_varint64_bytes = 10;

inline constexpr uint8_t varint_continues = 0x80;
inline constexpr uint8_t varint_payload = 0x7f;

// A tag's value, as a decoder reads it.
constexpr uint32_t tag_value(uint32_t field_number, wire_type type)
{
    return field_number << wire_type_bits | static_cast<uint32_t>(type);
}

constexpr uint32_t field_number_of(uint32_t tag)
{
    return tag >> wire_type_bits;
}

constexpr wire_type wire_type_of(uint32_t tag)
{
    return static_cast<wire_type>(tag & wire_type_mask);
}

// A tag on the wire, in its shortest form: its bytes, the first one lowest, and how many they are, 1 or 2.
struct field_tag {
    uint32_t bytes;
    uint32_t length;
};

constexpr field_tag make_field_tag(uint32_t field_number, wire_type type)
{
    const uint32_t value = tag_value(field_number, type);
    if (value < varint_continues)
        return {value, 1};
    return {(value & varint_payload) | varint_continues | (value >> 7) << 8, 2};
}

} // namespace mava_tum
