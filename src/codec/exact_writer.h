// The exact path: its position always advances, and a byte is stored only where it lies below the length. It serves
// short buffers, whose every byte is part of the contract, and gather mode; both are rare, so it is simple, not fast.
#pragma once

#include "codec/segments.h"
#include "codec/wire_types.h"

#include <cstdint>

namespace mava_tum
{

// Where the payloads of bytes fields go.
enum class output_mode : uint8_t {
    copy,  // into the buffer
    gather // nowhere: they become segments of their own
};

struct exact_writer {
    uint8_t *buffer;
    uint64_t length;
    output_mode mode;
    segment_list segments;
    uint64_t position = 0;
    uint64_t segment_start = 0; // gather mode: the end of the last segment of this record's own

    void varint_field(field_tag field, uint64_t value);
    void fixed32_field(field_tag field, uint32_t value);

    // Tag, length, payload in the buffer: the payload whole or, when it does not fit, not at all.
    void block(field_tag field, const void *data, uint64_t payload_length);

    // A bytes field: in gather mode its payload becomes a segment and does not advance the position.
    void bytes_field(field_tag field, const mava_tum_bytes &value);

    // Tag and length of a nested message. False where it is complete with that, since only the size is wanted.
    bool start_nested(field_tag field, uint64_t nested_bytes);

    // The writer of a nested message at the position, in `nested_mode` unless this one copies.
    exact_writer nested(output_mode nested_mode) const;
    void accept_nested(const exact_writer &nested, uint64_t nested_bytes);

    // The segment that the end of a record adds.
    void finish();

private:
    void byte(uint8_t value);
    void tag(field_tag field);

    // Nothing more is stored: behind a short buffer, and where only the size is wanted.
    bool is_full() const
    {
        return position >= length;
    }

    void copy(const void *data, uint64_t payload_length);
};

} // namespace mava_tum
