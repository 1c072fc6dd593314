// The bits and values of a session that decide what of it is sent.
#pragma once

#include "tum_nal/nal_session_context.h"

namespace mava_tum
{

using session = tum_nal_data_session_context;

// If the feature mask has any of `Features`, one or several TUM_NAL_FEATURE_ bits.
template <int Features>
struct if_feature {
    static bool sends(const session &record, const auto &)
    {
        return (record.feature_mask & static_cast<uint32_t>(Features)) != 0;
    }
};

// L37: the two values of accounting are selected by bits of the accounting flags, not of the feature mask; a selected
// zero is sent.
template <int Flag>
struct if_accounted {
    static bool sends(const session &record, const auto &)
    {
        return (record.accounting_flags & Flag) != 0;
    }
};

// L37: which pair of end points is sent follows from the kind; any other kind sends none.
template <int Kind>
struct if_l2tp_kind {
    static bool sends(const session &record, const auto &)
    {
        return record.l2tp_kind == Kind;
    }
};

// L37: for other kinds the session identifier stays behind, and value 9 for all but one.
template <int... Kinds>
struct if_session_kind {
    static bool sends(const session &record, const auto &)
    {
        return ((record.session_value_1 == Kinds) || ...);
    }
};

} // namespace mava_tum
