// The step over a field that a message does not know.
#include "codec/skip_unknown_field.h"

namespace mava_tum
{

// L3: no bounds test. The step is clamped only so that no pointer beyond the input is ever formed.
static field_read step_over(const uint8_t *at, const uint8_t *end, uint32_t bytes)
{
    if (bytes > static_cast<uint64_t>(end - at))
        return field_read::ends_at(end);
    return field_read::ends_at(at + bytes);
}

static field_read skip_varint(const uint8_t *at, const uint8_t *end)
{
    const number_read<uint32_t> varint = read_varint32(at, end);
    if (varint.next == nullptr)
        return field_read::failed(MAVA_TUM_TRUNCATED);
    return field_read::ends_at(varint.next);
}

static field_read skip_length_delimited(const uint8_t *at, const uint8_t *end)
{
    const number_read<uint32_t> length = read_length_varint(at, end);
    if (length.next == nullptr)
        return field_read::failed(MAVA_TUM_TRUNCATED);
    return step_over(length.next, end, length.value);
}

field_read skip_unknown_field(wire_type type, const uint8_t *at, const uint8_t *end)
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
        return field_read::failed(MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    }
}

} // namespace mava_tum
