// record: another message, held inline. The last occurrence wins; two are not merged. It is written when its bit is
// set or when it has content of its own.
#pragma once

#include "codec/counting_writer.h"
#include "codec/encode_scratch.h"
#include "codec/frames.h"
#include "codec/wire_read.h"
#include "mava_tum/codec_contract.h"

namespace mava_tum
{

// Bodies of records with this much in scalars alone are usually longer than a length of one byte can say.
inline constexpr uint32_t long_body_head_bytes = 192;

template <class Record>
inline constexpr uint32_t length_gap_bytes = max_head_bytes<Record>() > long_body_head_bytes ? 2 : 1;

// The body of `nested` behind its tag and a gap for its length.
template <class Nested>
[[gnu::always_inline]] inline uint8_t *put_nested_record(
    const Nested &nested, uint8_t *at, uint32_t tag, uint32_t tag_bytes, encode_scratch &scratch)
{
    constexpr uint32_t gap_bytes = length_gap_bytes<Nested>;
    store_little_endian(at, tag);
    uint8_t *const body = at + tag_bytes + gap_bytes;
    if constexpr (is_put_inline<Nested>)
        at = put_fields(fields_of<Nested>{}, nested, body, scratch, false);
    else
        at = put_record(nested, body, scratch, false);
    if constexpr (!asks_for_room<Nested>())
        return close_length_gap<gap_bytes, max_put_bytes<Nested>()>(body, at);
    else
        return at == nullptr ? nullptr : close_length_gap<gap_bytes, 0>(body, at);
}

template <class Nested>
void write_nested_record(const Nested &nested, uint64_t body_bytes, uint32_t tag, counting_writer &writer)
{
    writer.varint(tag);
    writer.varint(static_cast<uint32_t>(body_bytes));
    counting_writer body = writer.nested(holds_bytes<Nested>());
    write_record(nested, body);
    body.finish();
    writer.accept_nested(body, body_bytes);
}

template <uint32_t Number, auto Member>
struct record : field_key<Number, wire_type::length_delimited> {
    using key = field_key<Number, wire_type::length_delimited>;
    using owner = typename member_of<Member>::record;
    using nested = typename member_of<Member>::value;

    static constexpr uint32_t max_put_bytes = key::tag_bytes + max_length_gap_bytes + mava_tum::max_put_bytes<nested>();
    static constexpr uint32_t max_head_bytes =
        key::tag_bytes + max_length_gap_bytes + mava_tum::max_head_bytes<nested>();
    static constexpr bool is_scalar = false;
    static constexpr bool holds_bytes = mava_tum::holds_bytes<nested>();
    static constexpr bool asks_for_room = mava_tum::asks_for_room<nested>();

    [[gnu::always_inline]] static bool has_content(const owner &parent)
    {
        return mava_tum::has_content(parent.*Member);
    }

    [[gnu::always_inline]] static void reset(owner &parent)
    {
        reset_record(parent.*Member);
    }

    [[gnu::always_inline]] static read_end read(
        owner &parent, bool seen, const uint8_t *at, const uint8_t *end, const decode_context &context)
    {
        const length_end body = read_length(at, end);
        if (body.value == nullptr)
            return {nullptr, MAVA_TUM_TRUNCATED};
        if (seen)
            start_over(parent.*Member, context);
        const uint8_t *body_end = body.value + body.length;
        const int32_t result = decode_record(parent.*Member, body.value, body_end, context);
        return {result == MAVA_TUM_OK ? body_end : nullptr, result};
    }

    [[gnu::always_inline]] static uint8_t *put(
        const owner &parent, uint32_t present, uint8_t *at, encode_scratch &scratch, bool)
    {
        const bool marked = (present & key::bit) != 0;
        if (!marked && !has_content(parent))
            return at;
        uint8_t *const next = put_nested_record(parent.*Member, at, wire_tag(key::tag), key::tag_bytes, scratch);
        const bool is_empty = next == at + key::tag_bytes + 1;
        return is_empty && !marked ? at : next;
    }

    static uint64_t count(const owner &parent, uint32_t present, bool gather, uint64_t position)
    {
        const uint64_t body_bytes = count_record(parent.*Member, gather);
        if (body_bytes == 0 && (present & key::bit) == 0)
            return position;
        return count_nested(position, key::tag_bytes, body_bytes);
    }

    static void write(const owner &parent, uint32_t present, counting_writer &writer)
    {
        const uint64_t body_bytes = count_record(parent.*Member, writer.gather);
        if (body_bytes != 0 || (present & key::bit) != 0)
            write_nested_record(parent.*Member, body_bytes, key::tag, writer);
    }

    [[gnu::always_inline]] static bool copy(
        owner &destination, const owner &source, const block_source &blocks, uint32_t &)
    {
        return copy_record(destination.*Member, source.*Member, blocks);
    }

    [[gnu::always_inline]] static void release(owner &parent, const block_sink &blocks)
    {
        release_record(parent.*Member, blocks);
    }

private:
    // A second occurrence. What the first one obtained is dropped unless the caller can take it back.
    [[gnu::noinline, gnu::cold]] static void start_over(nested &nested, const decode_context &context)
    {
        if (context.release_fn != nullptr)
            release_record(nested, block_sink{context.release_fn, nullptr, context.flags});
        reset_record(nested);
    }
};

} // namespace mava_tum
