// Application records to and from protobuf messages, by the rules of the adapters.
#ifndef MAVA_TUM_BENCH_PROTOBUF_RECORDS_H
#define MAVA_TUM_BENCH_PROTOBUF_RECORDS_H

#include "peers/protobuf/peer_language.h"

#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"

namespace bench
{

// `message` is empty on entry. A non-zero `field_8` of an IPv4 route takes the place of `field_7`, as in the adapter.
void fill_peer(const tum_nal_data_session_context &record, peer::SessionContext &message);
void fill_peer(const tum_nal_data_ipv4_route &route, peer::SubscriberRouteIpv4 &message);
void fill_peer(const tum_nal_data_ipv6_route &route, peer::SubscriberRouteIpv6 &message);
void fill_peer(const tum_nal_data_sub_route &record, peer::SubRoute &message);
void fill_peer(const tum_nal_data_subscriber_stats &record, peer::SubscriberStats &message);
void fill_peer(const tum_nal_data_rec_sess_req &record, peer::RecSessReq &message);
void fill_peer(const tum_nal_data_srg_group_rec_start_req &record, peer::SrgGroupRecStartReq &message);

// The route is zero on entry.
void read_peer(const peer::SubscriberRouteIpv4 &message, tum_nal_data_ipv4_route &route);
void read_peer(const peer::SubscriberRouteIpv6 &message, tum_nal_data_ipv6_route &route);

// Overwrite the whole record.
void read_peer(const peer::SessionContext &message, tum_nal_data_session_context &record);
void read_peer(const peer::SubRoute &message, tum_nal_data_sub_route &record);
void read_peer(const peer::SubscriberStats &message, tum_nal_data_subscriber_stats &record);
void read_peer(const peer::RecSessReq &message, tum_nal_data_rec_sess_req &record);
void read_peer(const peer::SrgGroupRecStartReq &message, tum_nal_data_srg_group_rec_start_req &record);

} // namespace bench

#endif
