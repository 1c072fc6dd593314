// fixed32: four bytes, least significant first.
#pragma once

#include "codec/exact_writer.h"
#include "codec/number_field.h"
#include "codec/wire_write.h"

namespace mava_tum
{

struct fixed32_format {
    using value = uint32_t;
    static constexpr wire_type type = wire_type::fixed32;
    static constexpr uint32_t max_bytes = fixed32_bytes;

    [[gnu::always_inline]] static number_read<uint32_t> read(const uint8_t *at, const uint8_t *end)
    {
        return read_fixed32(at, end);
    }

    [[gnu::always_inline]] static uint8_t *put(uint8_t *at, field_tag tag, uint32_t value)
    {
        return put_fixed32(at, tag, value);
    }

    [[gnu::always_inline]] static uint8_t *store(uint8_t *at, uint32_t value)
    {
        return store_fixed32(at, value);
    }

    static constexpr uint64_t bytes(uint32_t)
    {
        return fixed32_bytes;
    }

    static void write(exact_writer &writer, field_tag tag, uint32_t value)
    {
        writer.fixed32_field(tag, value);
    }
};

namespace kind
{

template <uint32_t Number, auto Member>
struct fixed32 : number_field<Number, Member, fixed32_format> {
};

} // namespace kind

} // namespace mava_tum
