// The fastest allocator for a decoder: one block, given out from front to back and released as a whole.
#ifndef MAVA_TUM_BENCH_BUMP_ALLOCATOR_H
#define MAVA_TUM_BENCH_BUMP_ALLOCATOR_H

#include <cstddef>
#include <cstdint>
#include <memory>

namespace bench
{

// On a cache line of its own: two threads' allocators on one line slow each other down.
class alignas(64) bump_allocator
{
public:
    // The block is not written before use: unused pages cost nothing.
    explicit bump_allocator(uint64_t block_bytes = 256 * 1024)
        : block_bytes_(block_bytes), block_(new unsigned char[block_bytes])
    {
    }

    // Invalidates everything that was allocated before.
    void reset()
    {
        used_bytes_ = 0;
    }

    uint64_t used_bytes() const
    {
        return used_bytes_;
    }

    // The address of the next block.
    const unsigned char *unused() const
    {
        return block_.get() + used_bytes_;
    }

    // The allocator callback; `allocator` is the bump_allocator.
    static void *allocate(uint64_t size, void *allocator)
    {
        return static_cast<bump_allocator *>(allocator)->take(size);
    }

    // The release callback does nothing.
    static void release(void *, void *) {}

private:
    void *take(uint64_t size)
    {
        const uint64_t rounded = (size + alignment - 1) & ~(alignment - 1);
        if (size > block_bytes_ || rounded > block_bytes_ - used_bytes_)
            return nullptr;
        void *taken = block_.get() + used_bytes_;
        used_bytes_ += rounded;
        return taken;
    }

    // The same alignment as `new`.
    static constexpr uint64_t alignment = alignof(std::max_align_t);

    uint64_t used_bytes_ = 0;
    uint64_t block_bytes_;
    std::unique_ptr<unsigned char[]> block_;
};

} // namespace bench

#endif
