// text: a pointer to a NUL-terminated copy that the record owns, in alias mode too. A second occurrence is refused.
#pragma once

#include "codec/copy_block.h"
#include "codec/counting_writer.h"
#include "codec/encode_scratch.h"
#include "codec/frames.h"
#include "codec/wire_read.h"
#include "mava_tum/codec_contract.h"

#include <cstring>

namespace mava_tum
{

// The NUL-terminated copy of a payload, or null. The block's size is computed in 32 bits, so a text of 2^32 - 1 bytes
// asks for an empty block; nothing can be stored there, and that counts as a failed allocation.
[[gnu::always_inline]] inline char *copy_payload_as_text(
    const uint8_t *payload, uint32_t length, const block_source &blocks)
{
    uint8_t *block = static_cast<uint8_t *>(blocks.alloc_fn(static_cast<uint32_t>(length + 1), blocks.alloc_ctx));
    if (block == nullptr || length == UINT32_MAX)
        return nullptr;
    block[length] = '\0';
    copy_block(block, payload, length);
    return reinterpret_cast<char *>(block);
}

// The order of the tests is part of the contract: second occurrence, allocator, length, allocation.
[[gnu::noinline]] inline read_end read_any_text(
    char *&text, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    if (text != nullptr)
        return {nullptr, MAVA_TUM_TRUNCATED};
    if (context.blocks.alloc_fn == nullptr)
        return {nullptr, MAVA_TUM_NO_MEMORY};
    const length_end payload = read_length(at, end);
    if (payload.value == nullptr)
        return {nullptr, MAVA_TUM_TRUNCATED};
    text = copy_payload_as_text(payload.value, payload.length, context.blocks);
    if (text == nullptr)
        return {nullptr, MAVA_TUM_NO_MEMORY};
    return {payload.value + payload.length, MAVA_TUM_OK};
}

// The same; what nearly every text is (the first, whole, below 128 bytes) takes few registers and no detour.
[[gnu::noinline]] inline read_end read_text(
    char *&text, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    if (text != nullptr || context.blocks.alloc_fn == nullptr || !is_short_payload(at, end)) [[unlikely]]
        return read_any_text(text, at, end, context);
    const uint32_t length = *at++;
    text = copy_payload_as_text(at, length, context.blocks);
    if (text == nullptr) [[unlikely]]
        return {nullptr, MAVA_TUM_NO_MEMORY};
    return {at + length, MAVA_TUM_OK};
}

// Copies up to and with the NUL; a null text stays null. Returns false when no block was to be had.
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

template <uint32_t Number, auto Member>
struct text : field_key<Number, wire_type::length_delimited> {
    using key = field_key<Number, wire_type::length_delimited>;
    using owner = typename member_of<Member>::record;

    static constexpr uint32_t max_head_bytes = key::tag_bytes + max_varint32_bytes;
    static constexpr uint32_t max_put_bytes = key::tag_bytes + max_short_put_bytes;
    static constexpr bool is_scalar = false;
    static constexpr bool asks_for_room = true;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = nullptr;
    }

    [[gnu::always_inline]] static read_end read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &context)
    {
        return read_text(record.*Member, at, end, context);
    }

    [[gnu::always_inline]] static uint8_t *put(
        const owner &record, uint32_t present, uint8_t *at, encode_scratch &scratch, bool top)
    {
        if (!is_written(record, present))
            return at;
        const char *const text = record.*Member;
        return put_block<key::tag_bytes>(at, wire_tag(key::tag), text, strlen(text), scratch, top);
    }

    static uint64_t count(const owner &record, uint32_t present, bool, uint64_t position)
    {
        return is_written(record, present) ? count_block(position, key::tag_bytes, strlen(record.*Member)) : position;
    }

    static void write(const owner &record, uint32_t present, counting_writer &writer)
    {
        if (is_written(record, present))
            writer.block(key::tag, record.*Member, strlen(record.*Member));
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

private:
    // L12: a text that is marked present but null is left out without complaint.
    [[gnu::always_inline]] static bool is_written(const owner &record, uint32_t present)
    {
        return (present & key::bit) != 0 && record.*Member != nullptr;
    }
};

} // namespace mava_tum
