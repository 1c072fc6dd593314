// The features of a session: QoS entries, access lists, redirect, intercept, checks, limits and accounting.
#pragma once

#include "messages/feature_records_schema.h"
#include "nal/rows.h"
#include "nal/session_features.h"

namespace mava_tum
{

// L26: field 9 has no member.
struct qos_rows {
    using message = mava_tum_subscriber_qos;
    using record = tum_nal_data_qos_element;
    using rows =
        row_list<number<1, &record::value_1>, number<2, &record::value_2, if_nonzero>, text<3, &record::text_3>,
            text<4, &record::text_4>, text<5, &record::text_5>, number<6, &record::value_6, if_nonzero>,
            number<7, &record::value_7, if_nonzero>, number<8, &record::value_8, if_nonzero>,
            text<10, &record::text_10>, text<11, &record::text_11>, text<12, &record::text_12>>;
};

struct acl_rows {
    using message = mava_tum_subscriber_acl;
    using record = session;
    using rows = row_list<number<1, &session::acl_value_1>, text<2, &session::acl_text_2>,
        text<3, &session::acl_text_3>, text<4, &session::acl_text_4>, text<5, &session::acl_text_5>>;
};

struct redirect_rows {
    using message = mava_tum_subscriber_httpr;
    using record = session;
    using rows = row_list<number<1, &session::redirect_value_1>, text<2, &session::redirect_text_2>>;
};

struct intercept_rows {
    using message = mava_tum_subscriber_li;
    using record = session;
    using rows = row_list<number<1, &session::intercept_value_1>, number<2, &session::intercept_value_2>,
        number<3, &session::intercept_value_3>, octets<4, &session::intercept_identifier>,
        number<5, &session::intercept_value_5>, number<6, &session::intercept_value_6>,
        ipv4<7, &session::intercept_ipv4_address, if_nonzero>, ipv6<8, &session::intercept_ipv6_address>>;
};

template <auto Value1, auto Value2>
struct urpf_rows {
    using message = mava_tum_subscriber_urpf;
    using record = session;
    using rows = row_list<number<1, Value1>, number<2, Value2>>;
};

// ICMP and MTU checks are one value each.
template <class Message>
struct single_value_rows {
    using message = Message;
    using record = uint32_t;
    using rows = row_list<whole_record<1>>;
};

using icmp_rows = single_value_rows<mava_tum_subscriber_icmp>;
using mtu_rows = single_value_rows<mava_tum_subscriber_mtu>;

struct accounting_rows {
    using message = mava_tum_subscriber_acct;
    using record = session;
    using rows = row_list<number<1, &session::accounting_flags>,
        number<2, &session::accounting_value_2, if_accounted<TUM_NAL_ACCOUNTING_VALUE_2>>,
        number<3, &session::accounting_value_3, if_accounted<TUM_NAL_ACCOUNTING_VALUE_3>>>;
};

} // namespace mava_tum
