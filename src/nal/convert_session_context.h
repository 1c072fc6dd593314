// A whole session between its application record and its codec record.
#pragma once

#include "mava_tum/session_messages.h"
#include "tum_nal/nal_session_context.h"

namespace mava_tum
{

// The elements that the codec record of one session points to while it is encoded. Need not be cleared.
struct session_context_slots {
    mava_tum_subscriber_qos qos[TUM_NAL_SESSION_QOS_ENTRIES];
    mava_tum_subscriber_route_ipv4 ipv4_routes[TUM_NAL_SESSION_IPV4_ROUTES];
    mava_tum_subscriber_route_ipv6 ipv6_routes[TUM_NAL_SESSION_IPV6_ROUTES];
};

// Fills `context`, which must be cleared. It points into `slots` and `record` afterwards: both must outlive it.
void session_context_to_codec(
    mava_tum_session_context &context, session_context_slots &slots, const tum_nal_data_session_context &record);

// Copies what `context` holds into `record`, which must be cleared. Looks at what was decoded, not at the feature mask,
// which on this side is a value like any other.
void session_context_from_codec(tum_nal_data_session_context &record, const mava_tum_session_context &context);

} // namespace mava_tum
