// fixed32: four bytes, least significant first. The last occurrence wins.
#pragma once

#include "codec/counting_writer.h"
#include "codec/encode_scratch.h"
#include "codec/frames.h"
#include "codec/wire_read.h"
#include "mava_tum/codec_contract.h"

namespace mava_tum
{

template <uint32_t Number, auto Member>
struct fixed32 : field_key<Number, wire_type::fixed32> {
    using key = field_key<Number, wire_type::fixed32>;
    using owner = typename member_of<Member>::record;

    static constexpr uint32_t max_put_bytes = key::tag_bytes + fixed32_bytes;
    static constexpr uint32_t max_head_bytes = max_put_bytes;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = 0;
    }

    [[gnu::always_inline]] static read_end read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &)
    {
        const varint32_end value = read_fixed32(at, end);
        if (value.next == nullptr)
            return {nullptr, MAVA_TUM_TRUNCATED};
        record.*Member = value.value;
        return {value.next, MAVA_TUM_OK};
    }

    [[gnu::always_inline]] static uint8_t *put(
        const owner &record, uint32_t present, uint8_t *at, encode_scratch &, bool)
    {
        return (present & key::bit) != 0 ? put_value(at, record.*Member) : at;
    }

    [[gnu::always_inline]] static uint8_t *put_value(uint8_t *at, uint32_t value)
    {
        return put_fixed32(at, wire_tag(key::tag), key::tag_bytes, value);
    }

    [[gnu::always_inline]] static uint8_t *store(const owner &record, uint32_t present, uint8_t *at)
    {
        return (present & key::bit) != 0 ? store_value(at, record.*Member) : at;
    }

    [[gnu::always_inline]] static uint8_t *store_value(uint8_t *at, uint32_t value)
    {
        return store_fixed32(store_varint(at, key::tag), value);
    }

    [[gnu::always_inline]] static uint64_t value_bytes(uint32_t)
    {
        return key::tag_bytes + fixed32_bytes;
    }

    [[gnu::always_inline]] static uint64_t count(const owner &record, uint32_t present, bool, uint64_t position)
    {
        return (present & key::bit) != 0 ? position + value_bytes(record.*Member) : position;
    }

    static void write(const owner &record, uint32_t present, counting_writer &writer)
    {
        if ((present & key::bit) != 0)
            write_value(writer, record.*Member);
    }

    static void write_value(counting_writer &writer, uint32_t value)
    {
        writer.varint(key::tag);
        writer.fixed32(value);
    }

    [[gnu::always_inline]] static bool copy(owner &destination, const owner &source, const block_source &, uint32_t &)
    {
        destination.*Member = source.*Member;
        return true;
    }

    static void release(owner &, const block_sink &) {}
};

} // namespace mava_tum
