// Where a record's blocks come from, and where they go back to: a small value that is copied about.
#ifndef MAVA_TUM_CPP_MEMORY_HPP
#define MAVA_TUM_CPP_MEMORY_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/codec_contract.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory_resource>

namespace mava_tum::cpp
{

// Blocks need not be released one by one, since the resource releases everything at once: a
// std::pmr::monotonic_buffer_resource.
struct monotonic_t {
    explicit monotonic_t() = default; // not from {}
};
inline constexpr monotonic_t monotonic{}; // to be written as the first argument

// Does not own what it refers to: the resource, or the context of the callbacks, outlives every record that uses it.
// Neither a resource nor `alloc_fn` may be null.
class memory
{
public:
    // The C library's heap, which is faster than what std::pmr::new_delete_resource() makes of it.
    memory() noexcept : kind_(kind::of_heap) {}

    // Blocks come from `resource` and go back to it. A resource that throws has refused the block.
    memory(std::pmr::memory_resource *resource) noexcept
        : allocate_(ask_resource), context_(resource), kind_(kind::of_resource)
    {
    }

    // Blocks come from `resource`, nothing goes back. This spares each block the 16 bytes that remember its size, and
    // the destructor its walk over the blocks.
    memory(monotonic_t, std::pmr::memory_resource *resource) noexcept
        : allocate_(ask_resource), context_(resource), kind_(kind::kept)
    {
    }

    // The codec's own callbacks. With `release_fn` null, nothing goes back.
    memory(mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn, void *context) noexcept
        : allocate_(alloc_fn), release_(release_fn), context_(context),
          kind_(release_fn == nullptr ? kind::kept : kind::of_callbacks)
    {
    }

    // True if blocks need not be released.
    bool is_monotonic() const noexcept
    {
        return kind_ == kind::kept;
    }

    // Of monotonic memory, which the codec may ask directly: the callback and its context.
    mava_tum_alloc_fn allocator() const noexcept
    {
        return allocate_;
    }

    // What the callback is called with.
    void *context() const noexcept
    {
        return context_;
    }

    // Null if the block is refused.
    void *allocate(std::uint64_t size) const noexcept
    {
        return kind_ == kind::of_heap ? ask_heap(size) : allocate_(size, context_);
    }

    // Takes back a block of `size` bytes that allocate() gave.
    void release(void *block, std::uint64_t size) const noexcept
    {
        if (kind_ == kind::of_heap)
            std::free(block);
        else if (kind_ == kind::of_resource)
            static_cast<std::pmr::memory_resource *>(context_)->deallocate(block, static_cast<std::size_t>(size));
        else if (kind_ == kind::of_callbacks)
            release_(block, context_);
    }

private:
    enum class kind : std::uint8_t { of_heap, of_resource, of_callbacks, kept };

    // Where addresses have 32 bits, a block can be larger than all of them.
    static bool is_addressable(std::uint64_t size) noexcept
    {
        return static_cast<std::size_t>(size) == size;
    }

    static void *ask_heap(std::uint64_t size) noexcept
    {
        return is_addressable(size) ? std::malloc(static_cast<std::size_t>(size)) : nullptr;
    }

    // An empty bytes field asks for nothing, and a resource may answer that with null, which would be a refusal.
    // Without exceptions there is nothing to catch: a resource that throws still ends the program.
    static void *ask_resource(std::uint64_t size, void *resource) noexcept
    {
        if (!is_addressable(size))
            return nullptr;
        auto *const asked = static_cast<std::pmr::memory_resource *>(resource);
        const auto bytes = static_cast<std::size_t>(size == 0 ? 1 : size);
#if defined(__cpp_exceptions)
        try {
            return asked->allocate(bytes);
        } catch (...) {
            return nullptr;
        }
#else
        return asked->allocate(bytes);
#endif
    }

    mava_tum_alloc_fn allocate_ = nullptr;
    mava_tum_release_fn release_ = nullptr;
    void *context_ = nullptr;
    kind kind_;
};

} // namespace mava_tum::cpp

#endif
