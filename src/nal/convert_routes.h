// Route entries, as they stand in a batch of routes and in a session. `..._to_codec` expects a cleared codec record and
// borrows from the entry; `..._from_codec` expects a cleared entry and copies.
#pragma once

#include "mava_tum/feature_records.h"
#include "tum_nal/nal_routes.h"

namespace mava_tum
{

void ipv4_route_to_codec(mava_tum_subscriber_route_ipv4 &route, const tum_nal_data_ipv4_route &entry);
void ipv4_route_from_codec(tum_nal_data_ipv4_route &entry, const mava_tum_subscriber_route_ipv4 &route);

void ipv6_route_to_codec(mava_tum_subscriber_route_ipv6 &route, const tum_nal_data_ipv6_route &entry);
void ipv6_route_from_codec(tum_nal_data_ipv6_route &entry, const mava_tum_subscriber_route_ipv6 &route);

} // namespace mava_tum
