#include "inspector/library/wire_cursor.h"

#include "codec/wire_types.h"

namespace mava_tum_inspect
{

namespace
{

// Byte `index` of a varint, of which the low `value_bits` count.
void add_byte(varint_read &varint, uint64_t index, uint8_t byte, uint32_t value_bits)
{
    const uint64_t payload = byte & mava_tum::varint_payload;
    const uint64_t shift = 7 * index;
    if (shift >= value_bits) {
        if (payload != 0)
            varint.lost_bits = true;
        return;
    }
    const uint64_t room = value_bits - shift;
    if (room < 7 && payload >> room != 0)
        varint.lost_bits = true;
    varint.value |= payload << shift;
}

} // namespace

uint64_t varint_bytes(uint64_t value)
{
    uint64_t bytes = 1;
    while (value >= mava_tum::varint_continues) {
        value >>= 7;
        ++bytes;
    }
    return bytes;
}

static_assert(varint_continuation == mava_tum::varint_continues);

varint_read read_long_varint(wire_cursor &cursor, uint32_t value_bits)
{
    varint_read varint;
    while (cursor.position != cursor.end) {
        const uint8_t byte = cursor.data[cursor.position++];
        add_byte(varint, varint.bytes, byte, value_bits);
        varint.bytes = varint.bytes + 1;
        if (byte < mava_tum::varint_continues) {
            varint.is_whole = true;
            break;
        }
    }
    if (value_bits == 32)
        varint.value = static_cast<uint32_t>(varint.value);
    varint.is_over_long = varint.bytes > varint_bytes(varint.value);
    return varint;
}

fixed32_read read_fixed32(wire_cursor &cursor)
{
    fixed32_read fixed32;
    fixed32.place.offset = cursor.position;
    fixed32.is_whole = cursor.left() >= mava_tum::fixed32_bytes;
    fixed32.place.bytes = fixed32.is_whole ? mava_tum::fixed32_bytes : cursor.left();
    for (uint64_t i = 0; i < fixed32.place.bytes; ++i)
        fixed32.value |= static_cast<uint32_t>(cursor.data[cursor.position + i]) << 8 * i;
    cursor.position += fixed32.place.bytes;
    return fixed32;
}

} // namespace mava_tum_inspect
