#include "codec/counting_writer.h"

#include <cstring>

namespace mava_tum
{

void counting_writer::byte(uint8_t value)
{
    if (position < length)
        buffer[position] = value;
    ++position;
}

void counting_writer::varint(uint64_t value)
{
    for (; value >= varint_continues; value >>= 7)
        byte(static_cast<uint8_t>(value | varint_continues));
    byte(static_cast<uint8_t>(value));
}

void counting_writer::fixed32(uint32_t value)
{
    for (uint32_t shift = 0; shift < 32; shift += 8)
        byte(static_cast<uint8_t>(value >> shift));
}

void counting_writer::copy(const void *data, uint64_t payload_length)
{
    const uint64_t end = advance(position, payload_length);
    if (data != nullptr && end != position && end <= length)
        memcpy(buffer + position, data, payload_length);
    position = end;
}

void counting_writer::block(uint32_t tag, const void *data, uint64_t payload_length)
{
    varint(tag);
    varint(static_cast<uint32_t>(payload_length));
    copy(data, payload_length);
}

void counting_writer::bytes(uint32_t tag, const mava_tum_bytes &field)
{
    if (!gather)
        return block(tag, field.data, field.length);
    varint(tag);
    varint(static_cast<uint32_t>(field.length));
    if (field.length == 0 || !segments.wanted)
        return;
    segments.add(piece_address(buffer, piece_start), position - piece_start);
    segments.add(field.data, field.length);
    piece_start = position;
}

counting_writer counting_writer::nested(bool holds_bytes) const
{
    const segment_list pieces = gather ? segments.rest() : segment_list{};
    if (position >= length)
        return {nullptr, 0, gather && holds_bytes, pieces};
    return {buffer + position, length - position, gather && holds_bytes, pieces};
}

void counting_writer::accept_nested(const counting_writer &body, uint64_t body_bytes)
{
    position += body_bytes;
    segments.count += body.segments.count;
}

void counting_writer::finish()
{
    if (!segments.wanted)
        return;
    if (position > piece_start)
        segments.add(piece_address(buffer, piece_start), position - piece_start);
}

} // namespace mava_tum
