// Application records of statistics to and from protobuf messages, by the rules of the statistics adapter.
#ifndef MAVA_TUM_BENCH_STATISTICS_PEER_H
#define MAVA_TUM_BENCH_STATISTICS_PEER_H

#include "session.pb.h"
#include "tum_nal/nal_statistics.h"

namespace bench
{

// `message` is empty on entry.
void fill_peer(const tum_nal_data_subscriber_stats &record, peer::SubscriberStats &message);

// Overwrites the whole record.
void read_peer(const peer::SubscriberStats &message, tum_nal_data_subscriber_stats &record);

} // namespace bench

#endif
