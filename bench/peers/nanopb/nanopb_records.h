// Application records to and from nanopb's structures, by the rules of the adapters.
#ifndef MAVA_TUM_BENCH_NANOPB_RECORDS_H
#define MAVA_TUM_BENCH_NANOPB_RECORDS_H

#include "session.pb.h"

#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"

namespace bench
{

// The structure is zero on entry.
void fill_peer(const tum_nal_data_session_context &record, bench_peer_SessionContext &message);
void fill_peer(const tum_nal_data_sub_route &record, bench_peer_SubRoute &message);
void fill_peer(const tum_nal_data_subscriber_stats &record, bench_peer_SubscriberStats &message);
void fill_peer(const tum_nal_data_rec_sess_req &record, bench_peer_RecSessReq &message);
void fill_peer(const tum_nal_data_srg_group_rec_start_req &record, bench_peer_SrgGroupRecStartReq &message);

// Overwrite the whole record. A decoder leaves absent fields zero, so they need no test.
void read_peer(const bench_peer_SessionContext &message, tum_nal_data_session_context &record);
void read_peer(const bench_peer_SubRoute &message, tum_nal_data_sub_route &record);
void read_peer(const bench_peer_SubscriberStats &message, tum_nal_data_subscriber_stats &record);
void read_peer(const bench_peer_RecSessReq &message, tum_nal_data_rec_sess_req &record);
void read_peer(const bench_peer_SrgGroupRecStartReq &message, tum_nal_data_srg_group_rec_start_req &record);

// Of a session, too. The route is zero before it is read into.
void fill_peer(const tum_nal_data_ipv4_route &route, bench_peer_SubscriberRouteIpv4 &message);
void fill_peer(const tum_nal_data_ipv6_route &route, bench_peer_SubscriberRouteIpv6 &message);
void read_peer(const bench_peer_SubscriberRouteIpv4 &message, tum_nal_data_ipv4_route &route);
void read_peer(const bench_peer_SubscriberRouteIpv6 &message, tum_nal_data_ipv6_route &route);

} // namespace bench

#endif
