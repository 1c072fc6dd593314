// A file or standard input, read from front to back in blocks.
#pragma once

#include "output/progress_line.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace mava_tum_cli
{

using byte_vector = std::vector<uint8_t>;

// A single message is held in memory as a whole; nobody has one of this size.
inline constexpr size_t message_limit_bytes = size_t{256} << 20;

class input_stream
{
public:
    // `path` may be "-" for standard input. Throws bad_use when it cannot be opened or is a folder.
    explicit input_stream(const std::string &path);
    ~input_stream();
    input_stream(const input_stream &) = delete;
    input_stream &operator=(const input_stream &) = delete;

    // As messages name it.
    const std::string &name() const
    {
        return m_name;
    }

    // Fills `bytes` unless the stream ends before; returns how many bytes came.
    size_t read(std::span<uint8_t> bytes);

    // The first bytes, at most `wanted`, without taking them.
    std::span<const uint8_t> peek(size_t wanted);

    // What is there, at least one byte; nothing at the end.
    byte_vector read_some();

    // Everything up to the end. Throws bad_use above `message_limit_bytes`.
    byte_vector read_all();

    void show_progress()
    {
        m_progress.allow();
    }

    // Called before a read that has to wait for the other end of a pipe, or for somebody at a terminal.
    void call_before_waiting(std::function<void()> before_waiting)
    {
        m_before_waiting = std::move(before_waiting);
    }

    uint64_t position() const
    {
        return m_position;
    }

    // The size of a regular file, 0 of anything else.
    uint64_t size_bytes() const
    {
        return m_size_bytes;
    }

private:
    static constexpr size_t block_bytes = 256 * 1024;

    // Reads until `wanted` bytes wait in the buffer, or the file ends.
    void refill(size_t wanted);

    // Reads into `block` from `offset` on, which follows the last byte read; waits for at least one byte. Returns how
    // many came, 0 at the end. A file and an input of the web page do this differently.
    size_t read_block(uint64_t offset, std::span<uint8_t> block);

    std::string m_name;
    int m_fd = -1;
    uint64_t m_size_bytes = 0;
    uint64_t m_position = 0;
    byte_vector m_buffer; // read from the file and not yet taken: from m_taken on
    size_t m_taken = 0;
    bool m_at_end = false;
    std::function<void()> m_before_waiting;
    progress_line m_progress;
};

} // namespace mava_tum_cli
