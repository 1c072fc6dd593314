// The unsigned members of records, wherever they stand and however wide they are: 1, 2, 4 or 8 bytes in host byte
// order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace mava_tum_cli
{

template <class Number>
uint64_t load_as(const std::byte *from)
{
    Number number = 0;
    std::memcpy(&number, from, sizeof number);
    return number;
}

template <class Number>
void store_as(std::byte *to, uint64_t number)
{
    const auto narrow = static_cast<Number>(number);
    std::memcpy(to, &narrow, sizeof narrow);
}

inline uint64_t load_number(const std::byte *from, size_t size_bytes)
{
    switch (size_bytes) {
    case 1:
        return load_as<uint8_t>(from);
    case 2:
        return load_as<uint16_t>(from);
    case 4:
        return load_as<uint32_t>(from);
    default:
        return load_as<uint64_t>(from);
    }
}

inline void store_number(std::byte *to, size_t size_bytes, uint64_t number)
{
    switch (size_bytes) {
    case 1:
        return store_as<uint8_t>(to, number);
    case 2:
        return store_as<uint16_t>(to, number);
    case 4:
        return store_as<uint32_t>(to, number);
    default:
        return store_as<uint64_t>(to, number);
    }
}

} // namespace mava_tum_cli
