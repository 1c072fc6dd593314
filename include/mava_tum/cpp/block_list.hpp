// The blocks that one record owns. They are remembered one by one, so that all of them go back with the record: also
// those that a decode drops on the way, and whether or not the record's bytes fields point into the input.
//
//     memory:   | next | size | the codec's block ...
//               ^             ^
//               what memory   what the codec
//               gives         gets
#ifndef MAVA_TUM_CPP_BLOCK_LIST_HPP
#define MAVA_TUM_CPP_BLOCK_LIST_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/memory.hpp"

#include <cstddef>
#include <new>
#include <utility>

namespace mava_tum::cpp
{

class block_list
{
public:
    explicit block_list(const memory &source) noexcept : source_(source) {}

    // The blocks change their owner, and their source goes with them. The other list is empty and keeps its source.
    block_list(block_list &&other) noexcept : source_(other.source_), newest_(std::exchange(other.newest_, nullptr)) {}

    block_list &operator=(block_list &&other) noexcept
    {
        if (this != &other) {
            release_all();
            source_ = other.source_;
            newest_ = std::exchange(other.newest_, nullptr);
        }
        return *this;
    }

    ~block_list()
    {
        release_all();
    }

    // What the codec is to call, with context().
    mava_tum_alloc_fn allocator() const noexcept
    {
        return source_.is_monotonic() ? source_.allocator() : take_remembered;
    }

    void *context() noexcept
    {
        return source_.is_monotonic() ? source_.context() : this;
    }

    // Null if the block is refused. Aligned for any record.
    void *take(std::uint64_t size) noexcept
    {
        return allocator()(size, context());
    }

    void release_all() noexcept
    {
        while (newest_ != nullptr) {
            block *const released = newest_;
            newest_ = released->next;
            source_.release(released, released->size);
        }
    }

private:
    struct block {
        block *next;
        std::uint64_t size; // with the header
    };

    // What follows is aligned as the whole is, also where a block is smaller than the widest alignment.
    static constexpr std::size_t header_bytes =
        (sizeof(block) + alignof(std::max_align_t) - 1) / alignof(std::max_align_t) * alignof(std::max_align_t);

    static void *take_remembered(std::uint64_t size, void *list) noexcept
    {
        return static_cast<block_list *>(list)->remember(size);
    }

    void *remember(std::uint64_t size) noexcept
    {
        const std::uint64_t with_header = size + header_bytes;
        if (with_header < size)
            return nullptr;
        void *const taken = source_.allocate(with_header);
        if (taken == nullptr)
            return nullptr;
        newest_ = ::new (taken) block{newest_, with_header};
        return static_cast<unsigned char *>(taken) + header_bytes;
    }

    memory source_;
    block *newest_ = nullptr;
};

// Stands in for the list in records that never own anything: keeps nothing, and gives nothing.
class no_blocks
{
public:
    explicit no_blocks(const memory &) noexcept {}

    mava_tum_alloc_fn allocator() const noexcept
    {
        return nullptr;
    }

    void *context() noexcept
    {
        return nullptr;
    }

    void release_all() noexcept {}
};

} // namespace mava_tum::cpp

#endif
