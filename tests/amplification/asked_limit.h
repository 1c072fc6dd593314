// The most memory that a decode asks for per wire byte, worked out from the table of messages.
//
// Every byte asked for belongs to a field on the wire, and every field has wire bytes of its own: an element of an
// array its tag and length, which buy one slot; a text or a bytes field its tag, length and content, which buy the
// content and a NUL. So no input asks for more than the dearest kind of field does, however kinds are mixed, nested or
// repeated.
#pragma once

#include "model/message_tables.h"

#include <cstdint>

namespace mava_tum_amplification
{

// Bytes of memory for bytes of wire.
struct memory_ratio {
    uint64_t memory = 0;
    uint64_t wire = 1;

    double value() const
    {
        return static_cast<double>(memory) / static_cast<double>(wire);
    }

    bool operator<(const memory_ratio &other) const
    {
        return memory * other.wire < other.memory * wire;
    }
};

// What the slot of one empty element costs in memory and on the wire.
memory_ratio slot_ratio(const mava_tum_model::field &array);

memory_ratio asked_limit(const mava_tum_model::field &of);
memory_ratio asked_limit(const mava_tum_model::message &of);

// The most that an exported decoder drops: what the first of two occurrences of a nested record asked for.
memory_ratio dropped_limit(const mava_tum_model::field &of);
memory_ratio dropped_limit(const mava_tum_model::message &of);

// No block comes without a tag and a length of its own, but for the pointers of one array of texts.
constexpr uint64_t block_limit(uint64_t wire_bytes)
{
    return wire_bytes / 2 + 1;
}

} // namespace mava_tum_amplification
