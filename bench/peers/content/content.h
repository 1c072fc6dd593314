// Three sets of content for each workload:
//   fixed       one message: the kindest case for branch predictors and caches
//   realistic   what a network sends: the shape of the fixed message with small enumerations, VLAN numbers, identifiers
//               of stable width and counters of any size
//   random      every optional member present in 70 % of the messages, numbers and texts of random width
// All functions expect a record of zeros.
#ifndef MAVA_TUM_BENCH_CONTENT_H
#define MAVA_TUM_BENCH_CONTENT_H

#include "peers/content/random_source.h"

#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"
#include "tum_nal/nal_routes.h"
#include "tum_nal/nal_session_context.h"

namespace bench
{

// Both ways whole: the record that an encode adapter sends is the one that a decode adapter fills.

// A broadband session as most are: PPP in two VLANs, IPv4 and IPv6, two QoS entries, an access list, a path check, an
// MTU, accounting. Some fifty fields, eight texts, about 350 bytes.
void fill_typical_session(tum_nal_data_session_context &record);

// Every member that can travel, in its longest usual form: eight QoS entries with six texts each, four routes of each
// family, L2TP over IPv6, all lists, redirect, intercept. About 6 kB.
void fill_full_session(tum_nal_data_session_context &record);

// A batch of fifty routes of each family, every member set. About 11 kB.
void fill_route_batch(tum_nal_data_sub_route &record);

void fill_subscriber_stats(tum_nal_data_subscriber_stats &record);
void fill_session_states(tum_nal_data_rec_sess_req &record);
void fill_group_start(tum_nal_data_srg_group_rec_start_req &record);

void fill_realistic_typical_session(random_source &random, tum_nal_data_session_context &record);
void fill_realistic_full_session(random_source &random, tum_nal_data_session_context &record);
void fill_realistic_route_batch(random_source &random, tum_nal_data_sub_route &record);
void fill_realistic_subscriber_stats(random_source &random, tum_nal_data_subscriber_stats &record);
void fill_realistic_session_states(random_source &random, tum_nal_data_rec_sess_req &record);

void fill_random_typical_session(random_source &random, tum_nal_data_session_context &record);
void fill_random_full_session(random_source &random, tum_nal_data_session_context &record);
void fill_random_route_batch(random_source &random, tum_nal_data_sub_route &record);
void fill_random_subscriber_stats(random_source &random, tum_nal_data_subscriber_stats &record);
void fill_random_session_states(random_source &random, tum_nal_data_rec_sess_req &record);

} // namespace bench

#endif
