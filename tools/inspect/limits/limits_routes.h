// What a route entry takes of a route, in a batch and in a session, and what the messages about routes take.
#pragma once

#include "inspect/limits/limit_rows.h"
#include "messages/routes_schema.h"
#include "nal/route_rows.h"
#include "tum_nal/nal_routes.h"

namespace mava_tum_inspect
{

struct ipv4_route_limits {
    using wire = mava_tum_subscriber_route_ipv4;
    using own = tum_nal_data_ipv4_route;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>,
        takes_text_up_to<&wire::field_2, &own::field_2, mava_tum::short_text<2, &own::field_2>::limit>,
        takes<&wire::field_3, &own::field_3>, takes<&wire::field_4, &own::field_4>,
        takes<&wire::field_5, &own::field_5>,
        takes_text_up_to<&wire::field_6, &own::field_6, mava_tum::short_text<6, &own::field_6>::limit>,
        takes<&wire::field_7, &own::field_7>, takes<&wire::field_8, &own::field_8>,
        takes_text_up_to<&wire::field_9, &own::field_9, mava_tum::long_text<9, &own::field_9>::limit>>;
};

struct ipv6_route_limits {
    using wire = mava_tum_subscriber_route_ipv6;
    using own = tum_nal_data_ipv6_route;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>,
        takes_text_up_to<&wire::field_2, &own::field_2, mava_tum::short_text<2, &own::field_2>::limit>,
        takes<&wire::field_3, &own::field_3>, takes<&wire::field_4, &own::field_4>,
        takes<&wire::field_5, &own::field_5>,
        takes_text_up_to<&wire::field_6, &own::field_6, mava_tum::short_text<6, &own::field_6>::limit>,
        takes<&wire::field_7, &own::field_7>, takes<&wire::field_8, &own::field_8>,
        takes_text_up_to<&wire::field_9, &own::field_9, mava_tum::long_text<9, &own::field_9>::limit>>;
};

struct sub_route_limits {
    using wire = mava_tum_sub_route;
    using own = tum_nal_data_sub_route;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>,
        list<&wire::ipv4_routes, &own::ipv4_routes, &own::ipv4_route_count, ipv4_route_limits>,
        list<&wire::ipv6_routes, &own::ipv6_routes, &own::ipv6_route_count, ipv6_route_limits>,
        takes<&wire::field_6, &own::field_6>>;
};

struct subscriber_route_resp_limits {
    using wire = mava_tum_subscriber_route_resp;
    using own = tum_nal_data_subscriber_route_resp;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>, takes<&wire::field_4, &own::field_4>>;
};

} // namespace mava_tum_inspect
