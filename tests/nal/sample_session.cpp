#include "nal/sample_session.h"

#include "nal/adapter_calls.h"

#include <string>

namespace mava_tum_test
{

using session = tum_nal_data_session_context;

namespace
{

// Consecutive bytes, none of them zero.
template <std::size_t size>
void fill_bytes(uint8_t (&array)[size], uint8_t first)
{
    for (std::size_t i = 0; i < size; ++i)
        array[i] = static_cast<uint8_t>((first + i) % 255 + 1);
}

void fill_addresses(session &s)
{
    s.ipv4_value_1 = 8;
    s.ipv4_address = 0xC0000201;
    s.ipv6_value_1 = 11;
    fill_bytes(s.ipv6_part_2, 12);
    fill_bytes(s.ipv6_part_3, 13);
    fill_bytes(s.ipv6_part_4, 14);
    fill_bytes(s.ipv6_part_6, 15);
    s.ipv6_value_5 = 48;
    s.ipv6_value_7 = 56;
}

void fill_l2tp(session &s)
{
    s.l2tp_kind = TUM_NAL_L2TP_IPV4;
    s.l2tp_ipv4_2 = 0xC6336402;
    s.l2tp_ipv4_3 = 0xC6336403;
    s.l2tp_value_6 = 0x1006;
    s.l2tp_value_7 = 0x1007;
    s.l2tp_value_8 = 0x1008;
    s.l2tp_value_9 = 0x1009;
    s.l2tp_value_10 = 0x10;
    s.l2tp_value_11 = 0x10000011;
    s.l2tp_value_12 = 0x10000012;
    s.l2tp_value_13 = 0x10000013;
    s.l2tp_value_14 = 0x10000014;
    s.l2tp_value_15 = 0x10000015;
    s.l2tp_value_16 = 0x10000016;
    s.l2tp_value_17 = 0x10000017;
    s.l2tp_value_18 = 0x10000018;
    fill_text(s.l2tp_name, 'L');
}

void fill_session_data(session &s)
{
    s.session_data_value_1 = 18;
    s.session_data_value_2 = 0x0123456789ABCDEF;
    s.ppp_value_1 = 0x20000001;
    s.ppp_value_2 = 0x20000002;
    s.ppp_value_3 = 0x20000003;
    s.ppp_value_4 = 0x20000004;
    fill_bytes(s.ppp_identifier, 21);
    s.ppp_value_6 = 0x2006;
    fill_text(s.session_name, 'N');
    fill_bytes(s.session_identifier, 33);
    fill_text(s.session_label, 'B');
    fill_text(s.session_text, 'T');
    s.session_value_9 = 0x3009;
    s.vlan_value_1 = 4001;
    s.vlan_value_2 = 4002;
    s.session_data_value_11 = 38;
}

void fill_qos(tum_nal_data_qos_element &qos, uint8_t seed)
{
    qos.value_1 = 0x40000000u + seed;
    qos.value_2 = 0x41000000u + seed;
    fill_text(qos.text_3, 'c');
    fill_text(qos.text_4, 'd');
    fill_text(qos.text_5, 'e');
    qos.value_6 = static_cast<uint16_t>(0x4600u + seed);
    qos.value_7 = static_cast<uint16_t>(0x4700u + seed);
    qos.value_8 = 0x48000000u + seed;
    fill_text(qos.text_12, 'l');
    fill_text(qos.text_10, 'j');
    fill_text(qos.text_11, 'k');
}

void fill_policies(session &s)
{
    s.acl_value_1 = 41;
    fill_text(s.acl_text_2, '2');
    fill_text(s.acl_text_3, '3');
    fill_text(s.acl_text_4, '4');
    fill_text(s.acl_text_5, '5');
    s.redirect_value_1 = 43;
    fill_text(s.redirect_text_2, 'R');
    s.intercept_value_1 = 451;
    s.intercept_value_2 = 452;
    s.intercept_value_3 = 0x4603;
    fill_bytes(s.intercept_identifier, 47);
    s.intercept_value_5 = 485;
    s.intercept_value_6 = 486;
    s.intercept_ipv4_address = 0xCB007149;
    fill_bytes(s.intercept_ipv6_address, 50);
}

void fill_limits(session &s)
{
    s.urpf_1_value_1 = 511;
    s.urpf_1_value_2 = 512;
    s.urpf_2_value_1 = 521;
    s.urpf_2_value_2 = 522;
    s.icmp_1_value = 53;
    s.icmp_2_value = 54;
    s.mtu_1_value = 1500;
    s.mtu_2_value = 1492;
    s.mtu_3_value = 1280;
    s.accounting_flags = TUM_NAL_ACCOUNTING_VALUE_2 | TUM_NAL_ACCOUNTING_VALUE_3;
    s.accounting_value_2 = 592;
    s.accounting_value_3 = 593;
}

void fill_lists(session &s)
{
    s.qos_count = TUM_NAL_SESSION_QOS_ENTRIES;
    for (uint8_t i = 0; i < TUM_NAL_SESSION_QOS_ENTRIES; ++i)
        fill_qos(s.qos[i], i);
    s.ipv4_route_count = TUM_NAL_SESSION_IPV4_ROUTES;
    for (uint8_t i = 0; i < TUM_NAL_SESSION_IPV4_ROUTES; ++i)
        s.ipv4_routes[i] = full_ipv4_route(i);
    s.ipv6_route_count = TUM_NAL_SESSION_IPV6_ROUTES;
    for (uint8_t i = 0; i < TUM_NAL_SESSION_IPV6_ROUTES; ++i)
        s.ipv6_routes[i] = full_ipv6_route(i);
}

} // namespace

tum_nal_data_ipv4_route full_ipv4_route(uint8_t seed)
{
    auto route = zero_record<tum_nal_data_ipv4_route>();
    route.field_1 = 0x50000000u + seed;
    fill_text(route.field_2, 'f', 32);
    route.field_3 = 0xC0000200u + seed;
    route.field_4 = 24;
    route.field_5 = 0xC6336400u + seed;
    fill_text(route.field_6, 'g', 32);
    route.field_7 = 0x57000000u + seed;
    fill_text(route.field_9, 'h', 64);
    return route;
}

tum_nal_data_ipv6_route full_ipv6_route(uint8_t seed)
{
    auto route = zero_record<tum_nal_data_ipv6_route>();
    route.field_1 = 0x60000000u + seed;
    fill_text(route.field_2, 'p', 32);
    fill_bytes(route.field_3, seed);
    route.field_4 = 64;
    fill_bytes(route.field_5, static_cast<uint8_t>(seed + 100));
    fill_text(route.field_6, 'q', 32);
    route.field_7 = 0x67000000u + seed;
    route.field_8 = 0x68000000u + seed;
    fill_text(route.field_9, 'r', 64);
    return route;
}

session full_session()
{
    session s = zero_record<session>();
    s.session_value_1 = TUM_NAL_SESSION_KIND_4;
    s.session_value_2 = 0x70000002;
    s.session_value_3 = 0x70000003;
    s.session_value_4 = 0x70000004;
    s.feature_mask = 0xFFFFFFFF;
    s.session_value_7 = 0x70000007;
    fill_addresses(s);
    fill_session_data(s);
    fill_l2tp(s);
    fill_policies(s);
    fill_limits(s);
    fill_lists(s);
    return s;
}

tum_nal_data_sub_route full_routes()
{
    auto record = zero_record<tum_nal_data_sub_route>();
    record.field_1 = 0x10000001;
    record.field_2 = 0x1002;
    record.field_3 = 0x10000003;
    record.ipv4_route_count = TUM_NAL_SUB_ROUTE_IPV4_ROUTES;
    for (uint8_t i = 0; i < TUM_NAL_SUB_ROUTE_IPV4_ROUTES; ++i)
        record.ipv4_routes[i] = full_ipv4_route(i);
    record.ipv6_route_count = TUM_NAL_SUB_ROUTE_IPV6_ROUTES;
    for (uint8_t i = 0; i < TUM_NAL_SUB_ROUTE_IPV6_ROUTES; ++i)
        record.ipv6_routes[i] = full_ipv6_route(i);
    record.field_6 = 0x10000006;
    return record;
}

} // namespace mava_tum_test
