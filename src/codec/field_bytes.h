// bytes: pointer and length. Aliases the input when the alias bit is set, else owns a copy of exactly its length. A
// second occurrence is refused.
#pragma once

#include "codec/counting_writer.h"
#include "codec/encode_scratch.h"
#include "codec/frames.h"
#include "codec/wire_read.h"
#include "mava_tum/codec_contract.h"

#include <cstring>

namespace mava_tum
{

// The order of the tests is part of the contract: second occurrence, allocator, length, allocation.
[[gnu::noinline]] inline read_end read_any_bytes(
    mava_tum_bytes &field, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    if (field.data != nullptr)
        return {nullptr, MAVA_TUM_TRUNCATED};
    if (!context.aliases() && context.blocks.alloc_fn == nullptr)
        return {nullptr, MAVA_TUM_NO_MEMORY};
    const length_end payload = read_length(at, end);
    if (payload.value == nullptr)
        return {nullptr, MAVA_TUM_TRUNCATED};
    uint8_t *data = const_cast<uint8_t *>(payload.value); // the caller of an aliasing decode knows it is the input
    if (!context.aliases()) {
        data = static_cast<uint8_t *>(context.blocks.obtain(payload.length));
        if (data == nullptr)
            return {nullptr, MAVA_TUM_NO_MEMORY};
        memcpy(data, payload.value, payload.length);
    }
    field = {data, payload.length};
    return {payload.value + payload.length, MAVA_TUM_OK};
}

// The same; what nearly every field is that the adapters decode (the first, whole, short, aliased) is read inline.
[[gnu::always_inline]] inline read_end read_bytes(
    mava_tum_bytes &field, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    if (field.data != nullptr || !context.aliases() || !is_short_payload(at, end)) [[unlikely]]
        return read_any_bytes(field, at, end, context);
    const uint32_t length = *at++;
    field = {const_cast<uint8_t *>(at), length};
    return {at + length, MAVA_TUM_OK};
}

// A copy owns its block, whatever the source does; an empty one has none. Returns false when no block was to be had.
[[gnu::noinline]] inline bool copy_bytes(
    mava_tum_bytes &destination, const mava_tum_bytes &source, const block_source &blocks)
{
    destination = {nullptr, 0};
    if (source.length == 0)
        return true;
    void *block = blocks.obtain(source.length);
    if (block == nullptr)
        return false;
    if (source.data != nullptr)
        memcpy(block, source.data, source.length);
    destination = {static_cast<uint8_t *>(block), source.length};
    return true;
}

template <uint32_t Number, auto Member>
struct bytes : field_key<Number, wire_type::length_delimited> {
    using key = field_key<Number, wire_type::length_delimited>;
    using owner = typename member_of<Member>::record;

    static constexpr uint32_t max_head_bytes = key::tag_bytes + max_varint32_bytes;
    static constexpr uint32_t max_put_bytes = key::tag_bytes + max_short_put_bytes;
    static constexpr bool is_scalar = false;
    static constexpr bool holds_bytes = true;
    static constexpr bool asks_for_room = true;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = {nullptr, 0};
    }

    [[gnu::always_inline]] static read_end read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &context)
    {
        return read_bytes(record.*Member, at, end, context);
    }

    [[gnu::always_inline]] static uint8_t *put(
        const owner &record, uint32_t present, uint8_t *at, encode_scratch &scratch, bool top)
    {
        if ((present & key::bit) == 0)
            return at;
        const mava_tum_bytes &field = record.*Member;
        if (field.data == nullptr) [[unlikely]]
            return put_any_block(at, wire_tag(key::tag), key::tag_bytes, nullptr, field.length, scratch, top);
        return put_block<key::tag_bytes>(at, wire_tag(key::tag), field.data, field.length, scratch, top);
    }

    static uint64_t count(const owner &record, uint32_t present, bool gather, uint64_t position)
    {
        if ((present & key::bit) == 0)
            return position;
        const uint64_t length = (record.*Member).length;
        return gather ? count_block_head(position, key::tag_bytes, length)
                      : count_block(position, key::tag_bytes, length);
    }

    static void write(const owner &record, uint32_t present, counting_writer &writer)
    {
        if ((present & key::bit) != 0)
            writer.bytes(key::tag, record.*Member);
    }

    [[gnu::always_inline]] static bool copy(
        owner &destination, const owner &source, const block_source &blocks, uint32_t &lost)
    {
        if (copy_bytes(destination.*Member, source.*Member, blocks))
            return true;
        lost |= key::bit;
        return false;
    }

    [[gnu::always_inline]] static void release(owner &record, const block_sink &blocks)
    {
        if (blocks.owns_bytes())
            blocks.release((record.*Member).data);
    }
};

} // namespace mava_tum
