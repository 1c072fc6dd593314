// What one decode asks for, counted at the allocator: requested sizes, without what an allocator adds to them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace mava_tum_amplification
{

struct memory_use {
    uint64_t asked_bytes = 0;
    uint64_t blocks = 0;
    uint64_t dropped_bytes = 0; // not given back, neither by the call nor by the free that follows it
};

// An exported decoder, bytes fields copied, and its free. In the order of mava_tum_model::all_messages().
memory_use measure_decoder(std::size_t message_index, std::span<const uint8_t> wire);

} // namespace mava_tum_amplification
