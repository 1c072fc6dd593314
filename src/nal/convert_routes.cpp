#include "nal/convert_routes.h"

#include "nal/convert_rows.h"

namespace mava_tum
{

namespace
{

// L22: limits of received texts, NUL included. They are smaller than the arrays, char[36] and char[68]: what is sent
// may be longer than what is received.
constexpr size_t short_text_limit = 33;
constexpr size_t long_text_limit = 65;

} // namespace

void ipv4_route_to_codec(mava_tum_subscriber_route_ipv4 &route, const tum_nal_data_ipv4_route &entry)
{
    put<1>(route, route.field_1, entry.field_1);
    put_text<2>(route, route.field_2, entry.field_2);
    put_ipv4_nonzero<3>(route, route.field_3, entry.field_3);
    put_nonzero<4>(route, route.field_4, entry.field_4);
    put_ipv4_nonzero<5>(route, route.field_5, entry.field_5);
    put_text<6>(route, route.field_6, entry.field_6);
    put_nonzero<7>(route, route.field_7, entry.field_7);
    // L23: not a slip but the message format: field_8 is sent as field 7, over field_7 when both are set, and field 8
    // never. IPv6 routes are straight, and so is the way back.
    put_nonzero<7>(route, route.field_7, entry.field_8);
    put_text<9>(route, route.field_9, entry.field_9);
}

void ipv4_route_from_codec(tum_nal_data_ipv4_route &entry, const mava_tum_subscriber_route_ipv4 &route)
{
    take<1>(entry.field_1, route, route.field_1);
    take_text_up_to<2, short_text_limit>(entry.field_2, route, route.field_2);
    take_ipv4<3>(entry.field_3, route, route.field_3);
    take<4>(entry.field_4, route, route.field_4);
    take_ipv4<5>(entry.field_5, route, route.field_5);
    take_text_up_to<6, short_text_limit>(entry.field_6, route, route.field_6);
    take<7>(entry.field_7, route, route.field_7);
    take<8>(entry.field_8, route, route.field_8);
    take_text_up_to<9, long_text_limit>(entry.field_9, route, route.field_9);
}

void ipv6_route_to_codec(mava_tum_subscriber_route_ipv6 &route, const tum_nal_data_ipv6_route &entry)
{
    put<1>(route, route.field_1, entry.field_1);
    put_text<2>(route, route.field_2, entry.field_2);
    put_ipv6_nonzero<3>(route, route.field_3, entry.field_3);
    put_nonzero<4>(route, route.field_4, entry.field_4);
    put_ipv6_nonzero<5>(route, route.field_5, entry.field_5);
    put_text<6>(route, route.field_6, entry.field_6);
    put_nonzero<7>(route, route.field_7, entry.field_7);
    put_nonzero<8>(route, route.field_8, entry.field_8);
    put_text<9>(route, route.field_9, entry.field_9);
}

void ipv6_route_from_codec(tum_nal_data_ipv6_route &entry, const mava_tum_subscriber_route_ipv6 &route)
{
    take<1>(entry.field_1, route, route.field_1);
    take_text_up_to<2, short_text_limit>(entry.field_2, route, route.field_2);
    take_bytes<3>(entry.field_3, route, route.field_3);
    take<4>(entry.field_4, route, route.field_4);
    take_bytes<5>(entry.field_5, route, route.field_5);
    take_text_up_to<6, short_text_limit>(entry.field_6, route, route.field_6);
    take<7>(entry.field_7, route, route.field_7);
    take<8>(entry.field_8, route, route.field_8);
    take_text_up_to<9, long_text_limit>(entry.field_9, route, route.field_9);
}

} // namespace mava_tum
