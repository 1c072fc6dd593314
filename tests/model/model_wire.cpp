#include "model/model_wire.h"

namespace mava_tum_model
{

bool cursor::next_byte(uint8_t &byte)
{
    if (position >= length)
        return false;
    byte = data[position];
    position += 1;
    return true;
}

bool cursor::step_over_rest_of_varint()
{
    uint8_t byte = 0x80;
    while ((byte & 0x80) != 0) {
        if (!next_byte(byte))
            return false;
    }
    return true;
}

// The first five bytes count, the fifth with its low four bits; any number of further ones is skipped.
bool cursor::read32(uint32_t &value)
{
    value = 0;
    for (uint32_t index = 0; index < 5; ++index) {
        uint8_t byte = 0;
        if (!next_byte(byte))
            return false;
        const uint64_t bits = index < 4 ? byte & 0x7Fu : byte;
        value |= static_cast<uint32_t>(bits << (7 * index));
        if ((byte & 0x80) == 0)
            return true;
    }
    return step_over_rest_of_varint();
}

// The first ten bytes count, the tenth with its lowest bit.
bool cursor::read64(uint64_t &value)
{
    value = 0;
    for (uint32_t index = 0; index < 10; ++index) {
        uint8_t byte = 0;
        if (!next_byte(byte))
            return false;
        const uint64_t bits = index < 9 ? byte & 0x7Fu : byte & 0x01u;
        value |= bits << (7 * index);
        if ((byte & 0x80) == 0)
            return true;
    }
    return step_over_rest_of_varint();
}

bool cursor::read_fixed32(uint32_t &value)
{
    if (length - position < 4)
        return false;
    value = 0;
    for (uint32_t index = 0; index < 4; ++index)
        value |= static_cast<uint32_t>(data[position + index]) << (8 * index);
    position += 4;
    return true;
}

bool cursor::read_extent(uint64_t &end)
{
    uint32_t extent = 0;
    if (!read32(extent))
        return false;
    end = position + extent;
    return end <= length;
}

int32_t cursor::skip(uint32_t wire_type)
{
    uint32_t extent = 0;
    switch (wire_type) {
    case varint_type:
        return step_over_rest_of_varint() ? ok : truncated;
    case fixed64_type:
        position += 8;
        return ok;
    case delimited_type:
        if (!read32(extent))
            return truncated;
        position += extent;
        return ok;
    case fixed32_type:
        position += 4;
        return ok;
    default:
        return unsupported_wire_type;
    }
}

} // namespace mava_tum_model
