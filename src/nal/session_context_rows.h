// A whole session.
#pragma once

#include "messages/session_messages_schema.h"
#include "nal/route_rows.h"
#include "nal/session_access_rows.h"
#include "nal/session_feature_rows.h"

namespace mava_tum
{

inline constexpr int any_ipv6_part = TUM_NAL_FEATURE_IPV6_PART_2 | TUM_NAL_FEATURE_IPV6_PART_3 |
                                     TUM_NAL_FEATURE_IPV6_PART_4 | TUM_NAL_FEATURE_IPV6_PART_6;

// L26: field 6 has no member. L16: a nested record whose decode failed part-way is delivered up to the fault.
struct session_context_rows {
    using message = mava_tum_session_context;
    using record = session;
    using rows = row_list<number<1, &session::session_value_1>, number<2, &session::session_value_2>,
        number<3, &session::session_value_3>, number<4, &session::session_value_4>, number<5, &session::feature_mask>,
        number<7, &session::session_value_7>,
        nested<8, subscriber_v4_rows, if_all<if_feature<TUM_NAL_FEATURE_IPV4>, if_set<&session::ipv4_address>>>, // L37
        nested<9, subscriber_v6_rows, if_feature<any_ipv6_part>>, nested<10, session_data_rows>,
        list<11, &session::qos, &session::qos_count, qos_rows, if_feature<TUM_NAL_FEATURE_QOS>>,
        nested<12, acl_rows, if_feature<TUM_NAL_FEATURE_ACL>>,
        nested<13, redirect_rows, if_feature<TUM_NAL_FEATURE_REDIRECT>>,
        nested<14, intercept_rows, if_feature<TUM_NAL_FEATURE_INTERCEPT>>,
        nested<15, urpf_rows<&session::urpf_1_value_1, &session::urpf_1_value_2>, if_feature<TUM_NAL_FEATURE_URPF_1>>,
        nested<16, urpf_rows<&session::urpf_2_value_1, &session::urpf_2_value_2>, if_feature<TUM_NAL_FEATURE_URPF_2>>,
        nested_in<17, &session::icmp_1_value, icmp_rows, if_feature<TUM_NAL_FEATURE_ICMP_1>>,
        nested_in<18, &session::icmp_2_value, icmp_rows, if_feature<TUM_NAL_FEATURE_ICMP_2>>,
        nested_in<19, &session::mtu_1_value, mtu_rows, if_feature<TUM_NAL_FEATURE_MTU_1>>,
        nested_in<20, &session::mtu_2_value, mtu_rows, if_feature<TUM_NAL_FEATURE_MTU_2>>,
        nested_in<21, &session::mtu_3_value, mtu_rows, if_feature<TUM_NAL_FEATURE_MTU_3>>,
        nested<22, accounting_rows, if_feature<TUM_NAL_FEATURE_ACCOUNTING>>,
        list<23, &session::ipv4_routes, &session::ipv4_route_count, ipv4_route_rows,
            if_feature<TUM_NAL_FEATURE_IPV4_ROUTES>>,
        list<24, &session::ipv6_routes, &session::ipv6_route_count, ipv6_route_rows,
            if_feature<TUM_NAL_FEATURE_IPV6_ROUTES>>>;
};

} // namespace mava_tum
