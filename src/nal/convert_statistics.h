// A subscriber's statistics, as they stand in a message of their own, in the answer to an operation and in a replay
// failure.
#pragma once

#include "mava_tum/statistics.h"
#include "tum_nal/nal_statistics.h"

namespace mava_tum
{

// The elements that the codec record of one subscriber's statistics points to while it is encoded. Need not be cleared.
struct statistics_slots {
    mava_tum_service_stats services[TUM_NAL_STATS_SERVICES];
};

// Fills `stats`, which must be cleared. It points into `slots` and `record` afterwards: both must outlive it.
void subscriber_stats_to_codec(
    mava_tum_subscriber_stats &stats, statistics_slots &slots, const tum_nal_data_subscriber_stats &record);

// Copies what `stats` holds into `record`, which must be cleared.
void subscriber_stats_from_codec(tum_nal_data_subscriber_stats &record, const mava_tum_subscriber_stats &stats);

} // namespace mava_tum
