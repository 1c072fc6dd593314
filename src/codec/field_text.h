// text: a pointer to a NUL-terminated copy that the record owns, in alias mode too. A second occurrence is refused.
#pragma once

#include "codec/copy_block.h"
#include "codec/encode_scratch.h"
#include "codec/operations.h"
#include "codec/wire_read.h"
#include "mava_tum/codec_contract.h"

#include <cstring>

namespace mava_tum
{

// The NUL-terminated copy of a payload, or null. The block's size is computed in 32 bits, so a text of 2^32 - 1 bytes
// asks for an empty block; nothing can be stored there, and that counts as a failed allocation.
[[gnu::always_inline]] inline char *copy_payload_as_text(
    const uint8_t *data, uint32_t length, const block_source &blocks)
{
    uint8_t *block = static_cast<uint8_t *>(blocks.alloc_fn(static_cast<uint32_t>(length + 1), blocks.alloc_ctx));
    if (block == nullptr || length == UINT32_MAX)
        return nullptr;
    block[length] = '\0';
    return reinterpret_cast<char *>(copy_block(block, data, length));
}

// The order of the tests is part of the contract: second occurrence, allocator, length, allocation.
[[gnu::noinline]] inline field_read read_any_text(
    char *&member, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    if (member != nullptr)
        return field_read::failed(MAVA_TUM_TRUNCATED);
    if (context.blocks.alloc_fn == nullptr)
        return field_read::failed(MAVA_TUM_NO_MEMORY);
    const payload found = read_payload(at, end);
    if (found.data == nullptr)
        return field_read::failed(MAVA_TUM_TRUNCATED);
    member = copy_payload_as_text(found.data, found.length, context.blocks);
    if (member == nullptr)
        return field_read::failed(MAVA_TUM_NO_MEMORY);
    return field_read::ends_at(found.end());
}

// The same; the most frequent case (first occurrence, whole, below 128 bytes) takes few registers and no other call.
[[gnu::noinline]] inline field_read read_text(
    char *&member, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    if (member != nullptr || context.blocks.alloc_fn == nullptr || !is_short_payload(at, end)) [[unlikely]]
        return read_any_text(member, at, end, context);
    const uint32_t length = *at++;
    member = copy_payload_as_text(at, length, context.blocks);
    if (member == nullptr) [[unlikely]]
        return field_read::failed(MAVA_TUM_NO_MEMORY);
    return field_read::ends_at(at + length);
}

// Copies up to and with the NUL; a null text stays null. Returns false if allocation fails.
[[gnu::noinline]] inline bool copy_text(char *&destination, const char *source, const block_source &blocks)
{
    destination = nullptr;
    if (source == nullptr)
        return true;
    const uint64_t block_size = strlen(source) + 1;
    void *block = blocks.obtain(block_size);
    if (block == nullptr)
        return false;
    destination = static_cast<char *>(memcpy(block, source, block_size));
    return true;
}

namespace kind
{

template <uint32_t Number, auto Member>
struct text : field_key<Number, wire_type::length_delimited> {
    using key = field_key<Number, wire_type::length_delimited>;
    using owner = typename member_of<Member>::record;

    static constexpr field_shape shape = field_shape::text;
    static constexpr uint32_t max_head_bytes = key::tag.length + max_varint32_bytes;
    static constexpr uint32_t max_put_bytes = key::tag.length + max_short_put_bytes;
    static constexpr bool is_scalar = false;
    static constexpr bool asks_for_room = true;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = nullptr;
    }

    [[gnu::always_inline]] static field_read read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &context)
    {
        return read_text(record.*Member, at, end, context);
    }

    // L12: a text that is marked present but null is left out without complaint.
    template <class Fields>
    [[gnu::always_inline]] static void describe(Fields &fields, const owner &record, uint32_t present)
    {
        if ((present & key::bit) != 0 && record.*Member != nullptr)
            fields.template text<Number>(record.*Member);
    }

    [[gnu::always_inline]] static bool copy(
        owner &destination, const owner &source, const block_source &blocks, uint32_t &lost)
    {
        if (copy_text(destination.*Member, source.*Member, blocks))
            return true;
        lost |= key::bit;
        return false;
    }

    [[gnu::always_inline]] static void release(owner &record, const block_sink &blocks)
    {
        blocks.release(record.*Member);
    }
};

} // namespace kind

} // namespace mava_tum
