// The IPv4 addresses of codec records: four bytes in network order, held in a number whose lowest byte is the first
// one.
#ifndef MAVA_TUM_CPP_IPV4_HPP
#define MAVA_TUM_CPP_IPV4_HPP
// SPDX-License-Identifier: Apache-2.0

#include <array>
#include <cstddef>
#include <cstdint>

namespace mava_tum::cpp
{

// The four bytes, the first one first.
using ipv4_octets = std::array<std::uint8_t, 4>;

// As a person writes them: 192, 0, 2, 1.
inline ipv4_octets octets_of(std::uint32_t address) noexcept
{
    ipv4_octets octets{};
    for (auto &octet : octets) {
        octet = static_cast<std::uint8_t>(address);
        address >>= 8;
    }
    return octets;
}

// As a field of a message holds it.
inline std::uint32_t address_of(const ipv4_octets &octets) noexcept
{
    std::uint32_t address = 0;
    for (std::size_t i = octets.size(); i-- > 0;)
        address = address << 8 | octets[i];
    return address;
}

} // namespace mava_tum::cpp

#endif
