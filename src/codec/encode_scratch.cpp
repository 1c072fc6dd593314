// The hand-over of the scratch buffer, and the blocks and nested messages that need more than a store.
#include "codec/encode_scratch.h"

#include <cstring>

namespace mava_tum
{

uint8_t *hand_over(encode_scratch &scratch, const uint8_t *at)
{
    const uint64_t length = static_cast<uint64_t>(at - scratch.begin);
    if (scratch.capacity != 0) {
        if (length > scratch.capacity - scratch.handed_over)
            return nullptr;
        memcpy(scratch.buffer + scratch.handed_over, scratch.begin, length);
    }
    scratch.handed_over += length;
    return scratch.begin;
}

uint8_t *make_room(encode_scratch &scratch, uint8_t *at, nesting level)
{
    return level == nesting::message ? hand_over(scratch, at) : nullptr;
}

// The block does not fit behind what has been written. Tag and length are in the scratch buffer already.
[[gnu::noinline, gnu::cold]] static uint8_t *put_large_block(
    uint8_t *at, const void *data, uint64_t length, encode_scratch &scratch, nesting level)
{
    if (level != nesting::message || hand_over(scratch, at) == nullptr)
        return nullptr;
    if (scratch.capacity != 0) {
        if (length > scratch.capacity - scratch.handed_over)
            return nullptr;
        if (length != 0) // an empty block may have no address
            memcpy(scratch.buffer + scratch.handed_over, data, length);
    }
    scratch.handed_over += length;
    return scratch.begin;
}

uint8_t *put_any_block(
    uint8_t *at, field_tag tag, const void *data, uint64_t length, encode_scratch &scratch, nesting level)
{
    // Left to the exact path: a freed bytes field, whose place in the buffer stays untouched, and lengths that no
    // block has.
    if ((data == nullptr && length != 0) || length > UINT32_MAX)
        return nullptr;
    at = put_varint32(at, tag, static_cast<uint32_t>(length));
    if (static_cast<int64_t>(length) > scratch.limit - at)
        return put_large_block(at, data, length, scratch, level);
    copy_block(at, static_cast<const uint8_t *>(data), length);
    return at + length;
}

uint8_t *move_nested_and_put_length(uint8_t *nested, uint32_t gap_bytes, const uint8_t *at)
{
    uint8_t *const gap = nested - gap_bytes;
    if (at < nested) // void: a writer that found no room continues at the front
        return gap;
    const uint64_t length = static_cast<uint64_t>(at - nested);
    const uint32_t length_bytes = length < varint_continues ? 1 : 2; // the scratch buffer holds less than 2^14 bytes
    memmove(gap + length_bytes, nested, length);
    store_varint(gap, length);
    return gap + length_bytes + length;
}

} // namespace mava_tum
