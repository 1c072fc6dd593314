// A cursor over wire bytes, which reads or skips one value.
#pragma once

#include <cstdint>

namespace mava_tum_model
{

constexpr int32_t ok = 0;
constexpr int32_t truncated = -1;
constexpr int32_t unsupported_wire_type = -2;
constexpr int32_t wrong_wire_type = -3;
constexpr int32_t no_memory = -4;

constexpr uint32_t varint_type = 0;
constexpr uint32_t fixed64_type = 1;
constexpr uint32_t delimited_type = 2;
constexpr uint32_t fixed32_type = 5;

struct cursor {
    const uint8_t *data = nullptr;
    uint64_t length = 0;
    uint64_t position = 0;

    bool next_byte(uint8_t &byte);
    bool read32(uint32_t &value);
    bool read64(uint64_t &value);
    bool read_fixed32(uint32_t &value);
    bool step_over_rest_of_varint();

    // Reads a length; the value is [position, end), inside the input.
    bool read_extent(uint64_t &end);

    // A field that the message does not know. The position may then be after the end.
    int32_t skip(uint32_t wire_type);
};

} // namespace mava_tum_model
