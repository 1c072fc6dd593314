// Reproducible choices: the same seed makes the same choices on every machine (splitmix64).
#pragma once

#include <cstdint>

namespace mava_tum_model
{

class random_source
{
public:
    explicit random_source(uint64_t seed) : state_(seed) {}

    uint64_t next()
    {
        state_ += 0x9E3779B97F4A7C15;
        uint64_t value = state_;
        value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
        value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
        return value ^ (value >> 31);
    }

    // Below `bound`, which is not 0.
    uint64_t below(uint64_t bound)
    {
        return next() % bound;
    }

    bool one_in(uint64_t count)
    {
        return below(count) == 0;
    }

    // Values at which the length of a varint changes, their neighbours, and any other.
    uint64_t boundary_value()
    {
        const uint64_t edge = uint64_t{1} << (7 * below(10));
        switch (below(4)) {
        case 0:
            return edge - 1;
        case 1:
            return edge;
        case 2:
            return ~uint64_t{0} >> below(64);
        default:
            return next() >> below(64);
        }
    }

private:
    uint64_t state_;
};

} // namespace mava_tum_model
