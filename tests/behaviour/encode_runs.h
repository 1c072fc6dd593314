// Encodes of one record into buffers of eight capacities, with and without segments.
#pragma once

#include "behaviour_table.h"

#include <functional>
#include <vector>

namespace mava_tum_behaviour
{

// A buffer between guard bytes, all of which are part of the hash.
class guarded_output
{
public:
    static constexpr std::size_t guard_bytes = 16;

    uint8_t *prepare(std::size_t capacity);
    void add_bytes(call_hash &hash) const;

    std::span<const uint8_t> buffer() const
    {
        return {memory_.data() + guard_bytes, used_ - 2 * guard_bytes};
    }

private:
    std::vector<uint8_t> memory_;
    std::size_t used_ = 0;
};

// Calls `encode` with null and 0, and then with 0, 1, half, size - 1, size, size + 1 and many bytes, where `size` is
// what the first call returned. If the size is too large for a buffer, only the first two. `encode` gets the buffer and
// its capacity, adds its effects except the bytes, and returns the result.
using encode_call = std::function<uint64_t(uint8_t *buffer, uint64_t capacity, call_hash &hash)>;
void encode_at_all_capacities(guarded_output &output, behaviour_row &row, std::span<const uint8_t> input,
    uint64_t argument, const encode_call &encode);

} // namespace mava_tum_behaviour
