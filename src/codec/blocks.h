// Memory from the caller's callbacks: the codec allocates and releases only here.
#pragma once

#include "mava_tum/codec_contract.h"

#include <cstdint>

namespace mava_tum
{

struct block_source {
    mava_tum_alloc_fn alloc_fn;
    void *alloc_ctx;

    // Null when there is no callback, or when it fails.
    void *obtain(uint64_t bytes) const
    {
        return alloc_fn == nullptr ? nullptr : alloc_fn(bytes, alloc_ctx);
    }
};

struct block_sink {
    mava_tum_release_fn release_fn;
    void *release_ctx;
    uint32_t flags = 0;

    bool owns_bytes() const
    {
        return (flags & MAVA_TUM_ALIAS) == 0;
    }

    // Releases the block at `pointer` and sets it to null. A null pointer is ignored.
    template <class Value>
    void release(Value *&pointer) const
    {
        if (pointer == nullptr)
            return;
        release_fn(pointer, release_ctx);
        pointer = nullptr;
    }
};

// What a decode carries down to every nested record.
struct decode_context {
    block_source blocks;
    uint32_t flags;

    static decode_context for_caller(mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags = 0)
    {
        return {{alloc_fn, alloc_ctx}, flags};
    }

    bool aliases() const
    {
        return (flags & MAVA_TUM_ALIAS) != 0;
    }
};

} // namespace mava_tum
