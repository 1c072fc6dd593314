#include "codec/skip_unknown_field.h"

#include "mava_tum/codec_contract.h"

namespace mava_tum
{

// L3: no bounds test. The step is clamped only so that no pointer beyond the input is ever formed.
static read_end step_over(const uint8_t *at, const uint8_t *end, uint32_t bytes)
{
    if (bytes > static_cast<uint64_t>(end - at))
        return {end, MAVA_TUM_OK};
    return {at + bytes, MAVA_TUM_OK};
}

static read_end skip_varint(const uint8_t *at, const uint8_t *end)
{
    const varint32_end varint = read_varint32(at, end);
    return {varint.next, MAVA_TUM_TRUNCATED};
}

static read_end skip_length_delimited(const uint8_t *at, const uint8_t *end)
{
    const varint32_end length = read_length_varint(at, end);
    if (length.next == nullptr)
        return {nullptr, MAVA_TUM_TRUNCATED};
    return step_over(length.next, end, length.value);
}

read_end skip_unknown_field(wire_type type, const uint8_t *at, const uint8_t *end)
{
    switch (type) {
    case wire_type::varint:
        return skip_varint(at, end);
    case wire_type::fixed64:
        return step_over(at, end, fixed64_bytes);
    case wire_type::length_delimited:
        return skip_length_delimited(at, end);
    case wire_type::fixed32:
        return step_over(at, end, fixed32_bytes);
    default:
        return {nullptr, MAVA_TUM_UNSUPPORTED_WIRE_TYPE};
    }
}

} // namespace mava_tum
