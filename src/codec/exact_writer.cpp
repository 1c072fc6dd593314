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

void exact_writer::tag(field_tag field)
{
    byte(static_cast<uint8_t>(field.bytes));
    if (field.length == 2)
        byte(static_cast<uint8_t>(field.bytes >> 8));
}

void exact_writer::varint_field(field_tag field, uint64_t value)
{
    if (is_full()) {
        position += field.length + varint_bytes(value);
        return;
    }
    tag(field);
    emit_varint(value, [this](uint8_t stored) { byte(stored); });
}

void exact_writer::fixed32_field(field_tag field, uint32_t value)
{
    tag(field);
    for (uint32_t shift = 0; shift < 32; shift += 8)
        byte(static_cast<uint8_t>(value >> shift));
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
    varint_field(field, static_cast<uint32_t>(payload_length));
    copy(data, payload_length);
}

void exact_writer::bytes_field(field_tag field, const mava_tum_bytes &value)
{
    if (mode == output_mode::copy)
        return block(field, value.data, value.length);
    varint_field(field, static_cast<uint32_t>(value.length));
    if (value.length == 0 || !segments.wanted)
        return;
    segments.add(segment_address(buffer, segment_start), position - segment_start);
    segments.add(value.data, value.length);
    segment_start = position;
}

bool exact_writer::start_nested(field_tag field, uint64_t nested_bytes)
{
    varint_field(field, static_cast<uint32_t>(nested_bytes));
    if (!is_full() || segments.wanted)
        return true;
    position += nested_bytes;
    return false;
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
