// The most memory that a decode requests per byte of wire, computed from the table of messages.
//
// Every requested byte belongs to a field on the wire, and every field has its own wire bytes: an array element has tag
// and length, and requests one slot; a text or bytes field has tag, length and content, and requests the content and a
// NUL. So no input requests more per byte than the most expensive kind of field, for any mixture, nesting or
// repetition.
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

// The size of one empty element in memory and on the wire.
memory_ratio slot_ratio(const mava_tum_model::field &array);

memory_ratio asked_limit(const mava_tum_model::field &of);
memory_ratio asked_limit(const mava_tum_model::message &of);

// The most memory that an exported decoder drops: the blocks of the first of two occurrences of a nested record.
memory_ratio dropped_limit(const mava_tum_model::field &of);
memory_ratio dropped_limit(const mava_tum_model::message &of);

// Every block has its own tag and length, except the pointers of an array of texts.
constexpr uint64_t block_limit(uint64_t wire_bytes)
{
    return wire_bytes / 2 + 1;
}

} // namespace mava_tum_amplification
