// The part of an input_stream that is the same for files and for the inputs of the web page.
#include "input/input_stream.h"

#include "bad_use.h"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>

namespace mava_tum_cli
{

std::span<const uint8_t> input_stream::peek(size_t wanted)
{
    if (m_buffer.size() - m_taken < wanted)
        refill(wanted);
    const std::span<const uint8_t> waiting = std::span<const uint8_t>(m_buffer).subspan(m_taken);
    return waiting.first(std::min(wanted, waiting.size()));
}

size_t input_stream::read(std::span<uint8_t> bytes)
{
    size_t total = 0;
    while (total < bytes.size()) {
        const std::span<const uint8_t> waiting = peek(std::min(bytes.size() - total, block_bytes));
        if (waiting.empty())
            break;
        std::memcpy(bytes.data() + total, waiting.data(), waiting.size());
        m_taken += waiting.size();
        total += waiting.size();
        m_position += waiting.size();
    }
    return total;
}

byte_vector input_stream::read_some()
{
    peek(1);
    byte_vector some(m_buffer.begin() + static_cast<ptrdiff_t>(m_taken), m_buffer.end());
    m_taken = m_buffer.size();
    m_position += some.size();
    return some;
}

byte_vector input_stream::read_all()
{
    byte_vector all;
    for (size_t received = 1; received != 0;) {
        const size_t filled = all.size();
        all.resize(filled + block_bytes);
        received = read(std::span(all).subspan(filled));
        all.resize(filled + received);
        if (all.size() > message_limit_bytes)
            throw bad_use(fmt::format("{}: more than {} MiB, which is no single message; if it holds frames, say "
                                      "--format frames",
                m_name, message_limit_bytes >> 20));
    }
    return all;
}

void input_stream::refill(size_t wanted)
{
    m_buffer.erase(m_buffer.begin(), m_buffer.begin() + static_cast<ptrdiff_t>(m_taken));
    m_taken = 0;
    while (m_buffer.size() < wanted && !m_at_end) {
        const size_t filled = m_buffer.size();
        m_buffer.resize(filled + block_bytes);
        const size_t received = read_block(m_position + filled, std::span(m_buffer).subspan(filled));
        m_buffer.resize(filled + received);
        m_at_end = received == 0;
    }
}

} // namespace mava_tum_cli
