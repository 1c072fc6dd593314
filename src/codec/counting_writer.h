// The exact encoder: its position always advances, and a byte is stored only where it lies below the length. It serves
// short buffers, whose every byte is part of the contract, and gather mode; both are rare, so it is simple, not fast.
#pragma once

#include "codec/segments.h"
#include "codec/wire_types.h"

#include <bit>
#include <cstdint>

namespace mava_tum
{

constexpr uint64_t varint_bytes(uint64_t value)
{
    const uint64_t bits = static_cast<uint32_t>(std::bit_width(value | 1));
    return (bits * 9 + 64) / 64; // a division by 7, rounded up, that holds for up to 64 bits
}

// The position after a payload; one that would wrap around leaves it where it is.
constexpr uint64_t advance(uint64_t position, uint64_t payload_bytes)
{
    const uint64_t end = position + payload_bytes;
    return end < position ? position : end;
}

// The position after the tag and the length prefix (of the low 32 bits) of a block.
constexpr uint64_t count_block_head(uint64_t position, uint32_t tag_bytes, uint64_t payload_bytes)
{
    return position + tag_bytes + varint_bytes(static_cast<uint32_t>(payload_bytes));
}

// The same with the payload.
constexpr uint64_t count_block(uint64_t position, uint32_t tag_bytes, uint64_t payload_bytes)
{
    return advance(count_block_head(position, tag_bytes, payload_bytes), payload_bytes);
}

// The position after a nested record. Only blocks mind that they wrap.
constexpr uint64_t count_nested(uint64_t position, uint32_t tag_bytes, uint64_t body_bytes)
{
    return count_block_head(position, tag_bytes, body_bytes) + body_bytes;
}

struct counting_writer {
    uint8_t *buffer;
    uint64_t length;
    bool gather;
    segment_list segments;
    uint64_t position = 0;
    uint64_t piece_start = 0; // gather mode: the end of the last piece of this record's own

    void byte(uint8_t value);
    void varint(uint64_t value);
    void fixed32(uint32_t value);

    // Tag, length, payload in the buffer: the payload whole or, when it does not fit, not at all.
    void block(uint32_t tag, const void *data, uint64_t payload_length);

    // A bytes field: in gather mode its payload becomes a piece and does not advance the position.
    void bytes(uint32_t tag, const mava_tum_bytes &field);

    // The writer of a nested record's body at the position. Only in gather mode do its pieces matter.
    counting_writer nested(bool holds_bytes) const;
    void accept_nested(const counting_writer &body, uint64_t body_bytes);

    // The pieces that the end of a record adds.
    void finish();

private:
    void copy(const void *data, uint64_t payload_length);
};

} // namespace mava_tum
