// The allocator for the library: consecutive blocks in one arena, each filled with a pattern and followed by guard
// bytes, so that the result of a call is the same in every run.
#pragma once

#include "call_hash.h"
#include "mava_tum.h"
#include "model/block_log.h"

#include <cstdint>
#include <vector>

namespace mava_tum_behaviour
{

constexpr uint8_t fresh_byte = 0xA5;

class block_arena
{
public:
    block_arena();

    // Forgets all blocks and calls.
    void restart(mava_tum_model::failure_plan plan = {});

    mava_tum_alloc_fn alloc_fn() const
    {
        return plan_.when == mava_tum_model::failing::no_allocator ? nullptr : allocate;
    }

    static void *allocate(uint64_t size, void *context);
    static void release(void *pointer, void *context);

    uint64_t calls() const
    {
        return calls_;
    }

    // The calls so far (order, sizes, results), and the bytes behind each block.
    void add_calls(call_hash &hash) const;

    struct place {
        uint64_t block; // from 1; 0: in no block
        uint64_t offset;
        uint64_t bytes_left;
    };
    place place_of(const void *pointer) const;

private:
    struct block {
        uint8_t *at;
        uint64_t size;
    };

    bool fails(uint64_t size) const;

    mava_tum_model::failure_plan plan_;
    std::vector<uint64_t> memory_;
    std::size_t used_ = 0;
    std::vector<block> blocks_;
    uint64_t calls_ = 0;
    call_hash hash_;
};

} // namespace mava_tum_behaviour
