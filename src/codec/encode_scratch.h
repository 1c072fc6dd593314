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

// A length-delimited field whose payload is `data`. `tag` is as it stands on the wire.
uint8_t *put_block(uint8_t *at, uint32_t tag, uint32_t tag_bytes, const void *data, uint64_t length,
    encode_scratch &scratch, bool top);

// The same for a NUL-terminated text.
uint8_t *put_text(uint8_t *at, uint32_t tag, uint32_t tag_bytes, const char *text, encode_scratch &scratch, bool top);

// A nested record's length is written after its body, into a gap of one byte, or of two where bodies are usually long.
// A wrong guess moves the body by one byte.
inline constexpr uint32_t max_length_gap_bytes = 2;

uint8_t *move_body_and_put_length(uint8_t *body, uint32_t gap_bytes, const uint8_t *at);

template <uint32_t gap_bytes>
[[gnu::always_inline]] inline uint8_t *close_length_gap(uint8_t *body, uint8_t *at)
{
    const uint64_t length = static_cast<uint64_t>(at - body);
    if ((length < varint_continues) != (gap_bytes == 1)) [[unlikely]]
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
