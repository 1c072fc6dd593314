// The memory that a decode requests: requested sizes, without the overhead of an allocator.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace mava_tum_amplification
{

struct memory_use {
    uint64_t asked_bytes = 0;
    uint64_t blocks = 0;
    uint64_t dropped_bytes = 0; // released neither by the call nor by the free after it
};

// An exported decoder without the alias bit, and its free. In the order of mava_tum_model::all_messages().
memory_use measure_decoder(std::size_t message_index, std::span<const uint8_t> wire);

} // namespace mava_tum_amplification
