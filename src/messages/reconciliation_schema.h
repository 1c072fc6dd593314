// The field lists of the reconciliation messages.
#pragma once

#include "codec/message.h"
#include "mava_tum/reconciliation.h"
#include "messages/session_messages_schema.h"
#include "messages/statistics_schema.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_rec_start_req> {
    using self = mava_tum_rec_start_req;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        text<4, &self::field_4>>;
};

template <>
struct schema<mava_tum_rec_complete_req> {
    using self = mava_tum_rec_complete_req;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        text<4, &self::field_4>>;
};

template <>
struct schema<mava_tum_rec_resp> {
    using self = mava_tum_rec_resp;
    using fields = field_list<varint<1, &self::field_1>, text<2, &self::field_2>, varint<3, &self::field_3>>;
};

template <>
struct schema<mava_tum_rec_session_state> {
    using self = mava_tum_rec_session_state;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>>;
};

template <>
struct schema<mava_tum_rec_sess_req> {
    using self = mava_tum_rec_sess_req;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>,
        record_array<3, &self::field_3, &self::field_3_count>, text<4, &self::field_4>, text<5, &self::field_5>,
        varint<6, &self::field_6>>;
};

template <>
struct schema<mava_tum_rec_sess_resp> {
    using self = mava_tum_rec_sess_resp;
    using fields = field_list<varint<1, &self::field_1>, record_array<2, &self::field_2, &self::field_2_count>,
        varint<3, &self::field_3>, varint<4, &self::field_4>>;
};

template <>
struct schema<mava_tum_rec_sess_replay_req> {
    using self = mava_tum_rec_sess_replay_req;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        record_array<4, &self::field_4, &self::field_4_count>, varint<5, &self::field_5>, text<6, &self::field_6>>;
};

template <>
struct schema<mava_tum_rec_sess_replay_fail> {
    using self = mava_tum_rec_sess_replay_fail;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, record<3, &self::field_3>>;
};

template <>
struct schema<mava_tum_sess_svc_start> {
    using self = mava_tum_sess_svc_start;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        varint<4, &self::field_4>, text_array<5, &self::field_5, &self::field_5_count>>;
};

template <>
struct schema<mava_tum_rec_sess_replay_resp> {
    using self = mava_tum_rec_sess_replay_resp;
    using fields = field_list<varint<1, &self::field_1>, record_array<2, &self::field_2, &self::field_2_count>,
        record_array<3, &self::field_3, &self::field_3_count>, text<4, &self::field_4>, varint<5, &self::field_5>>;
};

} // namespace mava_tum
