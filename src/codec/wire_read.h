// The read primitives. Each tests its own bounds: a position is a pointer that never passes `end`. Beside them, only
// the decode frame looks at input, at the first two bytes of a tag, once it has tested that they are there. All return
// the position after the value, or null when the input ends too early.
#pragma once

#include "codec/wire_types.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace mava_tum
{

struct varint32_end {
    const uint8_t *next; // null: the input ended inside the varint
    uint32_t value;
};

struct length_end {
    const uint8_t *value; // first byte of the length-delimited value; null: it does not lie inside the input
    uint32_t length;
};

// What each kind of field makes of its value: the next position, or null and the decode result.
struct read_end {
    const uint8_t *next;
    int32_t failure;
};

// A tag or a length byte by byte. It stands out of line, since few are longer than two bytes. At least one byte of it
// lies inside the input.
varint32_end read_long_varint32(const uint8_t *at, const uint8_t *end);

// A 32-bit varint whose first byte is known to lie inside the input; short ones are read inline.
[[gnu::always_inline]] inline varint32_end read_started_varint32(const uint8_t *at, const uint8_t *end)
{
    uint32_t byte = *at++;
    if (byte < varint_continues) [[likely]]
        return {at, byte};
    if (at == end)
        return {nullptr, 0};
    uint32_t value = byte & varint_payload;
    byte = *at++;
    value |= (byte & varint_payload) << 7;
    if (byte < varint_continues) [[likely]]
        return {at, value};
    return read_long_varint32(at - 2, end);
}

// A tag. The caller has tested that `at` lies before `end`.
[[gnu::always_inline]] inline varint32_end read_tag(const uint8_t *at, const uint8_t *end)
{
    return read_started_varint32(at, end);
}

// Adds byte `index` of a varint. It also takes away the continuation bit that the byte before left in `value`.
template <uint32_t index>
[[gnu::always_inline]] inline bool add_varint_byte(const uint8_t *&at, uint32_t &value, uint32_t &byte)
{
    byte = *at++;
    value += (byte - 1) << 7 * index; // the fifth byte as a whole: what does not fit 32 bits is dropped (L1)
    return byte < varint_continues;
}

// A value, of any width inline.
[[gnu::always_inline]] inline varint32_end read_varint32(const uint8_t *at, const uint8_t *end)
{
    if (at == end)
        return {nullptr, 0};
    uint32_t byte = *at++;
    uint32_t value = byte;
    if (byte < varint_continues) [[likely]]
        return {at, value};
    if (at == end)
        return {nullptr, 0};
    if (add_varint_byte<1>(at, value, byte))
        return {at, value};
    if (at == end)
        return {nullptr, 0};
    if (add_varint_byte<2>(at, value, byte))
        return {at, value};
    if (at == end)
        return {nullptr, 0};
    if (add_varint_byte<3>(at, value, byte))
        return {at, value};
    if (at == end)
        return {nullptr, 0};
    add_varint_byte<4>(at, value, byte);
    while (byte >= varint_continues) {
        if (at == end)
            return {nullptr, 0};
        byte = *at++; // L1: further bytes are stepped over, however many
    }
    return {at, value};
}

// A length prefix without regard to what follows it.
[[gnu::always_inline]] inline varint32_end read_length_varint(const uint8_t *at, const uint8_t *end)
{
    if (at == end)
        return {nullptr, 0};
    return read_started_varint32(at, end);
}

// A length prefix and the test that its value lies inside the input.
[[gnu::always_inline]] inline length_end read_length(const uint8_t *at, const uint8_t *end)
{
    const varint32_end length = read_length_varint(at, end);
    if (length.next == nullptr || length.value > static_cast<uint64_t>(end - length.next))
        return {nullptr, 0};
    return {length.next, length.value};
}

// Whether a length prefix of one byte and its whole value stand at `at`.
[[gnu::always_inline]] inline bool is_short_payload(const uint8_t *at, const uint8_t *end)
{
    return at != end && *at < varint_continues && *at < end - at;
}

constexpr uint32_t little_endian(uint32_t value)
{
    return std::endian::native == std::endian::little ? value : __builtin_bswap32(value);
}

[[gnu::always_inline]] inline varint32_end read_fixed32(const uint8_t *at, const uint8_t *end)
{
    if (end - at < static_cast<ptrdiff_t>(fixed32_bytes))
        return {nullptr, 0};
    uint32_t value;
    memcpy(&value, at, fixed32_bytes);
    return {at + fixed32_bytes, little_endian(value)};
}

} // namespace mava_tum
