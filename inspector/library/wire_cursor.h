// Reads values with their position, their number of bytes, and whether they are in a form that is accepted only out of
// leniency. The codec's own primitives do not keep these.
#pragma once

#include <cstdint>

namespace mava_tum_inspect
{

struct extent {
    uint64_t offset = 0; // from the start of the whole message
    uint64_t bytes = 0;
};

// A position in the whole message, and the end of the record around it.
struct wire_cursor {
    const uint8_t *data;
    uint64_t position;
    uint64_t end;

    uint64_t left() const
    {
        return end - position;
    }
};

// Of 16 bytes, so that a function returns it in registers.
struct varint_read {
    uint64_t value = 0;
    uint64_t bytes : 61 = 0; // inside the record
    bool is_whole : 1 = false;
    bool is_over_long : 1 = false; // in more bytes than the value needs
    bool lost_bits : 1 = false;    // bits that are set were dropped
};

struct fixed32_read {
    extent place;
    uint32_t value = 0;
    bool is_whole = false;
};

// The bit of a byte of a varint after which another byte follows.
inline constexpr uint8_t varint_continuation = 0x80;

varint_read read_long_varint(wire_cursor &cursor, uint32_t value_bits);

// Seven bits per byte, of which the low `value_bits` (32 or 64) count; any number of bytes, but nearly always one.
inline varint_read read_varint(wire_cursor &cursor, uint32_t value_bits)
{
    if (cursor.position == cursor.end || cursor.data[cursor.position] >= varint_continuation)
        return read_long_varint(cursor, value_bits);
    varint_read varint;
    varint.value = cursor.data[cursor.position++];
    varint.bytes = 1;
    varint.is_whole = true;
    return varint;
}

fixed32_read read_fixed32(wire_cursor &cursor);

// The number of bytes that a varint of this value needs.
uint64_t varint_bytes(uint64_t value);

} // namespace mava_tum_inspect
