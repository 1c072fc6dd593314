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
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::varint<3, &self::field_3>, kind::record_array<4, &self::ipv4_routes, &self::ipv4_route_count>,
        kind::record_array<5, &self::ipv6_routes, &self::ipv6_route_count>, kind::varint<6, &self::field_6>>;
};

template <>
struct schema<mava_tum_subscriber_route_resp> {
    using self = mava_tum_subscriber_route_resp;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::text<3, &self::field_3>, kind::text<4, &self::field_4>>;
};

} // namespace mava_tum
