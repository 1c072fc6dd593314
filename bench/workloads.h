// What is measured: three application records. Everything else that the bench compares (wire bytes, codec record,
// protobuf message) is derived from them in workload.h, so that all sides work on the same values.
#ifndef MAVA_TUM_BENCH_WORKLOADS_H
#define MAVA_TUM_BENCH_WORKLOADS_H

#include "tum_nal/nal_routes.h"
#include "tum_nal/nal_session_context.h"

namespace bench
{

// All three expect a record of zeros, and fill it with what an encode adapter sends and a decode adapter brings back
// whole: the same application record leaves and arrives.

// A broadband session as most are: PPP in two VLANs, IPv4 and IPv6, two QoS entries, an access list, a path check, an
// MTU, accounting. Some fifty fields, eight texts, about 350 bytes.
void fill_typical_session(tum_nal_data_session_context &record);

// Every member that can travel, in its longest usual form: eight QoS entries with six texts each, four routes of each
// family, L2TP over IPv6, all lists, redirect, intercept. About 6 kB.
void fill_full_session(tum_nal_data_session_context &record);

// A batch of fifty routes of each family, every member set. About 11 kB.
void fill_route_batch(tum_nal_data_sub_route &record);

} // namespace bench

#endif
