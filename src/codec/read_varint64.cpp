// The 64-bit varint read beyond one byte.
#include "codec/read_varint64.h"

#include <bit>

namespace mava_tum
{

static number_read<uint64_t> read_byte_by_byte(const uint8_t *at, const uint8_t *end)
{
    uint64_t value = 0;
    for (uint32_t shift = 0; shift < 63; shift += 7) {
        if (at == end)
            return number_read<uint64_t>::truncated();
        const uint64_t byte = *at++;
        value |= (byte & varint_payload) << shift;
        if (byte < varint_continues)
            return {at, value};
    }
    if (at == end)
        return number_read<uint64_t>::truncated();
    uint64_t byte = *at++;
    value |= byte << 63; // L1: of the tenth byte only the lowest bit counts
    while (byte >= varint_continues) {
        if (at == end)
            return number_read<uint64_t>::truncated();
        byte = *at++; // L1: any number of further bytes is skipped
    }
    return {at, value};
}

// Joins the groups of 7 bits in the low bits of each byte: 7 to 14, to 28, to 56 bits.
static uint64_t join_groups(uint64_t groups)
{
    groups = (groups & 0x007f007f007f007f) | (groups & 0x7f007f007f007f00) >> 1;
    groups = (groups & 0x00003fff00003fff) | (groups & 0x3fff00003fff0000) >> 2;
    return (groups & 0x000000000fffffff) | (groups & 0x0fffffff00000000) >> 4;
}

// Up to eight bytes are read as one word: identifiers have any width, and the processor would guess the last byte
// wrong.
number_read<uint64_t> read_long_varint64(const uint8_t *at, const uint8_t *end)
{
    if (static_cast<uint64_t>(end - at) < sizeof(uint64_t))
        return read_byte_by_byte(at, end);
    const uint64_t word = load_word(at);
    const uint64_t stops = ~word & 0x8080808080808080;
    if (stops == 0)
        return read_byte_by_byte(at, end);
    const uint64_t up_to_stop = stops ^ (stops - 1);
    const uint32_t bytes = static_cast<uint32_t>(std::countr_zero(stops)) / 8 + 1;
    return {at + bytes, join_groups(word & up_to_stop & 0x7f7f7f7f7f7f7f7f)};
}

} // namespace mava_tum
