// The copy of a block. Blocks are mostly names and addresses: two overlapping words are cheaper than a call, and never
// reach beyond the block on either side.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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

[[gnu::always_inline]] inline void copy_block(uint8_t *to, const uint8_t *from, uint64_t length)
{
    if (length > short_block_bytes)
        memcpy(to, from, length);
    else
        copy_short_block(to, from, length);
}

// ---- texts in arrays ----

// Copies one step of a text and tells where in it the NUL stands: `text_step_bytes` when there is none.
#if defined(__SSE2__)
inline constexpr uint64_t text_step_bytes = 16;

[[gnu::always_inline]] inline uint64_t copy_text_step(uint8_t *to, const char *from)
{
    const __m128i step = _mm_loadu_si128(reinterpret_cast<const __m128i *>(from));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(to), step);
    const int nuls = _mm_movemask_epi8(_mm_cmpeq_epi8(step, _mm_setzero_si128()));
    return nuls != 0 ? static_cast<uint64_t>(__builtin_ctz(static_cast<unsigned>(nuls))) : text_step_bytes;
}
#else
inline constexpr uint64_t text_step_bytes = 8;

[[gnu::always_inline]] inline uint64_t copy_text_step(uint8_t *to, const char *from)
{
    constexpr uint64_t low_bits = 0x0101010101010101;
    constexpr uint64_t high_bits = 0x8080808080808080;
    uint64_t step;
    memcpy(&step, from, sizeof step);
    memcpy(to, &step, sizeof step);
    if (std::endian::native == std::endian::big)
        step = __builtin_bswap64(step);
    const uint64_t nuls = (step - low_bits) & ~step & high_bits; // exact up to the first one
    return nuls != 0 ? static_cast<uint64_t>(__builtin_ctzll(nuls)) / 8 : text_step_bytes;
}
#endif

// Copies a text out of its array without looking for its end first, and returns its length; `Size` when no NUL was
// found in whole steps within a short block. Writes whole steps, up to `text_step_bytes` more than the text. Reads what
// follows the NUL in the array, and makes nothing of it. Spares the call of strlen and a second look at the text.
template <size_t Size>
[[gnu::always_inline]] inline uint64_t copy_array_text(uint8_t *to, const char (&array)[Size])
{
    constexpr uint64_t limit = Size < short_block_bytes ? Size : short_block_bytes;
#pragma GCC unroll 8
    for (uint64_t offset = 0; offset + text_step_bytes <= limit; offset += text_step_bytes) {
        const uint64_t nul = copy_text_step(to + offset, array + offset);
        if (nul != text_step_bytes)
            return offset + nul;
    }
    return Size;
}

} // namespace mava_tum
