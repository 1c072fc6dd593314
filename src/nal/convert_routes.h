// Route entries, as they stand in a batch of routes and in a session: their way to the wire, and their way back into a
// cleared entry.
#pragma once

#include "mava_tum/feature_records.h"
#include "nal/convert_rows.h"
#include "tum_nal/nal_routes.h"

namespace mava_tum
{

// L22: limits of received texts, NUL included. They are smaller than the arrays, char[36] and char[68]: what is sent
// may be longer than what is received.
inline constexpr size_t short_text_limit = 33;
inline constexpr size_t long_text_limit = 65;

struct ipv4_route_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_ipv4_route &entry)
    {
        put<1>(fields, entry.field_1);
        put_text<2>(fields, entry.field_2);
        put_ipv4_nonzero<3>(fields, entry.field_3);
        put_nonzero<4>(fields, entry.field_4);
        put_ipv4_nonzero<5>(fields, entry.field_5);
        put_text<6>(fields, entry.field_6);
        // L23: not a slip but the message format: field_8 is sent as field 7, instead of field_7 when both are set, and
        // field 8 never. IPv6 routes are straight, and so is the way back.
        put_nonzero<7>(fields, entry.field_8 != 0 ? entry.field_8 : entry.field_7);
        put_text<9>(fields, entry.field_9);
    }
};

inline void ipv4_route_from_codec(tum_nal_data_ipv4_route &entry, const mava_tum_subscriber_route_ipv4 &route)
{
    take(entry.field_1, route.field_1);
    take_text_up_to<2, short_text_limit>(entry.field_2, route, route.field_2);
    take_ipv4(entry.field_3, route.field_3);
    take(entry.field_4, route.field_4);
    take_ipv4(entry.field_5, route.field_5);
    take_text_up_to<6, short_text_limit>(entry.field_6, route, route.field_6);
    take(entry.field_7, route.field_7);
    take(entry.field_8, route.field_8);
    take_text_up_to<9, long_text_limit>(entry.field_9, route, route.field_9);
}

struct ipv6_route_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_ipv6_route &entry)
    {
        put<1>(fields, entry.field_1);
        put_text<2>(fields, entry.field_2);
        put_ipv6_nonzero<3>(fields, entry.field_3);
        put_nonzero<4>(fields, entry.field_4);
        put_ipv6_nonzero<5>(fields, entry.field_5);
        put_text<6>(fields, entry.field_6);
        put_nonzero<7>(fields, entry.field_7);
        put_nonzero<8>(fields, entry.field_8);
        put_text<9>(fields, entry.field_9);
    }
};

inline void ipv6_route_from_codec(tum_nal_data_ipv6_route &entry, const mava_tum_subscriber_route_ipv6 &route)
{
    take(entry.field_1, route.field_1);
    take_text_up_to<2, short_text_limit>(entry.field_2, route, route.field_2);
    take_bytes<3>(entry.field_3, route, route.field_3);
    take(entry.field_4, route.field_4);
    take_bytes<5>(entry.field_5, route, route.field_5);
    take_text_up_to<6, short_text_limit>(entry.field_6, route, route.field_6);
    take(entry.field_7, route.field_7);
    take(entry.field_8, route.field_8);
    take_text_up_to<9, long_text_limit>(entry.field_9, route, route.field_9);
}

} // namespace mava_tum
