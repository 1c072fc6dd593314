// The write primitives. `put_...` stores whole words into the scratch buffer and may spill up to `spill_bytes` beyond
// what it writes; `store_...` stores what it writes alone, also into the caller's buffer.
#pragma once

#include "codec/wire_types.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace mava_tum
{

inline constexpr uint32_t spill_bytes = 16;

[[gnu::always_inline]] inline void put_word(uint8_t *at, uint64_t word)
{
    if (std::endian::native == std::endian::big)
        word = __builtin_bswap64(word);
    memcpy(at, &word, sizeof word);
}

constexpr uint64_t varint_bytes(uint64_t value)
{
    const uint64_t bits = static_cast<uint32_t>(std::bit_width(value | 1));
    return (bits * 9 + 64) / 64; // a division by 7, rounded up, that holds for up to 64 bits
}

// The bytes of a varint, one after the other.
template <class Value, class Emit>
[[gnu::always_inline]] inline void emit_varint(Value value, const Emit &emit)
{
    for (; value >= varint_continues; value >>= 7)
        emit(static_cast<uint8_t>(value | varint_continues));
    emit(static_cast<uint8_t>(value));
}

// Nothing beyond what it writes: also straight into the caller's buffer.
template <class Value>
[[gnu::always_inline]] inline uint8_t *store_varint(uint8_t *at, Value value)
{
    emit_varint(value, [&](uint8_t byte) { *at++ = byte; });
    return at;
}

// What the position of a value's top bit fixes about its varint: its bytes, and the continuation bits of all but one.
struct varint_shape {
    uint64_t continuation_bits;
    uint64_t bytes;
};

// The bits of a varint of eight bytes, which one word holds.
inline constexpr uint32_t word_varint_bits = 56;

constexpr std::array<varint_shape, word_varint_bits> make_varint_shapes()
{
    std::array<varint_shape, word_varint_bits> shapes{};
    for (uint32_t top_bit = 0; top_bit < shapes.size(); ++top_bit) {
        const uint32_t bytes = top_bit / 7 + 1;
        for (uint32_t i = 0; i + 1 < bytes; ++i)
            shapes[top_bit].continuation_bits |= uint64_t{varint_continues} << 8 * i;
        shapes[top_bit].bytes = bytes;
    }
    return shapes;
}

inline constexpr std::array<varint_shape, word_varint_bits> varint_shapes = make_varint_shapes();

// Moves each group of 7 bits to a byte of its own: every step adds the bits from one byte boundary up to themselves,
// which shifts them left by one.
[[gnu::always_inline]] inline uint64_t spread_groups(uint64_t value)
{
    value += value & -(uint64_t{1} << 7);
    value += value & -(uint64_t{1} << 15);
    value += value & -(uint64_t{1} << 23);
    value += value & -(uint64_t{1} << 31);
    return value;
}

// A tag and a varint of 32 bits.
[[gnu::always_inline]] inline uint8_t *put_varint32(uint8_t *at, field_tag tag, uint32_t value)
{
    if (value < varint_continues) {
        put_word(at, tag.bytes | uint64_t{value} << 8 * tag.length);
        return at + tag.length + 1;
    }
    if (value < 1u << 14) {
        const uint64_t two_bytes = (value & varint_payload) | varint_continues | (value >> 7) << 8;
        put_word(at, tag.bytes | two_bytes << 8 * tag.length);
        return at + tag.length + 2;
    }
    const varint_shape &shape = varint_shapes[31u - static_cast<uint32_t>(std::countl_zero(value))];
    const uint64_t groups = spread_groups(value) | shape.continuation_bits;
    put_word(at, tag.bytes | groups << 8 * tag.length);
    return at + tag.length + shape.bytes;
}

// The same without a branch for the width: of counters, which have any, the processor would guess it wrong.
[[gnu::always_inline]] inline uint8_t *put_counter(uint8_t *at, field_tag tag, uint32_t value)
{
    const varint_shape &shape = varint_shapes[31u - static_cast<uint32_t>(std::countl_zero(value | 1))];
    const uint64_t groups = spread_groups(value) | shape.continuation_bits;
    put_word(at, tag.bytes | groups << 8 * tag.length);
    return at + tag.length + shape.bytes;
}

// Moves each of eight groups of 7 bits to a byte of its own, in halves: 28 bits to each half of the word, 14 to each
// quarter, 7 to each byte.
[[gnu::always_inline]] inline uint64_t spread_all_groups(uint64_t value)
{
    value = (value & 0x000000000fffffff) | (value & 0x00fffffff0000000) << 4;
    value = (value & 0x00003fff00003fff) | (value & 0x0fffc0000fffc000) << 2;
    return (value & 0x007f007f007f007f) | (value & 0x3f803f803f803f80) << 1;
}

// A varint above 32 bits, without a branch for each of its bytes: of identifiers and counters of any size the processor
// would guess the last byte wrong. An eighth fewer instructions of an encode of session states
// (scripts/check/instructions).
[[gnu::always_inline]] inline uint8_t *put_long_varint64(uint8_t *at, uint64_t value)
{
    if (value >> word_varint_bits == 0) [[likely]] {
        const varint_shape &shape = varint_shapes[63u - static_cast<uint32_t>(std::countl_zero(value))];
        put_word(at, spread_all_groups(value) | shape.continuation_bits);
        return at + shape.bytes;
    }
    put_word(at, spread_all_groups(value) | 0x8080808080808080); // the ninth group and up follow
    return store_varint(at + sizeof value, value >> word_varint_bits);
}

// A tag and a varint of 64 bits.
[[gnu::always_inline]] inline uint8_t *put_varint64(uint8_t *at, field_tag tag, uint64_t value)
{
    if (value <= UINT32_MAX)
        return put_varint32(at, tag, static_cast<uint32_t>(value));
    put_word(at, tag.bytes);
    return put_long_varint64(at + tag.length, value);
}

// A tag and four bytes.
[[gnu::always_inline]] inline uint8_t *put_fixed32(uint8_t *at, field_tag tag, uint32_t value)
{
    put_word(at, tag.bytes | uint64_t{value} << 8 * tag.length);
    return at + tag.length + fixed32_bytes;
}

// As store_varint.

[[gnu::always_inline]] inline uint8_t *store_fixed32(uint8_t *at, uint32_t value)
{
    if (std::endian::native == std::endian::big)
        value = __builtin_bswap32(value);
    memcpy(at, &value, sizeof value);
    return at + sizeof value;
}

} // namespace mava_tum
