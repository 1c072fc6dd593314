// The field lists of the subscriber records, which other groups nest.
#pragma once

#include "codec/message.h"
#include "mava_tum/subscriber_records.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_subscriber_v4> {
    using self = mava_tum_subscriber_v4;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::fixed32<2, &self::ipv4_address>>;
};

template <>
struct schema<mava_tum_subscriber_v6> {
    using self = mava_tum_subscriber_v6;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::bytes<2, &self::field_2>,
        kind::bytes<3, &self::field_3>, kind::bytes<4, &self::field_4>, kind::varint<5, &self::field_5>,
        kind::bytes<6, &self::field_6>, kind::varint<7, &self::field_7>>;
};

template <>
struct schema<mava_tum_ppp_data> {
    using self = mava_tum_ppp_data;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>, kind::varint<3, &self::field_3>,
            kind::varint<4, &self::field_4>, kind::bytes<5, &self::field_5>, kind::varint<6, &self::field_6>>;
};

template <>
struct schema<mava_tum_l2tp_data> {
    using self = mava_tum_l2tp_data;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::fixed32<2, &self::field_2>,
        kind::fixed32<3, &self::field_3>, kind::bytes<4, &self::field_4>, kind::bytes<5, &self::field_5>,
        kind::varint<6, &self::field_6>, kind::varint<7, &self::field_7>, kind::varint<8, &self::field_8>,
        kind::varint<9, &self::field_9>, kind::varint<10, &self::field_10>, kind::varint<11, &self::field_11>,
        kind::varint<12, &self::field_12>, kind::varint<13, &self::field_13>, kind::varint<14, &self::field_14>,
        kind::varint<15, &self::field_15>, kind::varint<16, &self::field_16>, kind::varint<17, &self::field_17>,
        kind::varint<18, &self::field_18>, kind::text<19, &self::field_19>>;
};

template <>
struct schema<mava_tum_vlan_info> {
    using self = mava_tum_vlan_info;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>>;
};

template <>
struct schema<mava_tum_session_data> {
    using self = mava_tum_session_data;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::record<3, &self::ppp>, kind::record<4, &self::l2tp>, kind::text<5, &self::field_5>,
        kind::bytes<6, &self::field_6>, kind::text<7, &self::field_7>, kind::text<8, &self::field_8>,
        kind::varint<9, &self::field_9>, kind::record<10, &self::vlan>, kind::varint<11, &self::field_11>>;
};

} // namespace mava_tum
