// The copy of a block. Blocks are mostly names and addresses: two overlapping words are cheaper than a call, and never
// reach beyond the block on either side.
#pragma once

#include <cstdint>
#include <cstring>

namespace mava_tum
{

template <class Word>
[[gnu::always_inline]] inline void copy_ends(uint8_t *to, const uint8_t *from, uint64_t length)
{
    Word head;
    Word tail;
    memcpy(&head, from, sizeof head);
    memcpy(&tail, from + length - sizeof tail, sizeof tail);
    memcpy(to, &head, sizeof head);
    memcpy(to + length - sizeof tail, &tail, sizeof tail);
}

// A register of 16 bytes. Not a struct with an array: that would put a frame with a guard into every function that
// copies.
using two_words = uint64_t __attribute__((vector_size(16)));

inline constexpr uint64_t short_block_bytes = 4 * sizeof(two_words);

// From 32 to 64 bytes: the first 32 and the last 32.
[[gnu::always_inline]] inline void copy_halves(uint8_t *to, const uint8_t *from, uint64_t length)
{
    constexpr uint64_t half = 2 * sizeof(two_words);
    copy_ends<two_words>(to, from, half);
    copy_ends<two_words>(to + length - half, from + length - half, half);
}

// A block of at most `short_block_bytes`, without a call.
[[gnu::always_inline]] inline void copy_short_block(uint8_t *to, const uint8_t *from, uint64_t length)
{
    if (length >= sizeof(two_words))
        length > 2 * sizeof(two_words) ? copy_halves(to, from, length) : copy_ends<two_words>(to, from, length);
    else if (length >= sizeof(uint64_t))
        copy_ends<uint64_t>(to, from, length);
    else if (length >= sizeof(uint32_t))
        copy_ends<uint32_t>(to, from, length);
    else if (length >= sizeof(uint16_t))
        copy_ends<uint16_t>(to, from, length);
    else if (length == 1)
        *to = *from;
}

// Longer blocks, by a call: where the compiler knows a limit of the length, it would put a string instruction in place
// of memcpy, which takes half as long again. As memcpy, it returns `to`, which the caller then need not keep.
[[gnu::noinline]] inline uint8_t *copy_long_block(uint8_t *to, const uint8_t *from, uint64_t length)
{
    return static_cast<uint8_t *>(memcpy(to, from, length));
}

// Returns `to`.
[[gnu::always_inline]] inline uint8_t *copy_block(uint8_t *to, const uint8_t *from, uint64_t length)
{
    if (length > short_block_bytes)
        return copy_long_block(to, from, length);
    copy_short_block(to, from, length);
    return to;
}

} // namespace mava_tum
