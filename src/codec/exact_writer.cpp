// The writer of the exact path.
#include "codec/exact_writer.h"

#include "codec/wire_write.h"

#include <cstring>

namespace mava_tum
{

// The position after a payload; one that would wrap around leaves it where it is.
static uint64_t advance(uint64_t position, uint64_t payload_bytes)
{
    const uint64_t end = position + payload_bytes;
    return end < position ? position : end;
}

void exact_writer::byte(uint8_t value)
{
    if (position < length)
        buffer[position] = value;
    ++position;
}

void exact_writer::tag(field_tag tag)
{
    byte(static_cast<uint8_t>(tag.bytes));
    if (tag.length == 2)
        byte(static_cast<uint8_t>(tag.bytes >> 8));
}

void exact_writer::varint(uint64_t value)
{
    if (position >= length) { // nothing is stored: the size of a nested message, or a short buffer
        position += varint_bytes(value);
        return;
    }
    uint8_t stored[max_varint64_bytes];
    const uint8_t *const end = store_varint(stored, value);
    for (const uint8_t *at = stored; at != end; ++at)
        byte(*at);
}

void exact_writer::fixed32(uint32_t value)
{
    uint8_t stored[fixed32_bytes];
    store_fixed32(stored, value);
    for (const uint8_t stored_byte : stored)
        byte(stored_byte);
}

void exact_writer::copy(const void *data, uint64_t payload_length)
{
    const uint64_t end = advance(position, payload_length);
    if (data != nullptr && end != position && end <= length)
        memcpy(buffer + position, data, payload_length);
    position = end;
}

void exact_writer::block(field_tag field, const void *data, uint64_t payload_length)
{
    tag(field);
    varint(static_cast<uint32_t>(payload_length));
    copy(data, payload_length);
}

void exact_writer::bytes_field(field_tag field, const mava_tum_bytes &value)
{
    if (mode == output_mode::copy)
        return block(field, value.data, value.length);
    tag(field);
    varint(static_cast<uint32_t>(value.length));
    if (value.length == 0 || !segments.wanted)
        return;
    segments.add(segment_address(buffer, segment_start), position - segment_start);
    segments.add(value.data, value.length);
    segment_start = position;
}

exact_writer exact_writer::nested(output_mode nested_mode) const
{
    const output_mode both = mode == output_mode::copy ? mode : nested_mode;
    const segment_list rest = mode == output_mode::copy ? segment_list{} : segments.rest();
    if (position >= length)
        return {nullptr, 0, both, rest};
    return {buffer + position, length - position, both, rest};
}

void exact_writer::accept_nested(const exact_writer &nested, uint64_t nested_bytes)
{
    position += nested_bytes;
    segments.count += nested.segments.count;
}

void exact_writer::finish()
{
    if (!segments.wanted)
        return;
    if (position > segment_start)
        segments.add(segment_address(buffer, segment_start), position - segment_start);
}

} // namespace mava_tum
