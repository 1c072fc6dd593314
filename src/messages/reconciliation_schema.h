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
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::varint<3, &self::field_3>, kind::text<4, &self::field_4>>;
};

template <>
struct schema<mava_tum_rec_complete_req> {
    using self = mava_tum_rec_complete_req;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::varint<3, &self::field_3>, kind::text<4, &self::field_4>>;
};

template <>
struct schema<mava_tum_rec_resp> {
    using self = mava_tum_rec_resp;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::text<2, &self::field_2>, kind::varint<3, &self::field_3>>;
};

template <>
struct schema<mava_tum_rec_session_state> {
    using self = mava_tum_rec_session_state;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>, kind::varint<3, &self::field_3>>;
};

template <>
struct schema<mava_tum_rec_sess_req> {
    using self = mava_tum_rec_sess_req;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::record_array<3, &self::field_3, &self::field_3_count>, kind::text<4, &self::field_4>,
        kind::text<5, &self::field_5>, kind::varint<6, &self::field_6>>;
};

template <>
struct schema<mava_tum_rec_sess_resp> {
    using self = mava_tum_rec_sess_resp;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::record_array<2, &self::field_2, &self::field_2_count>,
            kind::varint<3, &self::field_3>, kind::varint<4, &self::field_4>>;
};

template <>
struct schema<mava_tum_rec_sess_replay_req> {
    using self = mava_tum_rec_sess_replay_req;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::varint<3, &self::field_3>, kind::record_array<4, &self::field_4, &self::field_4_count>,
        kind::varint<5, &self::field_5>, kind::text<6, &self::field_6>>;
};

template <>
struct schema<mava_tum_rec_sess_replay_fail> {
    using self = mava_tum_rec_sess_replay_fail;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>, kind::record<3, &self::field_3>>;
};

template <>
struct schema<mava_tum_sess_svc_start> {
    using self = mava_tum_sess_svc_start;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>, kind::varint<3, &self::field_3>,
            kind::varint<4, &self::field_4>, kind::text_array<5, &self::field_5, &self::field_5_count>>;
};

template <>
struct schema<mava_tum_rec_sess_replay_resp> {
    using self = mava_tum_rec_sess_replay_resp;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::record_array<2, &self::field_2, &self::field_2_count>,
            kind::record_array<3, &self::field_3, &self::field_3_count>, kind::text<4, &self::field_4>,
            kind::varint<5, &self::field_5>>;
};

} // namespace mava_tum
