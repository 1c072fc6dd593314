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

struct two_words {
    uint64_t word[2];
};

struct four_words {
    uint64_t word[4];
};

inline constexpr uint64_t short_block_bytes = 2 * sizeof(four_words);

// A block of at most `short_block_bytes`, without a call.
[[gnu::always_inline]] inline void copy_short_block(uint8_t *to, const uint8_t *from, uint64_t length)
{
    if (length >= sizeof(two_words))
        length > 2 * sizeof(two_words) ? copy_ends<four_words>(to, from, length)
                                       : copy_ends<two_words>(to, from, length);
    else if (length >= sizeof(uint64_t))
        copy_ends<uint64_t>(to, from, length);
    else if (length >= sizeof(uint32_t))
        copy_ends<uint32_t>(to, from, length);
    else if (length >= sizeof(uint16_t))
        copy_ends<uint16_t>(to, from, length);
    else if (length == 1)
        *to = *from;
}

[[gnu::always_inline]] inline void copy_block(uint8_t *to, const uint8_t *from, uint64_t length)
{
    if (length > short_block_bytes)
        memcpy(to, from, length);
    else
        copy_short_block(to, from, length);
}

} // namespace mava_tum
