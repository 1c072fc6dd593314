// The field lists of the feature records, which other groups nest.
#pragma once

#include "codec/message.h"
#include "mava_tum/feature_records.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_subscriber_qos> {
    using self = mava_tum_subscriber_qos;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>, kind::text<3, &self::field_3>,
            kind::text<4, &self::field_4>, kind::text<5, &self::field_5>, kind::varint<6, &self::field_6>,
            kind::varint<7, &self::field_7>, kind::varint<8, &self::field_8>, kind::text<9, &self::field_9>,
            kind::text<10, &self::field_10>, kind::text<11, &self::field_11>, kind::text<12, &self::field_12>>;
};

template <>
struct schema<mava_tum_subscriber_acl> {
    using self = mava_tum_subscriber_acl;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::text<2, &self::field_2>,
        kind::text<3, &self::field_3>, kind::text<4, &self::field_4>, kind::text<5, &self::field_5>>;
};

template <>
struct schema<mava_tum_subscriber_httpr> {
    using self = mava_tum_subscriber_httpr;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::text<2, &self::field_2>>;
};

template <>
struct schema<mava_tum_subscriber_li> {
    using self = mava_tum_subscriber_li;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::varint<3, &self::field_3>, kind::bytes<4, &self::field_4>, kind::varint<5, &self::field_5>,
        kind::varint<6, &self::field_6>, kind::fixed32<7, &self::field_7>, kind::bytes<8, &self::field_8>>;
};

template <>
struct schema<mava_tum_subscriber_urpf> {
    using self = mava_tum_subscriber_urpf;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>>;
};

template <>
struct schema<mava_tum_subscriber_icmp> {
    using self = mava_tum_subscriber_icmp;
    using fields = field_list<kind::varint<1, &self::field_1>>;
};

template <>
struct schema<mava_tum_subscriber_mtu> {
    using self = mava_tum_subscriber_mtu;
    using fields = field_list<kind::varint<1, &self::field_1>>;
};

template <>
struct schema<mava_tum_subscriber_acct> {
    using self = mava_tum_subscriber_acct;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>, kind::varint<3, &self::field_3>>;
};

template <>
struct schema<mava_tum_subscriber_route_ipv4> {
    using self = mava_tum_subscriber_route_ipv4;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::text<2, &self::field_2>, kind::fixed32<3, &self::field_3>,
            kind::varint<4, &self::field_4>, kind::fixed32<5, &self::field_5>, kind::text<6, &self::field_6>,
            kind::varint<7, &self::field_7>, kind::varint<8, &self::field_8>, kind::text<9, &self::field_9>>;
};

template <>
struct schema<mava_tum_subscriber_route_ipv6> {
    using self = mava_tum_subscriber_route_ipv6;
    using fields =
        field_list<kind::varint<1, &self::field_1>, kind::text<2, &self::field_2>, kind::bytes<3, &self::field_3>,
            kind::varint<4, &self::field_4>, kind::bytes<5, &self::field_5>, kind::text<6, &self::field_6>,
            kind::varint<7, &self::field_7>, kind::varint<8, &self::field_8>, kind::text<9, &self::field_9>>;
};

} // namespace mava_tum
