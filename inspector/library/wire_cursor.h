// Values as they stand in the input: besides the value, where it begins, how many bytes it takes, and whether it was
// written in a form that the decoders only put up with. The codec's own primitives keep none of that.
#pragma once

#include <cstdint>

namespace mava_tum_inspect
{

struct extent {
    uint64_t offset = 0; // from the start of the whole message
    uint64_t bytes = 0;
};

// A position in the whole message, and where the record around it ends.
struct wire_cursor {
    const uint8_t *data;
    uint64_t position;
    uint64_t end;

    uint64_t left() const
    {
        return end - position;
    }
};

struct varint_read {
    extent place; // as far as it lies inside
    uint64_t value = 0;
    bool is_whole = false;
    bool is_over_long = false; // in more bytes than the value needs
    bool lost_bits = false;    // bits that are set were dropped
};

struct fixed32_read {
    extent place;
    uint32_t value = 0;
    bool is_whole = false;
};

// Seven bits a byte, of which the low `value_bits` (32 or 64) count; any number of bytes.
varint_read read_varint(wire_cursor &cursor, uint32_t value_bits);

fixed32_read read_fixed32(wire_cursor &cursor);

// How many bytes a varint of this value needs.
uint64_t varint_bytes(uint64_t value);

} // namespace mava_tum_inspect
