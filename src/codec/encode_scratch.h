// The fast path writes a message from front to back into a scratch buffer on the stack and hands that over to the
// caller's buffer in one copy, or in a few for a large message.
//
//     begin            limit                 end
//     | ... written ...|... slack ............|
//
// Scalars, tags and lengths are stored without a test: the field list bounds, at compile time, what a message can
// write between two tests, and the slack is that large. Only blocks (texts, bytes) and array elements test for room.
// Whenever something does not fit, these functions return null and the exact path starts again from the front.
#pragma once

#include "codec/copy_block.h"
#include "codec/wire_write.h"

#include <cstdint>

namespace mava_tum
{

// Whose fields are written: those of the message itself, or of a nested one.
enum class nesting : uint8_t { message, nested };

struct encode_scratch {
    uint8_t *begin;
    uint8_t *limit;    // the last position at which a block may end or an element start
    uint8_t *buffer;   // the caller's
    uint64_t capacity; // of `buffer` in bytes; 0: only the size is wanted
    uint64_t handed_over;
    bool failed = false; // something found no room, and what has been written since is void

    // An element of the message itself starts again at the front of the scratch buffer once this much has been written,
    // so that a large message stays within the nearest cache; a nested one cannot: lengths before it are still open.
    uint8_t *element_mark(nesting level) const
    {
        const bool restarts = level == nesting::message && limit - begin > element_mark_bytes;
        return restarts ? begin + element_mark_bytes : limit;
    }

    static constexpr int64_t element_mark_bytes = 2048;
};

inline constexpr uint32_t scratch_block_bytes = 8192;

// Hands [begin, at) over. Returns begin, or null when the buffer is too short.
uint8_t *hand_over(encode_scratch &scratch, const uint8_t *at);

// Makes room before an element at `at`, which lies beyond the element mark. Null when that cannot be.
uint8_t *make_room(encode_scratch &scratch, uint8_t *at, nesting level);

// A length-delimited field: tag, length, payload. Null when it found no room.
uint8_t *put_any_block(
    uint8_t *at, field_tag tag, const void *data, uint64_t length, encode_scratch &scratch, nesting level);

// The most that a short block takes with its length. The slack has room for every short block.
inline constexpr uint32_t max_short_put_bytes = 1 + short_block_bytes;

// The same; nearly every block is short, and needs neither a call nor a test for room.
[[gnu::always_inline]] inline uint8_t *put_block(
    uint8_t *at, field_tag tag, const void *data, uint64_t length, encode_scratch &scratch, nesting level)
{
    if (length > short_block_bytes) [[unlikely]]
        return put_any_block(at, tag, data, length, scratch, level);
    put_word(at, tag.bytes | length << 8 * tag.length);
    at += tag.length + 1;
    copy_short_block(at, static_cast<const uint8_t *>(data), length);
    return at + length;
}

// A nested message's length is written after its fields, into a gap of one byte, or of two where nested messages are
// usually long. A wrong guess moves the nested message by one byte.
inline constexpr uint32_t max_length_gap_bytes = 2;

uint8_t *move_nested_and_put_length(uint8_t *nested, uint32_t gap_bytes, const uint8_t *at);

// Puts the length of the nested message [nested, at) into the gap before it. `max_bytes` may say that it always fits
// its gap; 0 says nothing.
template <uint32_t gap_bytes, uint32_t max_bytes>
[[gnu::always_inline]] inline uint8_t *close_length_gap(uint8_t *nested, uint8_t *at)
{
    constexpr bool always_fits = gap_bytes == 1 && max_bytes != 0 && max_bytes < varint_continues;
    const uint64_t length = static_cast<uint64_t>(at - nested);
    if (!always_fits && (length < varint_continues) != (gap_bytes == 1)) [[unlikely]]
        return move_nested_and_put_length(nested, gap_bytes, at);
    if (gap_bytes == 1) {
        nested[-1] = static_cast<uint8_t>(length);
    } else {
        nested[-2] = static_cast<uint8_t>(length | varint_continues);
        nested[-1] = static_cast<uint8_t>(length >> 7);
    }
    return at;
}

} // namespace mava_tum
