// The field lists of the feature records, which other groups nest.
#pragma once

#include "codec/message.h"
#include "mava_tum/feature_records.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_subscriber_qos> {
    using self = mava_tum_subscriber_qos;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, text<3, &self::field_3>,
        text<4, &self::field_4>, text<5, &self::field_5>, varint<6, &self::field_6>, varint<7, &self::field_7>,
        varint<8, &self::field_8>, text<9, &self::field_9>, text<10, &self::field_10>, text<11, &self::field_11>,
        text<12, &self::field_12>>;
};

template <>
struct schema<mava_tum_subscriber_acl> {
    using self = mava_tum_subscriber_acl;
    using fields = field_list<varint<1, &self::field_1>, text<2, &self::field_2>, text<3, &self::field_3>,
        text<4, &self::field_4>, text<5, &self::field_5>>;
};

template <>
struct schema<mava_tum_subscriber_httpr> {
    using self = mava_tum_subscriber_httpr;
    using fields = field_list<varint<1, &self::field_1>, text<2, &self::field_2>>;
};

template <>
struct schema<mava_tum_subscriber_li> {
    using self = mava_tum_subscriber_li;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        bytes<4, &self::field_4>, varint<5, &self::field_5>, varint<6, &self::field_6>, fixed32<7, &self::field_7>,
        bytes<8, &self::field_8>>;
};

template <>
struct schema<mava_tum_subscriber_urpf> {
    using self = mava_tum_subscriber_urpf;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>>;
};

template <>
struct schema<mava_tum_subscriber_icmp> {
    using self = mava_tum_subscriber_icmp;
    using fields = field_list<varint<1, &self::field_1>>;
};

template <>
struct schema<mava_tum_subscriber_mtu> {
    using self = mava_tum_subscriber_mtu;
    using fields = field_list<varint<1, &self::field_1>>;
};

template <>
struct schema<mava_tum_subscriber_acct> {
    using self = mava_tum_subscriber_acct;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>>;
};

template <>
struct schema<mava_tum_subscriber_route_ipv4> {
    using self = mava_tum_subscriber_route_ipv4;
    using fields = field_list<varint<1, &self::field_1>, text<2, &self::field_2>, fixed32<3, &self::field_3>,
        varint<4, &self::field_4>, fixed32<5, &self::field_5>, text<6, &self::field_6>, varint<7, &self::field_7>,
        varint<8, &self::field_8>, text<9, &self::field_9>>;
};

template <>
struct schema<mava_tum_subscriber_route_ipv6> {
    using self = mava_tum_subscriber_route_ipv6;
    using fields = field_list<varint<1, &self::field_1>, text<2, &self::field_2>, bytes<3, &self::field_3>,
        varint<4, &self::field_4>, bytes<5, &self::field_5>, text<6, &self::field_6>, varint<7, &self::field_7>,
        varint<8, &self::field_8>, text<9, &self::field_9>>;
};

} // namespace mava_tum
