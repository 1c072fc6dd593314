// bytes: pointer and length. Aliases the input when the alias bit is set, else owns a copy of exactly its length. A
// second occurrence is refused.
#pragma once

#include "codec/encode_scratch.h"
#include "codec/operations.h"
#include "codec/wire_read.h"
#include "mava_tum/codec_contract.h"

#include <cstring>

namespace mava_tum
{

// The order of the tests is part of the contract: second occurrence, allocator, length, allocation.
[[gnu::noinline]] inline field_read read_any_bytes(
    mava_tum_bytes &field, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    if (field.data != nullptr)
        return field_read::failed(MAVA_TUM_TRUNCATED);
    if (!context.aliases() && context.blocks.alloc_fn == nullptr)
        return field_read::failed(MAVA_TUM_NO_MEMORY);
    const payload found = read_payload(at, end);
    if (found.data == nullptr)
        return field_read::failed(MAVA_TUM_TRUNCATED);
    uint8_t *data = const_cast<uint8_t *>(found.data); // the caller of an aliasing decode knows it is the input
    if (!context.aliases()) {
        data = static_cast<uint8_t *>(context.blocks.obtain(found.length));
        if (data == nullptr)
            return field_read::failed(MAVA_TUM_NO_MEMORY);
        memcpy(data, found.data, found.length);
    }
    field = {data, found.length};
    return field_read::ends_at(found.end());
}

// The same; the most frequent case (first occurrence, whole, below 128 bytes, aliased) is read inline.
[[gnu::always_inline]] inline field_read read_bytes(
    mava_tum_bytes &field, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    if (field.data != nullptr || !context.aliases() || !is_short_payload(at, end)) [[unlikely]]
        return read_any_bytes(field, at, end, context);
    const uint32_t length = *at++;
    field = {const_cast<uint8_t *>(at), length};
    return field_read::ends_at(at + length);
}

// A copy owns its block, whatever the source does; an empty one has none. Returns false if allocation fails.
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

namespace kind
{

template <uint32_t Number, auto Member>
struct bytes : field_key<Number, wire_type::length_delimited> {
    using key = field_key<Number, wire_type::length_delimited>;
    using owner = typename member_of<Member>::record;

    static constexpr field_shape shape = field_shape::bytes;
    static constexpr uint32_t max_head_bytes = key::tag.length + max_varint32_bytes;
    static constexpr uint32_t max_put_bytes = key::tag.length + max_short_put_bytes;
    static constexpr bool is_scalar = false;
    static constexpr bool holds_bytes = true;
    static constexpr bool asks_for_room = true;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = {nullptr, 0};
    }

    [[gnu::always_inline]] static field_read read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &context)
    {
        return read_bytes(record.*Member, at, end, context);
    }

    template <class Fields>
    [[gnu::always_inline]] static void describe(Fields &fields, const owner &record, uint32_t present)
    {
        if ((present & key::bit) != 0)
            fields.template bytes<Number>(record.*Member);
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

} // namespace kind

} // namespace mava_tum
