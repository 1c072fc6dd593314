// Writes wire bytes one field at a time, also some that our encoders never write: over-long varints, tags with a wrong
// wire type, wrong lengths. Deliberately independent of the tested code.
#pragma once

#include "support/hex.h"

#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace mava_tum_test
{

enum class wire_type : uint32_t {
    varint = 0,
    fixed64 = 1,
    length_delimited = 2,
    group_start = 3,
    group_end = 4,
    fixed32 = 5,
    undefined_6 = 6,
    undefined_7 = 7
};

class wire_builder
{
public:
    wire_builder &raw(const byte_vector &bytes)
    {
        bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
        return *this;
    }

    wire_builder &raw(std::string_view hex)
    {
        return raw(bytes_of(hex));
    }

    wire_builder &tag(uint32_t field, wire_type type)
    {
        return bare_varint(uint64_t{field} << 3 | static_cast<uint32_t>(type));
    }

    wire_builder &varint(uint32_t field, uint64_t value)
    {
        return tag(field, wire_type::varint).bare_varint(value);
    }

    wire_builder &fixed32(uint32_t field, uint32_t value)
    {
        return tag(field, wire_type::fixed32).little_endian(value, 4);
    }

    wire_builder &fixed64(uint32_t field, uint64_t value)
    {
        return tag(field, wire_type::fixed64).little_endian(value, 8);
    }

    wire_builder &length_delimited(uint32_t field, const byte_vector &content)
    {
        return tag(field, wire_type::length_delimited).bare_varint(content.size()).raw(content);
    }

    wire_builder &text(uint32_t field, std::string_view content)
    {
        return length_delimited(field, byte_vector(content.begin(), content.end()));
    }

    // A varint without a tag, in as few bytes as it needs.
    wire_builder &bare_varint(uint64_t value)
    {
        while (value >= 0x80) {
            bytes_.push_back(static_cast<uint8_t>((value & 0x7F) | 0x80));
            value >>= 7;
        }
        bytes_.push_back(static_cast<uint8_t>(value));
        return *this;
    }

    // A varint without a tag in exactly `width` bytes; the last ones have zero bits only.
    wire_builder &overlong_varint(uint64_t value, std::size_t width)
    {
        if (width == 0)
            throw std::invalid_argument("a varint has at least one byte");
        for (std::size_t i = 0; i < width; ++i) {
            const uint64_t bits = i < 10 ? value >> (7 * i) & 0x7F : 0;
            bytes_.push_back(static_cast<uint8_t>(bits | (i + 1 < width ? 0x80 : 0)));
        }
        if (width < 10 && value >> (7 * width) != 0)
            throw std::invalid_argument("the value does not fit the width");
        return *this;
    }

    const byte_vector &bytes() const
    {
        return bytes_;
    }

    operator const byte_vector &() const
    {
        return bytes_;
    }

private:
    wire_builder &little_endian(uint64_t value, std::size_t width)
    {
        for (std::size_t i = 0; i < width; ++i)
            bytes_.push_back(static_cast<uint8_t>(value >> (8 * i)));
        return *this;
    }

    byte_vector bytes_;
};

} // namespace mava_tum_test
