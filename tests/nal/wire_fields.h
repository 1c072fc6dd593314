// A message taken apart into its fields.
#pragma once

#include "support/hex.h"

#include <gtest/gtest.h>

#include <vector>

namespace mava_tum_test
{

struct wire_field {
    uint32_t number;
    std::size_t begin;
    std::size_t value; // where the tag ends
    std::size_t end;
};

inline uint64_t varint_at(const byte_vector &wire, std::size_t &position)
{
    uint64_t value = 0;
    for (unsigned shift = 0;; shift += 7) {
        const uint8_t byte = wire.at(position++);
        value |= uint64_t{byte & 0x7Fu} << shift;
        if ((byte & 0x80) == 0)
            return value;
    }
}

// The fields of a well-formed message, one after the other. There are no fixed64 fields.
inline std::vector<wire_field> fields_in(const byte_vector &wire)
{
    std::vector<wire_field> fields;
    for (std::size_t position = 0; position < wire.size();) {
        wire_field field = {};
        field.begin = position;
        const uint64_t tag = varint_at(wire, position);
        field.number = static_cast<uint32_t>(tag >> 3);
        field.value = position;
        const bool is_fixed32 = (tag & 7) == 5;
        const uint64_t value = is_fixed32 ? 0 : varint_at(wire, position);
        position += is_fixed32 ? 4 : (tag & 7) == 2 ? value : 0;
        field.end = position;
        fields.push_back(field);
    }
    EXPECT_TRUE(fields.empty() || fields.back().end == wire.size());
    return fields;
}

} // namespace mava_tum_test
