// An allocator and a release callback that record their calls.
//
// Its context is the object itself. New blocks are filled with a non-zero pattern, to detect code that relies on zeroed
// memory. Blocks have their exact size, so that the address sanitizer detects an access behind them. Misuse (a block
// released twice, a foreign block, an unknown context) fails the running test at once. Blocks that are outstanding at
// the end fail it, too, unless `allow_outstanding` was called.
#pragma once

#include "mava_tum/codec_contract.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <map>
#include <set>
#include <vector>

namespace mava_tum_test
{

class recording_allocator
{
public:
    static constexpr uint8_t fill_pattern = 0xCD;

    // Larger requests are recorded and fail: a wrong size must not use up the memory.
    static constexpr uint64_t largest_block_bytes = uint64_t{1} << 30;

    struct call {
        uint64_t size;
        void *context;
        void *block; // null if the call failed
    };

    recording_allocator()
    {
        live_allocators().insert(this);
    }

    recording_allocator(const recording_allocator &) = delete;
    recording_allocator &operator=(const recording_allocator &) = delete;

    ~recording_allocator()
    {
        EXPECT_TRUE(outstanding_may_remain_ || outstanding_.empty())
            << outstanding_.size() << " block(s) were never released";
        for (const auto &entry : outstanding_)
            std::free(entry.first);
        live_allocators().erase(this);
    }

    static void *allocate(uint64_t size, void *alloc_ctx)
    {
        return owner_of(alloc_ctx).allocate_block(size, alloc_ctx);
    }

    static void release(void *pointer, void *release_ctx)
    {
        owner_of(release_ctx).release_block(pointer);
    }

    void *context()
    {
        return this;
    }

    // Calls are numbered from 1, over the lifetime of the allocator.
    void fail_call(std::size_t number)
    {
        first_failing_ = number;
        last_failing_ = number;
    }

    void fail_from_call(std::size_t number)
    {
        first_failing_ = number;
        last_failing_ = std::numeric_limits<std::size_t>::max();
    }

    void fail_no_call()
    {
        first_failing_ = 0;
        last_failing_ = 0;
    }

    // For tests of blocks that the codec drops by design; they are released at the end of the test.
    void allow_outstanding()
    {
        outstanding_may_remain_ = true;
    }

    const std::vector<call> &calls() const
    {
        return calls_;
    }

    std::vector<uint64_t> requested_sizes() const
    {
        std::vector<uint64_t> sizes;
        for (const call &made : calls_)
            sizes.push_back(made.size);
        return sizes;
    }

    // Blocks in the order of their release.
    const std::vector<const void *> &released() const
    {
        return released_;
    }

    std::size_t outstanding_count() const
    {
        return outstanding_.size();
    }

    bool is_outstanding(const void *block) const
    {
        return outstanding_.count(const_cast<void *>(block)) != 0;
    }

    // The requested size of an outstanding block.
    uint64_t size_of(const void *block) const
    {
        const auto found = outstanding_.find(const_cast<void *>(block));
        return found == outstanding_.end() ? std::numeric_limits<uint64_t>::max() : found->second;
    }

private:
    static std::set<const void *> &live_allocators()
    {
        static std::set<const void *> allocators;
        return allocators;
    }

    static recording_allocator &owner_of(void *context)
    {
        if (live_allocators().count(context) == 0) {
            std::fprintf(stderr, "a callback was called with a context that no test gave: %p\n", context);
            std::abort();
        }
        return *static_cast<recording_allocator *>(context);
    }

    void *allocate_block(uint64_t size, void *alloc_ctx)
    {
        const std::size_t number = calls_.size() + 1;
        void *block = nullptr;
        const bool fails = (number >= first_failing_ && number <= last_failing_) || size > largest_block_bytes;
        if (!fails) {
            block = std::malloc(size == 0 ? 1 : static_cast<std::size_t>(size));
            if (block != nullptr) {
                std::memset(block, fill_pattern, static_cast<std::size_t>(size));
                outstanding_[block] = size;
            }
        }
        calls_.push_back({size, alloc_ctx, block});
        return block;
    }

    void release_block(void *pointer)
    {
        if (outstanding_.erase(pointer) == 0) {
            ADD_FAILURE() << "released a null, foreign or already released block: " << pointer;
            return;
        }
        released_.push_back(pointer);
        std::free(pointer);
    }

    std::vector<call> calls_;
    std::vector<const void *> released_;
    std::map<void *, uint64_t> outstanding_;
    std::size_t first_failing_ = 0;
    std::size_t last_failing_ = 0;
    bool outstanding_may_remain_ = false;
};

} // namespace mava_tum_test
