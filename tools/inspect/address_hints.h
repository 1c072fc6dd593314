// Which fields hold addresses. The wire does not tell, so it is said here, once.
//
// IPv4: every fixed32 field. The messages use that kind for nothing else: the headers call each of them an IPv4 address
// in network byte order, and each adapter swaps it.
//
// IPv6: bytes fields whose application member is called an IPv6 address, part or end point and has 16 bytes. The other
// bytes fields are identifiers, of 7, 8 or 9 bytes, or nobody's (L26). A value of another length than 16 (L13) is no
// address to show.
#pragma once

#include "mava_tum.h"

namespace mava_tum_inspect
{

template <auto Member>
inline constexpr bool holds_ipv6 = false;

template <>
inline constexpr bool holds_ipv6<&mava_tum_subscriber_v6::field_2> = true;
template <>
inline constexpr bool holds_ipv6<&mava_tum_subscriber_v6::field_3> = true;
template <>
inline constexpr bool holds_ipv6<&mava_tum_subscriber_v6::field_4> = true;
template <>
inline constexpr bool holds_ipv6<&mava_tum_subscriber_v6::field_6> = true;
template <>
inline constexpr bool holds_ipv6<&mava_tum_l2tp_data::field_4> = true;
template <>
inline constexpr bool holds_ipv6<&mava_tum_l2tp_data::field_5> = true;
template <>
inline constexpr bool holds_ipv6<&mava_tum_subscriber_li::field_8> = true;
template <>
inline constexpr bool holds_ipv6<&mava_tum_subscriber_route_ipv6::field_3> = true;
template <>
inline constexpr bool holds_ipv6<&mava_tum_subscriber_route_ipv6::field_5> = true;

} // namespace mava_tum_inspect
