// The library's 160 functions behind one shape, by message name. Arguments that a function does not take are dropped.
#pragma once

#include "mava_tum.h"

#include <cstdint>
#include <string>

namespace mava_tum_model
{

struct library_message {
    const char *name;
    uint32_t record_bytes;
    int32_t (*decode)(void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx,
        uint32_t flags);
    uint64_t (*encode)(const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments,
        uint32_t *segment_count, uint32_t flags);
    int32_t (*duplicate)(void *destination, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
    void (*free)(void *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
};

// In the order of mava_tum_model::all_messages().
const library_message &library_message_at(std::size_t index);

} // namespace mava_tum_model
