// varint: an unsigned integer of 32 or 64 bits, as wide as its member.
#pragma once

#include "codec/exact_writer.h"
#include "codec/number_field.h"
#include "codec/read_varint64.h"
#include "codec/wire_write.h"

#include <type_traits>

namespace mava_tum
{

template <class Value>
struct varint_format {
    using value = Value;
    static constexpr bool is_wide = std::is_same_v<Value, uint64_t>;
    static_assert(is_wide || std::is_same_v<Value, uint32_t>);
    static constexpr wire_type type = wire_type::varint;
    static constexpr uint32_t max_bytes = is_wide ? max_varint64_bytes : max_varint32_bytes;

    [[gnu::always_inline]] static number_read<Value> read(const uint8_t *at, const uint8_t *end)
    {
        if constexpr (is_wide)
            return read_varint64(at, end);
        else
            return read_varint32(at, end);
    }

    [[gnu::always_inline]] static uint8_t *put(uint8_t *at, field_tag tag, Value value)
    {
        if constexpr (is_wide)
            return put_varint64(at, tag, value);
        else
            return put_varint32(at, tag, value);
    }

    [[gnu::always_inline]] static uint8_t *store(uint8_t *at, Value value)
    {
        return store_varint(at, value);
    }

    static constexpr uint64_t bytes(Value value)
    {
        return varint_bytes(value);
    }

    static void write(exact_writer &writer, field_tag tag, Value value)
    {
        writer.varint_field(tag, value);
    }
};

// A number that is expected to have any width.
struct counter_format : varint_format<uint32_t> {
    [[gnu::always_inline]] static uint8_t *put(uint8_t *at, field_tag tag, uint32_t value)
    {
        return put_counter(at, tag, value);
    }
};

namespace kind
{

template <uint32_t Number, auto Member>
struct varint : number_field<Number, Member, varint_format<typename member_of<Member>::value>> {
};

template <uint32_t Number, auto Member>
struct counter : number_field<Number, Member, counter_format> {
};

} // namespace kind

} // namespace mava_tum
