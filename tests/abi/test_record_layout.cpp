// The codec records, member by member. Callers are compiled against these numbers: one changes only together with the
// library's major version.
#include "abi/test_record_layout.h"

#include "mava_tum.h"

#include <gtest/gtest.h>

namespace
{

TEST(record_layout, of_bytes_is_fixed)
{
    using record = mava_tum_bytes;
    expect_layout(sizeof(record), alignof(record), 16, 8, {MEMBER(data, 0, 8), MEMBER(length, 8, 8)});
}

TEST(record_layout, of_segment_is_fixed)
{
    using record = mava_tum_segment;
    expect_layout(sizeof(record), alignof(record), 16, 8, {MEMBER(data, 0, 8), MEMBER(length, 8, 8)});
}

TEST(record_layout, of_subscriber_v4_is_fixed)
{
    using record = mava_tum_subscriber_v4;
    expect_layout(sizeof(record), alignof(record), 12, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(ipv4_address, 4, 4),
            MEMBER(presence_mask, 8, 1),
        });
}

TEST(record_layout, of_subscriber_v6_is_fixed)
{
    using record = mava_tum_subscriber_v6;
    expect_layout(sizeof(record), alignof(record), 88, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 16),
            MEMBER(field_3, 24, 16),
            MEMBER(field_4, 40, 16),
            MEMBER(field_5, 56, 4),
            MEMBER(field_6, 64, 16),
            MEMBER(field_7, 80, 4),
            MEMBER(presence_mask, 84, 1),
        });
}

TEST(record_layout, of_ppp_data_is_fixed)
{
    using record = mava_tum_ppp_data;
    expect_layout(sizeof(record), alignof(record), 40, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 12, 4),
            MEMBER(field_5, 16, 16),
            MEMBER(field_6, 32, 4),
            MEMBER(presence_mask, 36, 1),
        });
}

TEST(record_layout, of_l2tp_data_is_fixed)
{
    using record = mava_tum_l2tp_data;
    expect_layout(sizeof(record), alignof(record), 120, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 16, 16),
            MEMBER(field_5, 32, 16),
            MEMBER(field_6, 48, 4),
            MEMBER(field_7, 52, 4),
            MEMBER(field_8, 56, 4),
            MEMBER(field_9, 60, 4),
            MEMBER(field_10, 64, 4),
            MEMBER(field_11, 68, 4),
            MEMBER(field_12, 72, 4),
            MEMBER(field_13, 76, 4),
            MEMBER(field_14, 80, 4),
            MEMBER(field_15, 84, 4),
            MEMBER(field_16, 88, 4),
            MEMBER(field_17, 92, 4),
            MEMBER(field_18, 96, 4),
            MEMBER(field_19, 104, 8),
            MEMBER(presence_mask, 112, 4),
        });
}

TEST(record_layout, of_vlan_info_is_fixed)
{
    using record = mava_tum_vlan_info;
    expect_layout(sizeof(record), alignof(record), 12, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(presence_mask, 8, 1),
        });
}

TEST(record_layout, of_session_data_is_fixed)
{
    using record = mava_tum_session_data;
    expect_layout(sizeof(record), alignof(record), 240, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(ppp, 16, 40),
            MEMBER(l2tp, 56, 120),
            MEMBER(field_5, 176, 8),
            MEMBER(field_6, 184, 16),
            MEMBER(field_7, 200, 8),
            MEMBER(field_8, 208, 8),
            MEMBER(field_9, 216, 4),
            MEMBER(vlan, 220, 12),
            MEMBER(field_11, 232, 4),
            MEMBER(presence_mask, 236, 2),
        });
}

TEST(record_layout, of_subscriber_qos_is_fixed)
{
    using record = mava_tum_subscriber_qos;
    expect_layout(sizeof(record), alignof(record), 88, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 8),
            MEMBER(field_4, 16, 8),
            MEMBER(field_5, 24, 8),
            MEMBER(field_6, 32, 4),
            MEMBER(field_7, 36, 4),
            MEMBER(field_8, 40, 4),
            MEMBER(field_9, 48, 8),
            MEMBER(field_10, 56, 8),
            MEMBER(field_11, 64, 8),
            MEMBER(field_12, 72, 8),
            MEMBER(presence_mask, 80, 2),
        });
}

TEST(record_layout, of_subscriber_acl_is_fixed)
{
    using record = mava_tum_subscriber_acl;
    expect_layout(sizeof(record), alignof(record), 48, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(field_3, 16, 8),
            MEMBER(field_4, 24, 8),
            MEMBER(field_5, 32, 8),
            MEMBER(presence_mask, 40, 1),
        });
}

TEST(record_layout, of_subscriber_httpr_is_fixed)
{
    using record = mava_tum_subscriber_httpr;
    expect_layout(sizeof(record), alignof(record), 24, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(presence_mask, 16, 1),
        });
}

TEST(record_layout, of_subscriber_li_is_fixed)
{
    using record = mava_tum_subscriber_li;
    expect_layout(sizeof(record), alignof(record), 72, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 16, 16),
            MEMBER(field_5, 32, 4),
            MEMBER(field_6, 36, 4),
            MEMBER(field_7, 40, 4),
            MEMBER(field_8, 48, 16),
            MEMBER(presence_mask, 64, 1),
        });
}

TEST(record_layout, of_subscriber_urpf_is_fixed)
{
    using record = mava_tum_subscriber_urpf;
    expect_layout(sizeof(record), alignof(record), 12, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(presence_mask, 8, 1),
        });
}

TEST(record_layout, of_subscriber_icmp_is_fixed)
{
    using record = mava_tum_subscriber_icmp;
    expect_layout(sizeof(record), alignof(record), 8, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(presence_mask, 4, 1),
        });
}

TEST(record_layout, of_subscriber_mtu_is_fixed)
{
    using record = mava_tum_subscriber_mtu;
    expect_layout(sizeof(record), alignof(record), 8, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(presence_mask, 4, 1),
        });
}

TEST(record_layout, of_subscriber_acct_is_fixed)
{
    using record = mava_tum_subscriber_acct;
    expect_layout(sizeof(record), alignof(record), 16, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(presence_mask, 12, 1),
        });
}

TEST(record_layout, of_subscriber_route_ipv4_is_fixed)
{
    using record = mava_tum_subscriber_route_ipv4;
    expect_layout(sizeof(record), alignof(record), 64, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(field_3, 16, 4),
            MEMBER(field_4, 20, 4),
            MEMBER(field_5, 24, 4),
            MEMBER(field_6, 32, 8),
            MEMBER(field_7, 40, 4),
            MEMBER(field_8, 44, 4),
            MEMBER(field_9, 48, 8),
            MEMBER(presence_mask, 56, 2),
        });
}

TEST(record_layout, of_subscriber_route_ipv6_is_fixed)
{
    using record = mava_tum_subscriber_route_ipv6;
    expect_layout(sizeof(record), alignof(record), 88, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(field_3, 16, 16),
            MEMBER(field_4, 32, 4),
            MEMBER(field_5, 40, 16),
            MEMBER(field_6, 56, 8),
            MEMBER(field_7, 64, 4),
            MEMBER(field_8, 68, 4),
            MEMBER(field_9, 72, 8),
            MEMBER(presence_mask, 80, 2),
        });
}

TEST(record_layout, of_session_context_is_fixed)
{
    using record = mava_tum_session_context;
    expect_layout(sizeof(record), alignof(record), 656, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 12, 4),
            MEMBER(feature_mask, 16, 4),
            MEMBER(field_6, 24, 16),
            MEMBER(field_7, 40, 4),
            MEMBER(subscriber_v4, 44, 12),
            MEMBER(subscriber_v6, 56, 88),
            MEMBER(session_data, 144, 240),
            MEMBER(qos, 384, 8),
            MEMBER(qos_count, 392, 4),
            MEMBER(acl, 400, 48),
            MEMBER(httpr, 448, 24),
            MEMBER(li, 472, 72),
            MEMBER(urpf_1, 544, 12),
            MEMBER(urpf_2, 556, 12),
            MEMBER(icmp_1, 568, 8),
            MEMBER(icmp_2, 576, 8),
            MEMBER(mtu_1, 584, 8),
            MEMBER(mtu_2, 592, 8),
            MEMBER(mtu_3, 600, 8),
            MEMBER(acct, 608, 16),
            MEMBER(route_ipv4, 624, 8),
            MEMBER(route_ipv4_count, 632, 4),
            MEMBER(route_ipv6, 640, 8),
            MEMBER(route_ipv6_count, 648, 4),
            MEMBER(presence_mask, 652, 4),
        });
}

TEST(record_layout, of_sub_route_is_fixed)
{
    using record = mava_tum_sub_route;
    expect_layout(sizeof(record), alignof(record), 56, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(ipv4_routes, 16, 8),
            MEMBER(ipv4_route_count, 24, 4),
            MEMBER(ipv6_routes, 32, 8),
            MEMBER(ipv6_route_count, 40, 4),
            MEMBER(field_6, 44, 4),
            MEMBER(presence_mask, 48, 1),
        });
}

} // namespace
