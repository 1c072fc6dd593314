// Address space of 4 GiB and more. It reads as zeros, and only pages that are written take memory.
#pragma once

#include "support/hex.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdint>

namespace mava_tum_test
{

class sparse_span
{
public:
    explicit sparse_span(uint64_t size) : size_(size)
    {
        if (size > SIZE_MAX)
            return;
        void *mapping = ::mmap(nullptr, static_cast<std::size_t>(size), PROT_READ | PROT_WRITE,
            MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (mapping != MAP_FAILED)
            data_ = static_cast<uint8_t *>(mapping);
    }

    sparse_span(const sparse_span &) = delete;
    sparse_span &operator=(const sparse_span &) = delete;

    ~sparse_span()
    {
        if (data_ != nullptr)
            ::munmap(data_, static_cast<std::size_t>(size_));
    }

    // Null if this machine does not have enough address space: skip the test.
    uint8_t *data() const
    {
        return data_;
    }

    uint64_t size() const
    {
        return size_;
    }

    void put(uint64_t offset, const byte_vector &content)
    {
        std::copy(content.begin(), content.end(), data_ + offset);
    }

    byte_vector content(uint64_t offset, std::size_t length) const
    {
        return byte_vector(data_ + offset, data_ + offset + length);
    }

private:
    uint64_t size_;
    uint8_t *data_ = nullptr;
};

} // namespace mava_tum_test
