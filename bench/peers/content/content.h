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

namespace bench
{

// The fixed messages of the sessions and of the route batch are in workloads.h.
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
