// The read primitives. Each tests its own bounds: a position is a pointer that never passes `end`. Beside them, only
// the decode engine looks at input, at the first two bytes of a tag, after testing that they are there.
#pragma once

#include "codec/wire_types.h"
#include "mava_tum/codec_contract.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace mava_tum
{

// A number and the position after it.
template <class Value>
struct number_read {
    const uint8_t *next; // null: the input ended inside the number
    Value value;

    static number_read truncated()
    {
        return {nullptr, 0};
    }
};

// The value of a length-delimited field.
struct payload {
    const uint8_t *data; // null: it does not lie inside the input
    uint32_t length;

    const uint8_t *end() const
    {
        return data + length;
    }
};

// The outcome of reading a field: the position after it, or a decode result other than MAVA_TUM_OK.
struct field_read {
    const uint8_t *next; // null: failed
    int32_t failure;

    static field_read ends_at(const uint8_t *next)
    {
        return {next, MAVA_TUM_OK};
    }

    static field_read failed(int32_t result)
    {
        return {nullptr, result};
    }
};

// A tag or a length byte by byte. It stands out of line, since few are longer than two bytes. At least one byte of it
// lies inside the input.
number_read<uint32_t> read_long_varint32(const uint8_t *at, const uint8_t *end);

// A 32-bit varint whose first byte is known to lie inside the input; short ones are read inline.
[[gnu::always_inline]] inline number_read<uint32_t> read_started_varint32(const uint8_t *at, const uint8_t *end)
{
    uint32_t byte = *at++;
    if (byte < varint_continues) [[likely]]
        return {at, byte};
    if (at == end)
        return number_read<uint32_t>::truncated();
    uint32_t value = byte & varint_payload;
    byte = *at++;
    value |= (byte & varint_payload) << 7;
    if (byte < varint_continues) [[likely]]
        return {at, value};
    return read_long_varint32(at - 2, end);
}

// A tag. The caller has tested that `at` lies before `end`.
[[gnu::always_inline]] inline number_read<uint32_t> read_tag(const uint8_t *at, const uint8_t *end)
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
[[gnu::always_inline]] inline number_read<uint32_t> read_varint32(const uint8_t *at, const uint8_t *end)
{
    constexpr number_read<uint32_t> truncated{nullptr, 0};
    if (at == end)
        return truncated;
    uint32_t byte = *at++;
    uint32_t value = byte;
    if (byte < varint_continues) [[likely]]
        return {at, value};
    if (at == end)
        return truncated;
    if (add_varint_byte<1>(at, value, byte))
        return {at, value};
    if (at == end)
        return truncated;
    if (add_varint_byte<2>(at, value, byte))
        return {at, value};
    if (at == end)
        return truncated;
    if (add_varint_byte<3>(at, value, byte))
        return {at, value};
    if (at == end)
        return truncated;
    add_varint_byte<4>(at, value, byte);
    while (byte >= varint_continues) {
        if (at == end)
            return truncated;
        byte = *at++; // L1: any number of further bytes is skipped
    }
    return {at, value};
}

// A length prefix without regard to what follows it.
[[gnu::always_inline]] inline number_read<uint32_t> read_length_varint(const uint8_t *at, const uint8_t *end)
{
    if (at == end)
        return number_read<uint32_t>::truncated();
    return read_started_varint32(at, end);
}

// A length prefix and the test that its payload lies inside the input.
[[gnu::always_inline]] inline payload read_payload(const uint8_t *at, const uint8_t *end)
{
    const number_read<uint32_t> length = read_length_varint(at, end);
    if (length.next == nullptr || length.value > static_cast<uint64_t>(end - length.next))
        return {nullptr, 0};
    return {length.next, length.value};
}

// Whether a length prefix of one byte and its whole payload are at `at`.
[[gnu::always_inline]] inline bool is_short_payload(const uint8_t *at, const uint8_t *end)
{
    return at != end && *at < varint_continues && *at < end - at;
}

constexpr uint32_t little_endian(uint32_t value)
{
    return std::endian::native == std::endian::little ? value : __builtin_bswap32(value);
}

// Eight bytes, the first one lowest. The caller has tested that they lie inside the input.
[[gnu::always_inline]] inline uint64_t load_word(const uint8_t *at)
{
    uint64_t word;
    memcpy(&word, at, sizeof word);
    return std::endian::native == std::endian::little ? word : __builtin_bswap64(word);
}

[[gnu::always_inline]] inline number_read<uint32_t> read_fixed32(const uint8_t *at, const uint8_t *end)
{
    if (static_cast<uint64_t>(end - at) < fixed32_bytes)
        return number_read<uint32_t>::truncated();
    uint32_t value;
    memcpy(&value, at, fixed32_bytes);
    return {at + fixed32_bytes, little_endian(value)};
}

} // namespace mava_tum
