// The field lists of the route messages.
#pragma once

#include "codec/message.h"
#include "mava_tum/routes.h"
#include "messages/feature_records_schema.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_sub_route> {
    using self = mava_tum_sub_route;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        record_array<4, &self::ipv4_routes, &self::ipv4_route_count>,
        record_array<5, &self::ipv6_routes, &self::ipv6_route_count>, varint<6, &self::field_6>>;
};

template <>
struct schema<mava_tum_subscriber_route_resp> {
    using self = mava_tum_subscriber_route_resp;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, text<3, &self::field_3>,
        text<4, &self::field_4>>;
};

} // namespace mava_tum
