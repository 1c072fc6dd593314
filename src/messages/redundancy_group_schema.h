// The field lists of the redundancy-group messages.
#pragma once

#include "codec/message.h"
#include "mava_tum/redundancy_group.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_srg_group_rec_start_req> {
    using self = mava_tum_srg_group_rec_start_req;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>, kind::varint<3, &self::field_3>>;
};

template <>
struct schema<mava_tum_srg_group_rec_resp> {
    using self = mava_tum_srg_group_rec_resp;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>>;
};

template <>
struct schema<mava_tum_srg_group_rec_complete_req> {
    using self = mava_tum_srg_group_rec_complete_req;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>, kind::varint<3, &self::field_3>>;
};

template <>
struct schema<mava_tum_srg_group_data> {
    using self = mava_tum_srg_group_data;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::varint<3, &self::field_3>, kind::varint<4, &self::field_4>, kind::text<5, &self::field_5>>;
};

template <>
struct schema<mava_tum_srg_group_rec_replay_req> {
    using self = mava_tum_srg_group_rec_replay_req;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::record_array<3, &self::field_3, &self::field_3_count>, kind::varint<4, &self::field_4>>;
};

template <>
struct schema<mava_tum_srg_group_rec_replay_resp> {
    using self = mava_tum_srg_group_rec_replay_resp;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::record_array<2, &self::field_2, &self::field_2_count>,
            kind::record_array<3, &self::field_3, &self::field_3_count>, kind::varint<4, &self::field_4>>;
};

} // namespace mava_tum
