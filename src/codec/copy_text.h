// The copies of texts out of char arrays and into them, which look for the NUL on the way.
#pragma once

#include "codec/copy_block.h"

#include <bit>
#include <cstdint>
#include <cstring>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace mava_tum
{

// Copies one step of a text and returns the position of the first NUL in it: `text_step_bytes` when there is none.
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

#if defined(__SSE2__)
// Two steps with one test.
[[gnu::always_inline]] inline uint64_t copy_two_text_steps(uint8_t *to, const char *from)
{
    const __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i *>(from));
    const __m128i second = _mm_loadu_si128(reinterpret_cast<const __m128i *>(from + text_step_bytes));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(to), first);
    _mm_storeu_si128(reinterpret_cast<__m128i *>(to + text_step_bytes), second);
    const __m128i zero = _mm_setzero_si128();
    const uint32_t nuls = static_cast<uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(first, zero))) |
                          static_cast<uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(second, zero))) << text_step_bytes;
    return nuls != 0 ? static_cast<uint64_t>(__builtin_ctz(nuls)) : 2 * text_step_bytes;
}
#else
[[gnu::always_inline]] inline uint64_t copy_two_text_steps(uint8_t *to, const char *from)
{
    const uint64_t nul = copy_text_step(to, from);
    return nul != text_step_bytes ? nul : nul + copy_text_step(to + text_step_bytes, from + text_step_bytes);
}
#endif

// Copies a text out of its array without looking for its end first, and returns its length; `Size` when no NUL was
// found in whole steps within a short block. Writes whole steps, up to `2 * text_step_bytes` more than the text. May
// read bytes after the NUL in the array; ignores them. Two steps at a time, since most texts end in the first two, and
// where they end the processor would guess wrong.
template <size_t Size>
[[gnu::always_inline]] inline uint64_t copy_array_text(uint8_t *to, const char (&array)[Size])
{
    constexpr uint64_t limit = Size < short_block_bytes ? Size : short_block_bytes;
    constexpr uint64_t pair = 2 * text_step_bytes;
    constexpr uint64_t paired = limit / pair * pair;
#pragma GCC unroll 4
    for (uint64_t offset = 0; offset < paired; offset += pair) {
        const uint64_t nul = copy_two_text_steps(to + offset, array + offset);
        if (nul != pair)
            return offset + nul;
    }
    if constexpr (limit - paired >= text_step_bytes) {
        const uint64_t nul = copy_text_step(to + paired, array + paired);
        if (nul != text_step_bytes)
            return paired + nul;
    }
    return Size;
}

// ---- into an array ----

// Whether any byte of a word is a NUL.
constexpr bool has_nul(uint64_t word)
{
    constexpr uint64_t low_bits = 0x0101010101010101;
    constexpr uint64_t high_bits = 0x8080808080808080;
    return ((word - low_bits) & ~word & high_bits) != 0;
}

// Copies a text shorter than eight bytes. Returns whether it holds a NUL.
[[gnu::always_inline]] inline bool copy_tiny_text(char *to, const uint8_t *from, uint32_t length)
{
    uint8_t *const bytes = reinterpret_cast<uint8_t *>(to);
    if (length >= sizeof(uint32_t)) {
        uint32_t ends[2];
        memcpy(&ends[0], from, sizeof ends[0]);
        memcpy(&ends[1], from + length - sizeof ends[1], sizeof ends[1]);
        copy_ends<uint32_t>(bytes, from, length);
        return has_nul(ends[0] | uint64_t{ends[1]} << 32);
    }
    bool found = false;
    for (uint32_t i = 0; i < length; ++i) {
        to[i] = static_cast<char>(from[i]);
        found |= from[i] == 0;
    }
    return found;
}

// Zeroes what follows the first NUL within the first `copied` bytes.
[[gnu::noinline, gnu::cold]] inline void cut_at_nul(char *array, uint64_t copied)
{
    const size_t kept = strnlen(array, copied);
    memset(array + kept, 0, copied - kept);
}

// Copies `length` bytes up to the first NUL into a zeroed array that is longer. Steps overlap at the end rather than
// reach beyond the text on either side.
[[gnu::always_inline]] inline void copy_text_into_array(char *array, const uint8_t *text, uint32_t length)
{
    const char *const from = reinterpret_cast<const char *>(text);
    if (length < text_step_bytes) [[unlikely]] {
        if (length >= sizeof(uint64_t) && text_step_bytes > sizeof(uint64_t)) {
            uint64_t ends[2];
            memcpy(&ends[0], text, sizeof ends[0]);
            memcpy(&ends[1], text + length - sizeof ends[1], sizeof ends[1]);
            memcpy(array, &ends[0], sizeof ends[0]);
            memcpy(array + length - sizeof ends[1], &ends[1], sizeof ends[1]);
            if (has_nul(ends[0]) || has_nul(ends[1])) [[unlikely]]
                cut_at_nul(array, length);
        } else if (copy_tiny_text(array, text, length)) [[unlikely]] {
            cut_at_nul(array, length);
        }
        return;
    }
    uint32_t offset = 0;
    for (; offset + text_step_bytes <= length; offset += text_step_bytes)
        if (copy_text_step(reinterpret_cast<uint8_t *>(array) + offset, from + offset) != text_step_bytes) [[unlikely]]
            return cut_at_nul(array, offset + text_step_bytes);
    const uint64_t last = length - text_step_bytes;
    if (copy_text_step(reinterpret_cast<uint8_t *>(array) + last, from + last) != text_step_bytes) [[unlikely]]
        cut_at_nul(array, length);
}

} // namespace mava_tum
