// The 64-bit varint read, for the few fields of 64 bits.
#pragma once

#include "codec/wire_read.h"

#include <cstdint>

namespace mava_tum
{

// A varint of more than one byte. At least one byte of it lies inside the input.
number_read<uint64_t> read_long_varint64(const uint8_t *at, const uint8_t *end);

[[gnu::always_inline]] inline number_read<uint64_t> read_varint64(const uint8_t *at, const uint8_t *end)
{
    if (at == end)
        return number_read<uint64_t>::truncated();
    if (*at < varint_continues)
        return {at + 1, *at};
    return read_long_varint64(at, end);
}

} // namespace mava_tum
