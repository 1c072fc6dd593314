// Pseudo-random values that are the same on every machine: a message is known by its set and its number.
#ifndef MAVA_TUM_BENCH_RANDOM_SOURCE_H
#define MAVA_TUM_BENCH_RANDOM_SOURCE_H

#include <cstddef>
#include <cstdint>

namespace bench
{

// SplitMix64: short, good enough for content, and independent of the standard library's distributions.
class random_source
{
public:
    explicit random_source(uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15) {}

    uint64_t bits()
    {
        uint64_t mixed = state_ += 0x9E3779B97F4A7C15;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
        return mixed ^ (mixed >> 31);
    }

    // From `first` to `last`, both included.
    uint64_t between(uint64_t first, uint64_t last)
    {
        return first + bits() % (last - first + 1);
    }

    bool in_percent(unsigned percent)
    {
        return bits() % 100 < percent;
    }

    // Not zero, and of 1 to `most_bits` bits, each width as likely as the others: a varint of any size.
    uint64_t of_any_width(unsigned most_bits)
    {
        const unsigned width = static_cast<unsigned>(between(1, most_bits));
        const uint64_t top = uint64_t{1} << (width - 1);
        return top | (bits() & (top - 1));
    }

private:
    uint64_t state_;
};

} // namespace bench

#endif
