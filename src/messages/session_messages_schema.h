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
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        varint<4, &self::field_4>, varint<5, &self::feature_mask>, bytes<6, &self::field_6>, varint<7, &self::field_7>,
        record<8, &self::subscriber_v4>, record<9, &self::subscriber_v6>, record<10, &self::session_data>,
        record_array<11, &self::qos, &self::qos_count>, record<12, &self::acl>, record<13, &self::httpr>,
        record<14, &self::li>, record<15, &self::urpf_1>, record<16, &self::urpf_2>, record<17, &self::icmp_1>,
        record<18, &self::icmp_2>, record<19, &self::mtu_1>, record<20, &self::mtu_2>, record<21, &self::mtu_3>,
        record<22, &self::acct>, record_array<23, &self::route_ipv4, &self::route_ipv4_count>,
        record_array<24, &self::route_ipv6, &self::route_ipv6_count>>;
};

template <>
struct schema<mava_tum_session_delete> {
    using self = mava_tum_session_delete;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        varint<4, &self::field_4>, varint<5, &self::field_5>>;
};

template <>
struct schema<mava_tum_sess_oper_resp> {
    using self = mava_tum_sess_oper_resp;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        varint<4, &self::field_4>, varint<5, &self::field_5>, text<6, &self::field_6>, text<7, &self::field_7>,
        text<8, &self::field_8>, record<9, &self::field_9>, bytes<10, &self::field_10>>;
};

} // namespace mava_tum
