// The segments in which an encoder reports its output, for callers that ask for them.
#pragma once

#include "mava_tum/codec_contract.h"

#include <cstdint>

namespace mava_tum
{

struct segment_list {
    bool wanted; // the caller gave a place for the count
    mava_tum_segment *items;
    uint32_t capacity;
    uint32_t count;

    static segment_list for_caller(mava_tum_segment *items, const uint32_t *count)
    {
        return {count != nullptr, items, count == nullptr || items == nullptr ? 0 : *count, 0};
    }

    // Segments beyond the capacity are counted, not stored.
    void add(const uint8_t *data, uint64_t length)
    {
        if (count < capacity)
            items[count] = {data, length};
        ++count;
    }

    // What is left for a nested record.
    segment_list rest() const
    {
        if (count >= capacity)
            return {wanted, nullptr, 0, 0};
        return {wanted, items + count, capacity - count, 0};
    }
};

// Where a segment at `offset` lies. An integer sum, since the position may lie beyond a short buffer.
inline const uint8_t *segment_address(const uint8_t *buffer, uint64_t offset)
{
    if (buffer == nullptr)
        return nullptr;
    return reinterpret_cast<const uint8_t *>(reinterpret_cast<uintptr_t>(buffer) + offset);
}

} // namespace mava_tum
