// Route entries, as they stand in a batch of routes and in a session.
#pragma once

#include "messages/feature_records_schema.h"
#include "nal/rows.h"
#include "tum_nal/nal_routes.h"

namespace mava_tum
{

// L22: limits of received texts, NUL included. They are smaller than the arrays, char[36] and char[68]: what is sent
// may be longer than what is received.
template <uint32_t Number, auto Member>
using short_text = text<Number, Member, if_not_empty, 33>;

template <uint32_t Number, auto Member>
using long_text = text<Number, Member, if_not_empty, 65>;

// L23: not a slip but the message format: field_8 is sent as field 7, instead of field_7 when both are set, and field 8
// never. IPv6 routes are straight, and so is the way back.
struct ipv4_route_field_7 {
    [[gnu::always_inline]] static void send(auto &fields, const tum_nal_data_ipv4_route &entry)
    {
        const auto value = entry.field_8 != 0 ? entry.field_8 : entry.field_7;
        if (value != 0)
            fields.template number<7>(value);
    }
};

struct ipv4_route_rows {
    using message = mava_tum_subscriber_route_ipv4;
    using record = tum_nal_data_ipv4_route;
    using rows = row_list<number<1, &record::field_1>, short_text<2, &record::field_2>,
        ipv4<3, &record::field_3, if_nonzero>, number<4, &record::field_4, if_nonzero>,
        ipv4<5, &record::field_5, if_nonzero>, short_text<6, &record::field_6>, sent<ipv4_route_field_7>,
        received<number<7, &record::field_7>>, received<number<8, &record::field_8>>, long_text<9, &record::field_9>>;
};

struct ipv6_route_rows {
    using message = mava_tum_subscriber_route_ipv6;
    using record = tum_nal_data_ipv6_route;
    using rows = row_list<number<1, &record::field_1>, short_text<2, &record::field_2>, ipv6<3, &record::field_3>,
        number<4, &record::field_4, if_nonzero>, ipv6<5, &record::field_5>, short_text<6, &record::field_6>,
        number<7, &record::field_7, if_nonzero>, number<8, &record::field_8, if_nonzero>,
        long_text<9, &record::field_9>>;
};

} // namespace mava_tum
