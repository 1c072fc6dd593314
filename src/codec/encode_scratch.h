// The fast encoder writes a message from front to back into a scratch on the stack and hands that over to the caller's
// buffer in one copy, or in a few for a large message.
//
//     begin            limit                 end
//     | ... written ...|... slack ............|
//
// Scalars, tags and lengths are stored without a test: the field list bounds, at compile time, what a message can
// write between two tests, and the slack is that large. Only blocks (texts, bytes) and array elements test for room.
// Whenever something does not fit, the writers return null and the exact writer starts again from the front.
#pragma once

#include "codec/copy_block.h"
#include "codec/wire_write.h"

#include <cstdint>

namespace mava_tum
{

struct encode_scratch {
    uint8_t *begin;
    uint8_t *limit;    // the last position at which a block may end or an element start
    uint8_t *buffer;   // the caller's
    uint64_t capacity; // of `buffer` in bytes; 0: only the size is wanted
    uint64_t handed_over;
    bool failed = false; // a description found no room, and what it has written since is void

    // An element of the message itself starts anew at the scratch's front once this much has been written, so that
    // a large message stays within the nearest cache; a nested one cannot, since lengths before it are still open.
    uint8_t *element_mark(bool top) const
    {
        return top && limit - begin > element_mark_bytes ? begin + element_mark_bytes : limit;
    }

    static constexpr int64_t element_mark_bytes = 2048;
};

inline constexpr uint32_t scratch_block_bytes = 8192;

// Hands [begin, at) over. Returns begin, or null when the buffer is too short.
uint8_t *hand_over(encode_scratch &scratch, const uint8_t *at);

// Makes room before an element at `at`, which lies beyond the element mark. Null when that cannot be.
uint8_t *make_room(encode_scratch &scratch, uint8_t *at, bool top);

// A length-delimited field: tag (as it stands on the wire), length, payload. Null when it found no room.
uint8_t *put_any_block(uint8_t *at, uint32_t tag, uint32_t tag_bytes, const void *data, uint64_t length,
    encode_scratch &scratch, bool top);

// The most that a short block takes with its length. The slack has room for every short block.
inline constexpr uint32_t max_short_put_bytes = 1 + short_block_bytes;

// The same; what nearly every block is takes no detour and needs no room.
template <uint32_t tag_bytes>
[[gnu::always_inline]] inline uint8_t *put_block(
    uint8_t *at, uint32_t tag, const void *data, uint64_t length, encode_scratch &scratch, bool top)
{
    if (length > short_block_bytes) [[unlikely]]
        return put_any_block(at, tag, tag_bytes, data, length, scratch, top);
    store_little_endian(at, tag | length << 8 * tag_bytes);
    at += tag_bytes + 1;
    copy_short_block(at, static_cast<const uint8_t *>(data), length);
    return at + length;
}

// A nested record's length is written after its body, into a gap of one byte, or of two where bodies are usually long.
// A wrong guess moves the body by one byte.
inline constexpr uint32_t max_length_gap_bytes = 2;

uint8_t *move_body_and_put_length(uint8_t *body, uint32_t gap_bytes, const uint8_t *at);

// `max_body_bytes` may say that a body always fits its gap; 0 says nothing.
template <uint32_t gap_bytes, uint32_t max_body_bytes>
[[gnu::always_inline]] inline uint8_t *close_length_gap(uint8_t *body, uint8_t *at)
{
    constexpr bool always_fits = gap_bytes == 1 && max_body_bytes != 0 && max_body_bytes < varint_continues;
    const uint64_t length = static_cast<uint64_t>(at - body);
    if (!always_fits && (length < varint_continues) != (gap_bytes == 1)) [[unlikely]]
        return move_body_and_put_length(body, gap_bytes, at);
    if (gap_bytes == 1) {
        body[-1] = static_cast<uint8_t>(length);
    } else {
        body[-2] = static_cast<uint8_t>(length | varint_continues);
        body[-1] = static_cast<uint8_t>(length >> 7);
    }
    return at;
}

} // namespace mava_tum
