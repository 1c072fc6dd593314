// The test of the feature mask, whose bits decide what of a session is sent.
#pragma once

#include "tum_nal/nal_session_context.h"

namespace mava_tum
{

// Whether any of `features`, one or several TUM_NAL_FEATURE_ bits, is set.
inline bool has_feature(const tum_nal_data_session_context &record, int features)
{
    return (record.feature_mask & static_cast<uint32_t>(features)) != 0;
}

} // namespace mava_tum
