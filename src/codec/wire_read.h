// The read primitives. Each tests its own bounds, and nothing else in the decoder does: a position is a pointer that
// never passes `end`. All return the position after the value, or null when the input ends too early.
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

// Bytes three and on of a 32-bit varint whose first two are in `value`.
[[gnu::always_inline]] inline varint32_end read_varint32_tail(const uint8_t *at, const uint8_t *end, uint32_t value)
{
    for (uint32_t shift = 14; shift < 28; shift += 7) {
        if (at == end)
            return {nullptr, 0};
        const uint32_t byte = *at++;
        value |= (byte & varint_payload) << shift;
        if (byte < varint_continues)
            return {at, value};
    }
    if (at == end)
        return {nullptr, 0};
    uint32_t byte = *at++;
    value |= byte << 28; // L1: the whole byte; what does not fit 32 bits is dropped without complaint
    while (byte >= varint_continues) {
        if (at == end)
            return {nullptr, 0};
        byte = *at++; // L1: further bytes are stepped over, however many
    }
    return {at, value};
}

// The same out of line, for tags and lengths, which are rarely so long.
[[gnu::noinline]] inline varint32_end read_long_varint32(const uint8_t *at, const uint8_t *end, uint32_t value)
{
    return read_varint32_tail(at, end, value);
}

enum class expected_width { any, short_ };

// A 32-bit varint whose first byte is known to lie inside the input.
template <expected_width width>
[[gnu::always_inline]] inline varint32_end read_started_varint32(const uint8_t *at, const uint8_t *end)
{
    uint32_t byte = *at++;
    if (byte < varint_continues)
        return {at, byte};
    if (at == end)
        return {nullptr, 0};
    uint32_t value = byte & varint_payload;
    byte = *at++;
    value |= (byte & varint_payload) << 7;
    if (byte < varint_continues)
        return {at, value};
    return width == expected_width::any ? read_varint32_tail(at, end, value) : read_long_varint32(at, end, value);
}

// A tag. The caller has tested that `at` lies before `end`.
[[gnu::always_inline]] inline varint32_end read_tag(const uint8_t *at, const uint8_t *end)
{
    return read_started_varint32<expected_width::short_>(at, end);
}

[[gnu::always_inline]] inline varint32_end read_varint32(const uint8_t *at, const uint8_t *end)
{
    if (at == end)
        return {nullptr, 0};
    return read_started_varint32<expected_width::any>(at, end);
}

// A length prefix without regard to what follows it.
[[gnu::always_inline]] inline varint32_end read_length_varint(const uint8_t *at, const uint8_t *end)
{
    if (at == end)
        return {nullptr, 0};
    return read_started_varint32<expected_width::short_>(at, end);
}

// A length prefix and the test that its value lies inside the input.
[[gnu::always_inline]] inline length_end read_length(const uint8_t *at, const uint8_t *end)
{
    const varint32_end length = read_length_varint(at, end);
    if (length.next == nullptr || length.value > static_cast<uint64_t>(end - length.next))
        return {nullptr, 0};
    return {length.next, length.value};
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
