// The one byte swap between the two orders of an IPv4 address.
#pragma once

#include <cstdint>

namespace mava_tum
{

// Application records hold 192.0.2.1 as 0xC0000201; a codec record holds it so that its fixed32, which is always little
// endian on the wire, carries C0 00 02 01. That is a swap on every host, so not `htonl`, which is none on a big-endian
// one. The swap is its own inverse.
constexpr uint32_t swap_ipv4_order(uint32_t address)
{
    return __builtin_bswap32(address);
}

} // namespace mava_tum
