#include "codec/read_varint64.h"

namespace mava_tum
{

varint64_end read_long_varint64(const uint8_t *at, const uint8_t *end, uint8_t first)
{
    uint64_t value = first & varint_payload;
    // Written out, each byte's shift is a constant: a tenth less to decode session states (tools/check/instructions).
#pragma GCC unroll 8
    for (uint32_t shift = 7; shift < 63; shift += 7) {
        if (at == end)
            return {nullptr, 0};
        const uint64_t byte = *at++;
        value |= (byte & varint_payload) << shift;
        if (byte < varint_continues)
            return {at, value};
    }
    if (at == end)
        return {nullptr, 0};
    uint64_t byte = *at++;
    value |= byte << 63; // L1: of the tenth byte only the lowest bit counts
    while (byte >= varint_continues) {
        if (at == end)
            return {nullptr, 0};
        byte = *at++; // L1: further bytes are stepped over, however many
    }
    return {at, value};
}

} // namespace mava_tum
