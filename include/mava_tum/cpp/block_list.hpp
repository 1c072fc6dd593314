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
    block_list(block_list &&other) noexcept
        : source_(other.source_), newest_(std::exchange(other.newest_, nullptr)),
          newest_growing_(std::exchange(other.newest_growing_, nullptr))
    {
    }

    block_list &operator=(block_list &&other) noexcept
    {
        if (this != &other) {
            release_all();
            source_ = other.source_;
            newest_ = std::exchange(other.newest_, nullptr);
            newest_growing_ = std::exchange(other.newest_growing_, nullptr);
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

    // A block of `size` bytes for an array that is to grow, which room_of() finds again. Null if it is refused.
    void *take_growing(std::uint64_t size) noexcept
    {
        const std::uint64_t with_header = size + header_bytes<growing>;
        void *const taken = with_header < size ? nullptr : take(with_header);
        if (taken == nullptr)
            return nullptr;
        void *const elements = static_cast<unsigned char *>(taken) + header_bytes<growing>;
        newest_growing_ = ::new (taken) growing{newest_growing_, elements, size};
        return elements;
    }

    // In bytes, of the array at `elements`; 0 if take_growing() did not return it. An array that was found is the first
    // to be looked at next time: those that grow in turns, such as sessions and the QoS entries of each, are near.
    std::uint64_t room_of(const void *elements) noexcept
    {
        for (growing **link = &newest_growing_; *link != nullptr; link = &(*link)->next) {
            growing *const found = *link;
            if (found->elements != elements)
                continue;
            *link = found->next;
            found->next = std::exchange(newest_growing_, found);
            return found->size;
        }
        return 0;
    }

    const memory &source() const noexcept
    {
        return source_;
    }

    void release_all() noexcept
    {
        newest_growing_ = nullptr;
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

    // In front of an array that grows, inside of its block.
    struct growing {
        growing *next;
        const void *elements;
        std::uint64_t size; // without the header
    };

    // What follows is aligned as the whole is, also where a block is smaller than the widest alignment.
    template <class Header>
    static constexpr std::size_t header_bytes = (sizeof(Header) + alignof(std::max_align_t) - 1) /
                                                alignof(std::max_align_t) * alignof(std::max_align_t);

    static void *take_remembered(std::uint64_t size, void *list) noexcept
    {
        return static_cast<block_list *>(list)->remember(size);
    }

    void *remember(std::uint64_t size) noexcept
    {
        const std::uint64_t with_header = size + header_bytes<block>;
        if (with_header < size)
            return nullptr;
        void *const taken = source_.allocate(with_header);
        if (taken == nullptr)
            return nullptr;
        newest_ = ::new (taken) block{newest_, with_header};
        return static_cast<unsigned char *>(taken) + header_bytes<block>;
    }

    memory source_;
    block *newest_ = nullptr;
    growing *newest_growing_ = nullptr;
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
