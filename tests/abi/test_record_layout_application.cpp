// The application records, member by member. Callers are compiled against these numbers: one changes only together with
// the library's major version.
#include "abi/test_record_layout.h"

#include "mava_tum.h"

#include <gtest/gtest.h>

namespace
{

TEST(record_layout, of_application_ipv4_route_is_fixed)
{
    using record = tum_nal_data_ipv4_route;
    expect_layout(sizeof(record), alignof(record), 164, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 36),
            MEMBER(field_3, 40, 4),
            MEMBER(field_4, 44, 1),
            MEMBER(field_5, 48, 4),
            MEMBER(field_6, 52, 36),
            MEMBER(field_7, 88, 4),
            MEMBER(field_8, 92, 4),
            MEMBER(field_9, 96, 68),
        });
}

TEST(record_layout, of_application_ipv6_route_is_fixed)
{
    using record = tum_nal_data_ipv6_route;
    expect_layout(sizeof(record), alignof(record), 188, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 36),
            MEMBER(field_3, 40, 16),
            MEMBER(field_4, 56, 1),
            MEMBER(field_5, 57, 16),
            MEMBER(field_6, 73, 36),
            MEMBER(field_7, 112, 4),
            MEMBER(field_8, 116, 4),
            MEMBER(field_9, 120, 68),
        });
}

TEST(record_layout, of_application_qos_element_is_fixed)
{
    using record = tum_nal_data_qos_element;
    expect_layout(sizeof(record), alignof(record), 792, 4,
        {
            MEMBER(value_1, 0, 4),
            MEMBER(value_2, 4, 4),
            MEMBER(text_3, 8, 65),
            MEMBER(text_4, 73, 256),
            MEMBER(text_5, 329, 256),
            MEMBER(value_6, 586, 2),
            MEMBER(value_7, 588, 2),
            MEMBER(value_8, 592, 4),
            MEMBER(text_12, 596, 65),
            MEMBER(text_10, 661, 65),
            MEMBER(text_11, 726, 65),
        });
}

TEST(record_layout, of_application_session_context_is_fixed)
{
    using record = tum_nal_data_session_context;
    expect_layout(sizeof(record), alignof(record), 8848, 8,
        {
            MEMBER(session_value_1, 0, 4),
            MEMBER(session_value_2, 4, 4),
            MEMBER(session_value_3, 8, 4),
            MEMBER(session_value_4, 12, 4),
            MEMBER(feature_mask, 16, 4),
            MEMBER(reserved_6, 20, 20),
            MEMBER(session_value_7, 40, 4),
            MEMBER(ipv4_value_1, 44, 4),
            MEMBER(ipv4_address, 48, 4),
            MEMBER(reserved_10, 52, 4),
            MEMBER(ipv6_value_1, 56, 4),
            MEMBER(reserved_11, 60, 4),
            MEMBER(ipv6_part_2, 64, 16),
            MEMBER(ipv6_part_3, 80, 16),
            MEMBER(ipv6_part_4, 96, 16),
            MEMBER(ipv6_part_6, 112, 16),
            MEMBER(ipv6_value_5, 128, 1),
            MEMBER(ipv6_value_7, 129, 1),
            MEMBER(session_data_value_1, 132, 4),
            MEMBER(session_data_value_2, 136, 8),
            MEMBER(ppp_value_1, 144, 4),
            MEMBER(ppp_value_2, 148, 4),
            MEMBER(ppp_value_3, 152, 4),
            MEMBER(ppp_value_4, 156, 4),
            MEMBER(ppp_identifier, 160, 9),
            MEMBER(ppp_value_6, 170, 2),
            MEMBER(l2tp_kind, 172, 4),
            MEMBER(l2tp_ipv4_2, 176, 4),
            MEMBER(l2tp_ipv4_3, 180, 4),
            MEMBER(l2tp_ipv6_4, 184, 16),
            MEMBER(l2tp_ipv6_5, 200, 16),
            MEMBER(l2tp_value_6, 216, 2),
            MEMBER(l2tp_value_7, 218, 2),
            MEMBER(l2tp_value_8, 220, 2),
            MEMBER(l2tp_value_9, 222, 2),
            MEMBER(l2tp_value_10, 224, 1),
            MEMBER(l2tp_value_11, 228, 4),
            MEMBER(l2tp_value_12, 232, 4),
            MEMBER(l2tp_value_13, 236, 4),
            MEMBER(l2tp_value_14, 240, 4),
            MEMBER(l2tp_value_15, 244, 4),
            MEMBER(l2tp_value_16, 248, 4),
            MEMBER(l2tp_value_17, 252, 4),
            MEMBER(l2tp_value_18, 256, 4),
            MEMBER(l2tp_name, 260, 33),
            MEMBER(session_name, 293, 65),
            MEMBER(session_identifier, 358, 7),
            MEMBER(session_label, 365, 33),
            MEMBER(session_text, 398, 65),
            MEMBER(session_value_9, 464, 2),
            MEMBER(vlan_value_1, 466, 2),
            MEMBER(vlan_value_2, 468, 2),
            MEMBER(session_data_value_11, 472, 4),
            MEMBER(qos, 476, 6336),
            MEMBER(qos_count, 6812, 1),
            MEMBER(acl_value_1, 6816, 4),
            MEMBER(acl_text_2, 6820, 65),
            MEMBER(acl_text_3, 6885, 65),
            MEMBER(acl_text_4, 6950, 65),
            MEMBER(acl_text_5, 7015, 65),
            MEMBER(redirect_value_1, 7080, 4),
            MEMBER(redirect_text_2, 7084, 256),
            MEMBER(intercept_value_1, 7340, 4),
            MEMBER(intercept_value_2, 7344, 4),
            MEMBER(intercept_value_3, 7348, 2),
            MEMBER(intercept_identifier, 7350, 8),
            MEMBER(intercept_value_5, 7360, 4),
            MEMBER(intercept_value_6, 7364, 4),
            MEMBER(intercept_ipv4_address, 7368, 4),
            MEMBER(intercept_ipv6_address, 7372, 16),
            MEMBER(urpf_1_value_1, 7388, 4),
            MEMBER(urpf_1_value_2, 7392, 4),
            MEMBER(urpf_2_value_1, 7396, 4),
            MEMBER(urpf_2_value_2, 7400, 4),
            MEMBER(icmp_1_value, 7404, 4),
            MEMBER(icmp_2_value, 7408, 4),
            MEMBER(mtu_1_value, 7412, 4),
            MEMBER(mtu_2_value, 7416, 4),
            MEMBER(mtu_3_value, 7420, 4),
            MEMBER(accounting_flags, 7424, 4),
            MEMBER(accounting_value_2, 7428, 4),
            MEMBER(accounting_value_3, 7432, 4),
            MEMBER(ipv4_route_count, 7436, 1),
            MEMBER(ipv6_route_count, 7437, 1),
            MEMBER(ipv4_routes, 7440, 656),
            MEMBER(ipv6_routes, 8096, 752),
        });
}

TEST(record_layout, of_application_sub_route_is_fixed)
{
    using record = tum_nal_data_sub_route;
    expect_layout(sizeof(record), alignof(record), 17620, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 2),
            MEMBER(field_3, 8, 4),
            MEMBER(ipv4_route_count, 12, 1),
            MEMBER(ipv6_route_count, 13, 1),
            MEMBER(ipv4_routes, 16, 8200),
            MEMBER(ipv6_routes, 8216, 9400),
            MEMBER(field_6, 17616, 4),
        });
}

} // namespace
