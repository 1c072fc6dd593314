#include "peers/content/content.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

namespace bench
{
namespace
{

template <size_t Bytes>
void set_text(char (&array)[Bytes], const char *text)
{
    std::snprintf(array, Bytes, "%s", text);
}

template <size_t Bytes>
void set_numbered_text(char (&array)[Bytes], const char *text, unsigned number)
{
    std::snprintf(array, Bytes, "%s-%02u", text, number);
}

// 2001:db8:<group>::<last>, from the range for documentation.
void set_ipv6(uint8_t (&address)[16], uint16_t group, uint8_t last)
{
    const uint8_t prefix[] = {0x20, 0x01, 0x0d, 0xb8, static_cast<uint8_t>(group >> 8), static_cast<uint8_t>(group)};
    std::memcpy(address, prefix, sizeof prefix);
    address[15] = last;
}

template <size_t Bytes>
void set_identifier(uint8_t (&identifier)[Bytes], uint8_t first)
{
    for (size_t i = 0; i < Bytes; ++i)
        identifier[i] = static_cast<uint8_t>(first + 0x11 * i);
}

constexpr uint32_t ipv4_documentation_net_1 = 0xC0000200; // 192.0.2.0
constexpr uint32_t ipv4_documentation_net_2 = 0xC6336400; // 198.51.100.0
constexpr uint32_t ipv4_documentation_net_3 = 0xCB007100; // 203.0.113.0

// Texts stay within the 32 and 64 characters that a received route keeps; field 8 stays zero in IPv4 routes, where a
// non-zero one would be sent as field 7.
void fill_ipv4_route(tum_nal_data_ipv4_route &route, unsigned number)
{
    route.field_1 = number + 1;
    set_numbered_text(route.field_2, "vrf-residential", number);
    route.field_3 = ipv4_documentation_net_2 + number;
    route.field_4 = 32;
    route.field_5 = ipv4_documentation_net_3 + 1;
    set_numbered_text(route.field_6, "vrf-wholesale", number);
    route.field_7 = 100 + number;
    set_numbered_text(route.field_9, "route to the customer's own network", number);
}

void fill_ipv6_route(tum_nal_data_ipv6_route &route, unsigned number)
{
    route.field_1 = number + 1;
    set_numbered_text(route.field_2, "vrf-residential", number);
    set_ipv6(route.field_3, static_cast<uint16_t>(0x100 + number), 0);
    route.field_4 = 56;
    set_ipv6(route.field_5, 0x1, 1);
    set_numbered_text(route.field_6, "vrf-wholesale", number);
    route.field_7 = 100 + number;
    route.field_8 = 70000 + number;
    set_numbered_text(route.field_9, "route to the customer's own network", number);
}

void fill_identity(tum_nal_data_session_context &record)
{
    record.session_value_1 = TUM_NAL_SESSION_KIND_4;
    record.session_value_2 = 0x2A01;
    record.session_value_3 = 4711;
    record.session_value_4 = 1;
    record.session_value_7 = 86400;
    record.ipv4_value_1 = 24;
    record.ipv4_address = ipv4_documentation_net_1 + 10;
    record.ipv6_value_1 = 64;
    set_ipv6(record.ipv6_part_3, 0x42, 0x10);
    record.ipv6_value_5 = 56;
}

void fill_ppp_session(tum_nal_data_session_context &record)
{
    record.session_data_value_1 = 7;
    record.session_data_value_2 = 0x0000001234ABCDEF;
    record.ppp_value_1 = 1492;
    record.ppp_value_2 = 0x5AFE1234;
    record.ppp_value_3 = 0x1234BEEF;
    record.ppp_value_4 = 1;
    set_identifier(record.ppp_identifier, 0x02);
    record.ppp_value_6 = 1500;
    set_text(record.session_name, "line-0042@access.example.net");
    set_identifier(record.session_identifier, 0x10);
    set_text(record.session_label, "olt-07/1/3/42");
    set_text(record.session_text, "residential fibre 250/50");
    record.session_value_9 = 300;
    record.vlan_value_1 = 1042;
    record.vlan_value_2 = 7;
    record.session_data_value_11 = 3600;
}

void fill_typical_qos_entry(tum_nal_data_qos_element &entry, unsigned number)
{
    entry.value_1 = number + 1;
    entry.value_2 = 250000;
    set_text(entry.text_3, number == 0 ? "ingress-residential" : "egress-residential");
    set_text(entry.text_4, number == 0 ? "police-upstream-50m" : "shape-downstream-250m");
    entry.value_8 = 50000;
}

void fill_full_qos_entry(tum_nal_data_qos_element &entry, unsigned number)
{
    entry.value_1 = number + 1;
    entry.value_2 = 250000 + number;
    set_numbered_text(entry.text_3, "policy-residential-fibre", number);
    set_numbered_text(entry.text_4,
        "service=video,burst=128000,rate=250000000,mode=two-rate-three-colour,"
        "exceed=remark,violate=drop,account=separate,aggregate=port,burst-excess=256000,"
        "overhead=ethernet-two-tags,match=dscp-af41-af42-af43,report-interval=300,class",
        number);
    set_numbered_text(entry.text_5,
        "parent=port-shaper-10g,weight=40,priority=high,queue-limit=64000,"
        "random-detect=dscp,minimum=20,maximum=60,buffer-share=dynamic,delay-target=20ms,"
        "burst-tolerance=4096,shaping=hierarchical,fallback=best-effort,child",
        number);
    entry.value_6 = 46;
    entry.value_7 = static_cast<uint16_t>(1000 + number);
    entry.value_8 = 50000;
    set_numbered_text(entry.text_10, "group-premium-north", number);
    set_numbered_text(entry.text_11, "template-triple-play", number);
    set_numbered_text(entry.text_12, "owner-access-division", number);
}

void fill_typical_features(tum_nal_data_session_context &record)
{
    record.qos_count = 2;
    for (unsigned i = 0; i < record.qos_count; ++i)
        fill_typical_qos_entry(record.qos[i], i);
    record.acl_value_1 = 3;
    set_text(record.acl_text_2, "acl-residential-in");
    record.urpf_1_value_1 = 1;
    record.urpf_1_value_2 = 2;
    record.mtu_1_value = 1492;
    record.accounting_flags = TUM_NAL_ACCOUNTING_VALUE_2 | TUM_NAL_ACCOUNTING_VALUE_3;
    record.accounting_value_2 = 900;
    record.accounting_value_3 = 1800;
}

void fill_remaining_ipv6(tum_nal_data_session_context &record)
{
    set_ipv6(record.ipv6_part_2, 0x41, 0x01);
    set_ipv6(record.ipv6_part_4, 0x43, 0x20);
    set_ipv6(record.ipv6_part_6, 0x44, 0x30);
    record.ipv6_value_7 = 128;
}

void fill_l2tp(tum_nal_data_session_context &record)
{
    record.l2tp_kind = TUM_NAL_L2TP_IPV6;
    set_ipv6(record.l2tp_ipv6_4, 0xA0, 0x01);
    set_ipv6(record.l2tp_ipv6_5, 0xA1, 0x02);
    record.l2tp_value_6 = 1701;
    record.l2tp_value_7 = 1702;
    record.l2tp_value_8 = 40001;
    record.l2tp_value_9 = 40002;
    record.l2tp_value_10 = 2;
    record.l2tp_value_11 = 11;
    record.l2tp_value_12 = 1200;
    record.l2tp_value_13 = 130000;
    record.l2tp_value_14 = 14000000;
    record.l2tp_value_15 = 0x15151515;
    record.l2tp_value_16 = 0xF6161616;
    record.l2tp_value_17 = 17;
    record.l2tp_value_18 = 1800;
    set_text(record.l2tp_name, "lac-north-07.example.net");
}

void fill_remaining_lists(tum_nal_data_session_context &record)
{
    set_text(record.acl_text_3, "acl-residential-out");
    set_text(record.acl_text_4, "acl-residential-ipv6-in");
    set_text(record.acl_text_5, "acl-residential-ipv6-out");
    record.redirect_value_1 = 1;
    set_text(record.redirect_text_2, "http://portal.example.net/welcome?line=0042&reason=payment-overdue");
}

void fill_intercept(tum_nal_data_session_context &record)
{
    record.intercept_value_1 = 1;
    record.intercept_value_2 = 200;
    record.intercept_value_3 = 30000;
    set_identifier(record.intercept_identifier, 0x80);
    record.intercept_value_5 = 5000000;
    record.intercept_value_6 = 6;
    record.intercept_ipv4_address = ipv4_documentation_net_3 + 99;
    set_ipv6(record.intercept_ipv6_address, 0xB0, 0x63);
}

void fill_remaining_checks(tum_nal_data_session_context &record)
{
    record.urpf_2_value_1 = 2;
    record.urpf_2_value_2 = 3;
    record.icmp_1_value = 1;
    record.icmp_2_value = 200;
    record.mtu_2_value = 1500;
    record.mtu_3_value = 9000;
}

constexpr uint32_t typical_features =
    TUM_NAL_FEATURE_IPV4 | TUM_NAL_FEATURE_IPV6_PART_3 | TUM_NAL_FEATURE_PPP_1_4 | TUM_NAL_FEATURE_PPP_2_3 |
    TUM_NAL_FEATURE_PPP_IDENTIFIER | TUM_NAL_FEATURE_VLAN_1 | TUM_NAL_FEATURE_VLAN_2 | TUM_NAL_FEATURE_QOS |
    TUM_NAL_FEATURE_ACL | TUM_NAL_FEATURE_URPF_1 | TUM_NAL_FEATURE_MTU_1 | TUM_NAL_FEATURE_ACCOUNTING;

constexpr uint32_t full_features = typical_features | TUM_NAL_FEATURE_IPV6_PART_2 | TUM_NAL_FEATURE_IPV6_PART_4 |
                                   TUM_NAL_FEATURE_IPV6_PART_6 | TUM_NAL_FEATURE_L2TP | TUM_NAL_FEATURE_REDIRECT |
                                   TUM_NAL_FEATURE_INTERCEPT | TUM_NAL_FEATURE_URPF_2 | TUM_NAL_FEATURE_ICMP_1 |
                                   TUM_NAL_FEATURE_ICMP_2 | TUM_NAL_FEATURE_MTU_2 | TUM_NAL_FEATURE_MTU_3 |
                                   TUM_NAL_FEATURE_IPV4_ROUTES | TUM_NAL_FEATURE_IPV6_ROUTES;

} // namespace

void fill_typical_session(tum_nal_data_session_context &record)
{
    record.feature_mask = typical_features;
    fill_identity(record);
    fill_ppp_session(record);
    fill_typical_features(record);
}

void fill_full_session(tum_nal_data_session_context &record)
{
    fill_typical_session(record);
    record.feature_mask = full_features;
    fill_remaining_ipv6(record);
    fill_l2tp(record);
    record.qos_count = TUM_NAL_SESSION_QOS_ENTRIES;
    for (unsigned i = 0; i < record.qos_count; ++i)
        fill_full_qos_entry(record.qos[i], i);
    fill_remaining_lists(record);
    fill_intercept(record);
    fill_remaining_checks(record);
    record.ipv4_route_count = TUM_NAL_SESSION_IPV4_ROUTES;
    for (unsigned i = 0; i < record.ipv4_route_count; ++i)
        fill_ipv4_route(record.ipv4_routes[i], i);
    record.ipv6_route_count = TUM_NAL_SESSION_IPV6_ROUTES;
    for (unsigned i = 0; i < record.ipv6_route_count; ++i)
        fill_ipv6_route(record.ipv6_routes[i], i);
}

void fill_route_batch(tum_nal_data_sub_route &record)
{
    record.field_1 = 1;
    record.field_2 = 4242;
    record.field_3 = 99;
    record.ipv4_route_count = TUM_NAL_SUB_ROUTE_IPV4_ROUTES;
    for (unsigned i = 0; i < record.ipv4_route_count; ++i)
        fill_ipv4_route(record.ipv4_routes[i], i);
    record.ipv6_route_count = TUM_NAL_SUB_ROUTE_IPV6_ROUTES;
    for (unsigned i = 0; i < record.ipv6_route_count; ++i)
        fill_ipv6_route(record.ipv6_routes[i], i);
    record.field_6 = 6;
}

namespace
{

// Byte and packet counters of a busy line: some small, some that fill 32 bits.
void fill_block(tum_nal_data_stats_block &block, uint32_t first)
{
    for (uint32_t i = 0; i < TUM_NAL_STATS_COUNTERS; ++i)
        block.counter[i] = (first + i) * (i % 3 == 0 ? 7u : i % 3 == 1 ? 12345u : 98765431u);
}

} // namespace

void fill_subscriber_stats(tum_nal_data_subscriber_stats &record)
{
    record.value_1 = 0x0000001234ABCDEF;
    record.value_2 = 4711;
    record.value_3 = 86400;
    record.value_4 = 3;
    record.value_5 = 1;
    record.value_6 = 2;
    fill_block(record.block_7, 1);
    record.service_count = TUM_NAL_STATS_SERVICES;
    for (unsigned i = 0; i < record.service_count; ++i) {
        std::snprintf(record.services[i].name, sizeof record.services[i].name, "service-triple-play-%02u", i);
        fill_block(record.services[i].stats, 2 + i);
    }
    record.block_10_switch = 1;
    fill_block(record.block_10, 3);
    record.block_12_switch = 1;
    fill_block(record.block_12, 4);
}

void fill_session_states(tum_nal_data_rec_sess_req &record)
{
    record.field_1 = 17;
    record.field_2 = 3;
    record.field_3_count = TUM_NAL_REC_SESSION_STATES;
    for (uint32_t i = 0; i < record.field_3_count; ++i) {
        record.field_3[i].field_1 = 1 + i % 4;
        record.field_3[i].field_2 = 0x0000001234ABC000 + i;
        record.field_3[i].field_3 = 86400 + 977 * i;
    }
    std::snprintf(record.field_4, sizeof record.field_4, "bng-north-07.example.net");
    std::snprintf(record.field_5, sizeof record.field_5, "group-residential-north");
}

void fill_group_start(tum_nal_data_srg_group_rec_start_req &record)
{
    record.field_1 = 4711;
    record.field_2 = 3;
    record.field_3 = 86400;
}

} // namespace bench
