// The 64-bit varint read, for the few fields of 64 bits.
#pragma once

#include "codec/wire_types.h"

#include <cstdint>

namespace mava_tum
{

struct varint64_end {
    const uint8_t *next; // null: the input ended inside the varint
    uint64_t value;
};

// The part beyond one byte; `first` is the byte before `at`, and it continues.
varint64_end read_long_varint64(const uint8_t *at, const uint8_t *end, uint8_t first);

[[gnu::always_inline]] inline varint64_end read_varint64(const uint8_t *at, const uint8_t *end)
{
    if (at == end)
        return {nullptr, 0};
    const uint8_t first = *at++;
    if (first < varint_continues)
        return {at, first};
    return read_long_varint64(at, end, first);
}

} // namespace mava_tum
