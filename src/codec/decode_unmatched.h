// The step after a tag that no field of a message has in its shortest form.
#pragma once

#include "codec/wire_read.h"

#include <cstdint>

namespace mava_tum
{

// Marks a tag that is taken as if it stood in its shortest form.
inline constexpr uint32_t assumed_tag = 1u << 16;

// Where the decode continues.
struct unmatched_tag {
    const uint8_t *at; // null: the decode ends with `result`
    uint32_t first_byte;
    int32_t result;

    static unmatched_tag ends_with(int32_t result)
    {
        return {nullptr, 0, result};
    }
};

// The tag at `at` is that of an unknown field, of a known one with another wire type, or of a known one in a longer
// form than it needs. `types` are the wire types of fields 1 to `field_count`.
unmatched_tag decode_unmatched(const uint8_t *at, const uint8_t *end, const wire_type *types, uint64_t field_count);

} // namespace mava_tum
