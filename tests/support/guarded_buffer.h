// Buffers that detect an access outside of them.
#pragma once

#include "support/hex.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <vector>

namespace mava_tum_test
{

// Ends directly before an inaccessible page: reading or writing one byte too many stops the program.
class page_end_buffer
{
public:
    explicit page_end_buffer(std::size_t size) : size_(size)
    {
        const std::size_t page_bytes = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
        accessible_bytes_ = (size / page_bytes + 1) * page_bytes;
        mapped_bytes_ = accessible_bytes_ + page_bytes;
        void *mapping = ::mmap(nullptr, mapped_bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (mapping == MAP_FAILED)
            throw std::runtime_error("mmap failed");
        mapping_ = static_cast<uint8_t *>(mapping);
        if (::mprotect(mapping_ + accessible_bytes_, page_bytes, PROT_NONE) != 0) {
            ::munmap(mapping_, mapped_bytes_);
            throw std::runtime_error("mprotect failed");
        }
    }

    explicit page_end_buffer(const byte_vector &content) : page_end_buffer(content.size())
    {
        std::copy(content.begin(), content.end(), data());
    }

    page_end_buffer(const page_end_buffer &) = delete;
    page_end_buffer &operator=(const page_end_buffer &) = delete;

    ~page_end_buffer()
    {
        ::munmap(mapping_, mapped_bytes_);
    }

    uint8_t *data()
    {
        return mapping_ + accessible_bytes_ - size_;
    }

    std::size_t size() const
    {
        return size_;
    }

private:
    std::size_t size_;
    std::size_t accessible_bytes_ = 0;
    std::size_t mapped_bytes_ = 0;
    uint8_t *mapping_ = nullptr;
};

// Has guard bytes on both sides, and reports whether they are unchanged.
class guarded_buffer
{
public:
    static constexpr std::size_t guard_bytes = 64;
    static constexpr uint8_t guard_pattern = 0xA5;

    // Sized once: g++ 12 warns falsely about vectors that grow by inserting at their end.
    explicit guarded_buffer(std::size_t size, uint8_t fill = 0x5A) : whole_(guard_bytes + size + guard_bytes, fill)
    {
        std::fill_n(whole_.begin(), guard_bytes, guard_pattern);
        std::fill_n(whole_.end() - guard_bytes, guard_bytes, guard_pattern);
    }

    uint8_t *data()
    {
        return whole_.data() + guard_bytes;
    }

    std::size_t size() const
    {
        return whole_.size() - 2 * guard_bytes;
    }

    byte_vector content() const
    {
        return byte_vector(whole_.begin() + guard_bytes, whole_.end() - guard_bytes);
    }

    bool guards_intact() const
    {
        const auto is_guard = [](uint8_t byte) { return byte == guard_pattern; };
        return std::all_of(whole_.begin(), whole_.begin() + guard_bytes, is_guard) &&
               std::all_of(whole_.end() - guard_bytes, whole_.end(), is_guard);
    }

private:
    byte_vector whole_;
};

// The bytes that one call wrote into a buffer of `size` bytes: `written[i]` is true if byte i was written, `bytes[i]`
// is its value.
struct write_trace {
    byte_vector bytes;
    std::vector<bool> written;
    bool guards_intact = false;
};

// Runs `write(buffer, size)` on two buffers with opposite fills: a byte was written if both agree.
template <class write_call>
write_trace trace_writes(std::size_t size, write_call &&write)
{
    guarded_buffer zeros(size, 0x00);
    guarded_buffer ones(size, 0xFF);
    write(zeros.data(), size);
    write(ones.data(), size);
    write_trace trace;
    trace.bytes = zeros.content();
    for (std::size_t i = 0; i < size; ++i)
        trace.written.push_back(zeros.data()[i] == ones.data()[i]);
    trace.guards_intact = zeros.guards_intact() && ones.guards_intact();
    return trace;
}

} // namespace mava_tum_test
