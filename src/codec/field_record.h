// record: another message, held inline. The last occurrence wins; two are not merged. It is written when its bit is
// set or when it has content of its own.
#pragma once

#include "codec/encode_scratch.h"
#include "codec/operations.h"
#include "codec/wire_read.h"
#include "mava_tum/codec_contract.h"

namespace mava_tum
{

namespace kind
{

template <uint32_t Number, auto Member>
struct record : field_key<Number, wire_type::length_delimited> {
    using key = field_key<Number, wire_type::length_delimited>;
    using owner = typename member_of<Member>::record;
    using nested = typename member_of<Member>::value;

    static constexpr field_shape shape = field_shape::record;
    static constexpr uint32_t max_put_bytes =
        key::tag.length + max_length_gap_bytes + mava_tum::max_put_bytes<nested>();
    static constexpr uint32_t max_head_bytes =
        key::tag.length + max_length_gap_bytes + mava_tum::max_head_bytes<nested>();
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

    [[gnu::always_inline]] static field_read read(
        owner &parent, bool seen, const uint8_t *at, const uint8_t *end, const decode_context &context)
    {
        const payload found = read_payload(at, end);
        if (found.data == nullptr)
            return field_read::failed(MAVA_TUM_TRUNCATED);
        if (seen)
            reset_again(parent.*Member);
        const int32_t result = decode_record(parent.*Member, found.data, found.end(), context);
        return result == MAVA_TUM_OK ? field_read::ends_at(found.end()) : field_read::failed(result);
    }

    template <class Fields>
    [[gnu::always_inline]] static void describe(Fields &fields, const owner &parent, uint32_t present)
    {
        const bool marked = (present & key::bit) != 0;
        if (marked || has_content(parent))
            fields.template record<Number, codec_description<nested>>(
                parent.*Member, marked ? if_empty::write : if_empty::leave_out);
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
    // A second occurrence. What the first one allocated is dropped.
    [[gnu::noinline, gnu::cold]] static void reset_again(nested &record)
    {
        reset_record(record);
    }
};

} // namespace kind

} // namespace mava_tum
