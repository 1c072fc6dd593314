// The features of a session: QoS entries, access lists, redirect, intercept, checks, limits and accounting.
//
// `..._to_codec` expects a cleared codec record and borrows from the application record. `..._from_codec` copies what
// is marked present into a cleared application record.
#pragma once

#include "mava_tum/feature_records.h"
#include "mava_tum/session_messages.h"
#include "tum_nal/nal_session_context.h"

namespace mava_tum
{

// One element of the QoS list.
void qos_to_codec(mava_tum_subscriber_qos &qos, const tum_nal_data_qos_element &element);
void qos_from_codec(tum_nal_data_qos_element &element, const mava_tum_subscriber_qos &qos);

// All features that are not lists. A feature is marked present in `context` when the feature mask selects it, even if
// none of its fields is.
void features_to_codec(mava_tum_session_context &context, const tum_nal_data_session_context &record);
void features_from_codec(tum_nal_data_session_context &record, const mava_tum_session_context &context);

} // namespace mava_tum
