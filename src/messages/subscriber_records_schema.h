// The field lists of the subscriber records, which other groups nest.
#pragma once

#include "codec/message.h"
#include "mava_tum/subscriber_records.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_subscriber_v4> {
    using self = mava_tum_subscriber_v4;
    using fields = field_list<varint<1, &self::field_1>, fixed32<2, &self::ipv4_address>>;
};

template <>
struct schema<mava_tum_subscriber_v6> {
    using self = mava_tum_subscriber_v6;
    using fields = field_list<varint<1, &self::field_1>, bytes<2, &self::field_2>, bytes<3, &self::field_3>,
        bytes<4, &self::field_4>, varint<5, &self::field_5>, bytes<6, &self::field_6>, varint<7, &self::field_7>>;
};

template <>
struct schema<mava_tum_ppp_data> {
    using self = mava_tum_ppp_data;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        varint<4, &self::field_4>, bytes<5, &self::field_5>, varint<6, &self::field_6>>;
};

template <>
struct schema<mava_tum_l2tp_data> {
    using self = mava_tum_l2tp_data;
    using fields = field_list<varint<1, &self::field_1>, fixed32<2, &self::field_2>, fixed32<3, &self::field_3>,
        bytes<4, &self::field_4>, bytes<5, &self::field_5>, varint<6, &self::field_6>, varint<7, &self::field_7>,
        varint<8, &self::field_8>, varint<9, &self::field_9>, varint<10, &self::field_10>, varint<11, &self::field_11>,
        varint<12, &self::field_12>, varint<13, &self::field_13>, varint<14, &self::field_14>,
        varint<15, &self::field_15>, varint<16, &self::field_16>, varint<17, &self::field_17>,
        varint<18, &self::field_18>, text<19, &self::field_19>>;
};

template <>
struct schema<mava_tum_vlan_info> {
    using self = mava_tum_vlan_info;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>>;
};

template <>
struct schema<mava_tum_session_data> {
    using self = mava_tum_session_data;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, record<3, &self::ppp>,
        record<4, &self::l2tp>, text<5, &self::field_5>, bytes<6, &self::field_6>, text<7, &self::field_7>,
        text<8, &self::field_8>, varint<9, &self::field_9>, record<10, &self::vlan>, varint<11, &self::field_11>>;
};

} // namespace mava_tum
