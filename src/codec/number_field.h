// What the two kinds of number have in common. The last occurrence wins.
#pragma once

#include "codec/operations.h"
#include "codec/wire_read.h"

namespace mava_tum::kind
{

// `Format` is the number's form on the wire:
//
//     type, value            wire type, C type
//     max_bytes              the longest form
//     read(at, end)          decode
//     put(at, tag, value)    the fast path, with the tag
//     store(at, value)       byte by byte into the caller's buffer
//     bytes(value)           the size
//     write(writer, tag, value)   the exact path, with the tag
template <uint32_t Number, auto Member, class Format>
struct number_field : field_key<Number, Format::type> {
    using key = field_key<Number, Format::type>;
    using owner = typename member_of<Member>::record;
    using format = Format;

    static constexpr field_shape shape = field_shape::number;
    static constexpr uint32_t max_put_bytes = key::tag.length + Format::max_bytes;
    static constexpr uint32_t max_head_bytes = max_put_bytes;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = 0;
    }

    [[gnu::always_inline]] static field_read read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &)
    {
        const auto found = Format::read(at, end);
        if (found.next == nullptr)
            return field_read::failed(MAVA_TUM_TRUNCATED);
        record.*Member = found.value;
        return field_read::ends_at(found.next);
    }

    template <class Fields>
    [[gnu::always_inline]] static void describe(Fields &fields, const owner &record, uint32_t present)
    {
        if ((present & key::bit) != 0)
            fields.template number<Number>(record.*Member);
    }

    [[gnu::always_inline]] static bool copy(owner &destination, const owner &source, const block_source &, uint32_t &)
    {
        destination.*Member = source.*Member;
        return true;
    }

    static void release(owner &, const block_sink &) {}
};

} // namespace mava_tum::kind
