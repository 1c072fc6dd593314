// Application records of routes to and from protobuf messages, by the rules of the route adapters.
#ifndef MAVA_TUM_BENCH_ROUTES_PEER_H
#define MAVA_TUM_BENCH_ROUTES_PEER_H

#include "session.pb.h"
#include "tum_nal/nal_routes.h"

namespace bench
{

// `message` is empty on entry. A non-zero `field_8` of an IPv4 route takes the place of `field_7`, as in the adapter.
void fill_peer(const tum_nal_data_ipv4_route &route, peer::SubscriberRouteIpv4 &message);
void fill_peer(const tum_nal_data_ipv6_route &route, peer::SubscriberRouteIpv6 &message);
void fill_peer(const tum_nal_data_sub_route &record, peer::SubRoute &message);

// The route is zero on entry.
void read_peer(const peer::SubscriberRouteIpv4 &message, tum_nal_data_ipv4_route &route);
void read_peer(const peer::SubscriberRouteIpv6 &message, tum_nal_data_ipv6_route &route);

// Overwrites the whole record.
void read_peer(const peer::SubRoute &message, tum_nal_data_sub_route &record);

} // namespace bench

#endif
