// Application records in which every member of the message has content.
#pragma once

#include "tum_nal/nal_routes.h"
#include "tum_nal/nal_session_context.h"

namespace mava_tum_test
{

// Every feature selected, all slots in use, every text as long as its array (in routes: as what is received). L2TP end
// points are IPv4, `field_8` of the IPv4 routes is zero: so it arrives as it was sent.
tum_nal_data_session_context full_session();

// 50 + 50 routes, with the same rules.
tum_nal_data_sub_route full_routes();

tum_nal_data_ipv4_route full_ipv4_route(uint8_t seed);
tum_nal_data_ipv6_route full_ipv6_route(uint8_t seed);

} // namespace mava_tum_test
