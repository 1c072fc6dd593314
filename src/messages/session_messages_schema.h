// The field lists of the session messages, which other groups nest.
#pragma once

#include "codec/message.h"
#include "mava_tum/session_messages.h"
#include "messages/feature_records_schema.h"
#include "messages/statistics_schema.h"
#include "messages/subscriber_records_schema.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_session_context> {
    using self = mava_tum_session_context;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::varint<3, &self::field_3>, kind::varint<4, &self::field_4>, kind::varint<5, &self::feature_mask>,
        kind::bytes<6, &self::field_6>, kind::varint<7, &self::field_7>, kind::record<8, &self::subscriber_v4>,
        kind::record<9, &self::subscriber_v6>, kind::record<10, &self::session_data>,
        kind::record_array<11, &self::qos, &self::qos_count>, kind::record<12, &self::acl>,
        kind::record<13, &self::httpr>, kind::record<14, &self::li>, kind::record<15, &self::urpf_1>,
        kind::record<16, &self::urpf_2>, kind::record<17, &self::icmp_1>, kind::record<18, &self::icmp_2>,
        kind::record<19, &self::mtu_1>, kind::record<20, &self::mtu_2>, kind::record<21, &self::mtu_3>,
        kind::record<22, &self::acct>, kind::record_array<23, &self::route_ipv4, &self::route_ipv4_count>,
        kind::record_array<24, &self::route_ipv6, &self::route_ipv6_count>>;
};

template <>
struct schema<mava_tum_session_delete> {
    using self = mava_tum_session_delete;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::varint<3, &self::field_3>, kind::varint<4, &self::field_4>, kind::varint<5, &self::field_5>>;
};

template <>
struct schema<mava_tum_sess_oper_resp> {
    using self = mava_tum_sess_oper_resp;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::varint<3, &self::field_3>, kind::varint<4, &self::field_4>, kind::varint<5, &self::field_5>,
        kind::text<6, &self::field_6>, kind::text<7, &self::field_7>, kind::text<8, &self::field_8>,
        kind::record<9, &self::field_9>, kind::bytes<10, &self::field_10>>;
};

} // namespace mava_tum
