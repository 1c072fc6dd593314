// How a subscriber of a session is reached: addresses, PPP, L2TP, VLAN and what surrounds them in the session data.
//
// `..._to_codec` expects a cleared codec record and borrows from the application record. `..._from_codec` copies what
// is marked present into a cleared application record.
#pragma once

#include "mava_tum/subscriber_records.h"
#include "tum_nal/nal_session_context.h"

namespace mava_tum
{

void subscriber_v4_to_codec(mava_tum_subscriber_v4 &v4, const tum_nal_data_session_context &record);
void subscriber_v4_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_v4 &v4);

void subscriber_v6_to_codec(mava_tum_subscriber_v6 &v6, const tum_nal_data_session_context &record);
void subscriber_v6_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_v6 &v6);

void session_data_to_codec(mava_tum_session_data &data, const tum_nal_data_session_context &record);
void session_data_from_codec(tum_nal_data_session_context &record, const mava_tum_session_data &data);

} // namespace mava_tum
