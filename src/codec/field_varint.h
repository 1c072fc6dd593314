// varint: an unsigned integer of 32 or 64 bits, as wide as its member. The last occurrence wins.
#pragma once

#include "codec/counting_writer.h"
#include "codec/encode_scratch.h"
#include "codec/frames.h"
#include "codec/read_varint64.h"
#include "codec/wire_read.h"
#include "mava_tum/codec_contract.h"

#include <type_traits>

namespace mava_tum
{

template <uint32_t Number, auto Member>
struct varint : field_key<Number, wire_type::varint> {
    using key = field_key<Number, wire_type::varint>;
    using owner = typename member_of<Member>::record;
    using value = typename member_of<Member>::value;
    static constexpr bool is_wide = std::is_same_v<value, uint64_t>;
    static_assert(is_wide || std::is_same_v<value, uint32_t>);

    static constexpr uint32_t max_put_bytes = key::tag_bytes + (is_wide ? max_varint64_bytes : max_varint32_bytes);
    static constexpr uint32_t max_head_bytes = max_put_bytes;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = 0;
    }

    [[gnu::always_inline]] static read_end read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &)
    {
        if constexpr (is_wide) {
            const varint64_end varint = read_varint64(at, end);
            return store(record, varint.next, varint.value);
        } else {
            const varint32_end varint = read_varint32(at, end);
            return store(record, varint.next, varint.value);
        }
    }

    [[gnu::always_inline]] static uint8_t *put(
        const owner &record, uint32_t present, uint8_t *at, encode_scratch &, bool)
    {
        return (present & key::bit) != 0 ? put_value(at, record.*Member) : at;
    }

    [[gnu::always_inline]] static uint8_t *put_value(uint8_t *at, value value)
    {
        if constexpr (is_wide)
            return put_varint64(at, wire_tag(key::tag), key::tag_bytes, value);
        else
            return put_varint32(at, wire_tag(key::tag), key::tag_bytes, value);
    }

    [[gnu::always_inline]] static uint8_t *store(const owner &record, uint32_t present, uint8_t *at)
    {
        return (present & key::bit) != 0 ? store_value(at, record.*Member) : at;
    }

    [[gnu::always_inline]] static uint8_t *store_value(uint8_t *at, value value)
    {
        return store_varint(store_varint(at, key::tag), value);
    }

    [[gnu::always_inline]] static uint64_t value_bytes(value value)
    {
        return key::tag_bytes + varint_bytes(value);
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

    static void write_value(counting_writer &writer, value value)
    {
        writer.varint(key::tag);
        writer.varint(value);
    }

    [[gnu::always_inline]] static bool copy(owner &destination, const owner &source, const block_source &, uint32_t &)
    {
        destination.*Member = source.*Member;
        return true;
    }

    static void release(owner &, const block_sink &) {}

private:
    [[gnu::always_inline]] static read_end store(owner &record, const uint8_t *next, value read)
    {
        if (next == nullptr)
            return {nullptr, MAVA_TUM_TRUNCATED};
        record.*Member = read;
        return {next, MAVA_TUM_OK};
    }
};

} // namespace mava_tum
