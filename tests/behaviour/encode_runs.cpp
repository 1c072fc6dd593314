#include "encode_runs.h"

#include "block_arena.h"

#include <algorithm>

namespace mava_tum_behaviour
{

namespace
{

constexpr uint64_t largest_filled = uint64_t{1} << 20;

} // namespace

uint8_t *guarded_output::prepare(std::size_t capacity)
{
    used_ = capacity + 2 * guard_bytes;
    if (memory_.size() < used_)
        memory_.resize(used_);
    std::memset(memory_.data(), fresh_byte, used_);
    return memory_.data() + guard_bytes;
}

void guarded_output::add_bytes(call_hash &hash) const
{
    hash.add_bytes(memory_.data(), used_);
}

void encode_at_all_capacities(guarded_output &output, behaviour_row &row, std::span<const uint8_t> input,
    uint64_t argument, const encode_call &encode)
{
    const auto call = [&](uint8_t *buffer, uint64_t capacity) {
        call_hash hash;
        const uint64_t result = encode(buffer, capacity, hash);
        hash.add(result);
        output.add_bytes(hash);
        row.add(input, argument << 32 | capacity, hash);
        return result;
    };
    output.prepare(0);
    const uint64_t size = call(nullptr, 0);
    constexpr uint64_t many = 64;
    const uint64_t capacities[] = {0, 1, size / 2, std::max(size, uint64_t{1}) - 1, size, size + 1, size + many};
    const std::size_t count = size > largest_filled ? 1 : std::size(capacities);
    for (std::size_t index = 0; index < count; ++index)
        call(output.prepare(capacities[index]), capacities[index]);
}

} // namespace mava_tum_behaviour
