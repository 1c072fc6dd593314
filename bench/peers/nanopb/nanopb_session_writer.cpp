#include "peers/nanopb/nanopb_records.h"

namespace bench
{
namespace
{

using application = tum_nal_data_session_context;

void fill_v6(const application &record, bench_peer_SubscriberV6 &message)
{
    put(message.has_field_1, message.field_1, record.ipv6_value_1);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_2))
        put_bytes(message.has_field_2, message.field_2, record.ipv6_part_2);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_3)) {
        put_bytes(message.has_field_3, message.field_3, record.ipv6_part_3);
        put(message.has_field_5, message.field_5, record.ipv6_value_5);
    }
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_4))
        put_bytes(message.has_field_4, message.field_4, record.ipv6_part_4);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_6)) {
        put_bytes(message.has_field_6, message.field_6, record.ipv6_part_6);
        put(message.has_field_7, message.field_7, record.ipv6_value_7);
    }
}

void fill_addresses(const application &record, bench_peer_SessionContext &message)
{
    constexpr uint32_t any_ipv6 = TUM_NAL_FEATURE_IPV6_PART_2 | TUM_NAL_FEATURE_IPV6_PART_3 |
                                  TUM_NAL_FEATURE_IPV6_PART_4 | TUM_NAL_FEATURE_IPV6_PART_6;
    if (has_feature(record, TUM_NAL_FEATURE_IPV4) && record.ipv4_address != 0) {
        message.has_subscriber_v4 = true;
        bench_peer_SubscriberV4 &v4 = message.subscriber_v4;
        put(v4.has_field_1, v4.field_1, record.ipv4_value_1);
        put(v4.has_ipv4_address, v4.ipv4_address, swap_ipv4(record.ipv4_address));
    }
    message.has_subscriber_v6 = has_feature(record, any_ipv6);
    if (message.has_subscriber_v6)
        fill_v6(record, message.subscriber_v6);
}

void fill_ppp(const application &record, bench_peer_PppData &message)
{
    if (has_feature(record, TUM_NAL_FEATURE_PPP_1_4)) {
        put_nonzero(message.has_field_1, message.field_1, record.ppp_value_1);
        put_nonzero(message.has_field_4, message.field_4, record.ppp_value_4);
    }
    if (has_feature(record, TUM_NAL_FEATURE_PPP_2_3)) {
        put_nonzero(message.has_field_2, message.field_2, record.ppp_value_2);
        put_nonzero(message.has_field_3, message.field_3, record.ppp_value_3);
    }
    if (has_feature(record, TUM_NAL_FEATURE_PPP_IDENTIFIER))
        put_bytes(message.has_field_5, message.field_5, record.ppp_identifier);
    put_nonzero(message.has_field_6, message.field_6, record.ppp_value_6);
}

void fill_l2tp_end_points(const application &record, bench_peer_L2tpData &message)
{
    put(message.has_field_1, message.field_1, record.l2tp_kind);
    if (record.l2tp_kind == TUM_NAL_L2TP_IPV4) {
        put_nonzero(message.has_field_2, message.field_2, swap_ipv4(record.l2tp_ipv4_2));
        put_nonzero(message.has_field_3, message.field_3, swap_ipv4(record.l2tp_ipv4_3));
    } else if (record.l2tp_kind == TUM_NAL_L2TP_IPV6) {
        if (any_byte_set(record.l2tp_ipv6_4))
            put_bytes(message.has_field_4, message.field_4, record.l2tp_ipv6_4);
        if (any_byte_set(record.l2tp_ipv6_5))
            put_bytes(message.has_field_5, message.field_5, record.l2tp_ipv6_5);
    }
}

void fill_l2tp(const application &record, bench_peer_L2tpData &message)
{
    fill_l2tp_end_points(record, message);
    put_nonzero(message.has_field_6, message.field_6, record.l2tp_value_6);
    put_nonzero(message.has_field_7, message.field_7, record.l2tp_value_7);
    put_nonzero(message.has_field_8, message.field_8, record.l2tp_value_8);
    put_nonzero(message.has_field_9, message.field_9, record.l2tp_value_9);
    put_nonzero(message.has_field_10, message.field_10, record.l2tp_value_10);
    put_nonzero(message.has_field_11, message.field_11, record.l2tp_value_11);
    put_nonzero(message.has_field_12, message.field_12, record.l2tp_value_12);
    put_nonzero(message.has_field_13, message.field_13, record.l2tp_value_13);
    put_nonzero(message.has_field_14, message.field_14, record.l2tp_value_14);
    put_nonzero(message.has_field_15, message.field_15, record.l2tp_value_15);
    if (record.l2tp_value_15 != 0)
        put_nonzero(message.has_field_16, message.field_16, record.l2tp_value_16);
    put_nonzero(message.has_field_17, message.field_17, record.l2tp_value_17);
    if (record.l2tp_value_17 != 0)
        put_nonzero(message.has_field_18, message.field_18, record.l2tp_value_18);
    put_text(message.has_field_19, message.field_19, record.l2tp_name);
}

void fill_vlan(const application &record, bench_peer_SessionData &message)
{
    message.has_vlan = has_feature(record, TUM_NAL_FEATURE_VLAN_1 | TUM_NAL_FEATURE_VLAN_2);
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_1))
        put(message.vlan.has_field_1, message.vlan.field_1, record.vlan_value_1);
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_2))
        put(message.vlan.has_field_2, message.vlan.field_2, record.vlan_value_2);
}

void fill_session_data(const application &record, bench_peer_SessionData &message)
{
    const uint32_t kind = record.session_value_1;
    put_nonzero(message.has_field_1, message.field_1, record.session_data_value_1);
    put_nonzero(message.has_field_2, message.field_2, record.session_data_value_2);
    message.has_ppp = true;
    fill_ppp(record, message.ppp);
    message.has_l2tp = has_feature(record, TUM_NAL_FEATURE_L2TP);
    if (message.has_l2tp)
        fill_l2tp(record, message.l2tp);
    put_text(message.has_field_5, message.field_5, record.session_name);
    if (kind == TUM_NAL_SESSION_KIND_1 || kind == TUM_NAL_SESSION_KIND_4)
        put_bytes(message.has_field_6, message.field_6, record.session_identifier);
    put_text(message.has_field_7, message.field_7, record.session_label);
    put_text(message.has_field_8, message.field_8, record.session_text);
    if (kind == TUM_NAL_SESSION_KIND_4)
        put_nonzero(message.has_field_9, message.field_9, record.session_value_9);
    fill_vlan(record, message);
    put_nonzero(message.has_field_11, message.field_11, record.session_data_value_11);
}

void fill_qos(const tum_nal_data_qos_element &entry, bench_peer_SubscriberQos &message)
{
    put(message.has_field_1, message.field_1, entry.value_1);
    put_nonzero(message.has_field_2, message.field_2, entry.value_2);
    put_text(message.has_field_3, message.field_3, entry.text_3);
    put_text(message.has_field_4, message.field_4, entry.text_4);
    put_text(message.has_field_5, message.field_5, entry.text_5);
    put_nonzero(message.has_field_6, message.field_6, entry.value_6);
    put_nonzero(message.has_field_7, message.field_7, entry.value_7);
    put_nonzero(message.has_field_8, message.field_8, entry.value_8);
    put_text(message.has_field_10, message.field_10, entry.text_10);
    put_text(message.has_field_11, message.field_11, entry.text_11);
    put_text(message.has_field_12, message.field_12, entry.text_12);
}

void fill_acl(const application &record, bench_peer_SubscriberAcl &message)
{
    put(message.has_field_1, message.field_1, record.acl_value_1);
    put_text(message.has_field_2, message.field_2, record.acl_text_2);
    put_text(message.has_field_3, message.field_3, record.acl_text_3);
    put_text(message.has_field_4, message.field_4, record.acl_text_4);
    put_text(message.has_field_5, message.field_5, record.acl_text_5);
}

void fill_redirect(const application &record, bench_peer_SubscriberHttpr &message)
{
    put(message.has_field_1, message.field_1, record.redirect_value_1);
    put_text(message.has_field_2, message.field_2, record.redirect_text_2);
}

void fill_intercept(const application &record, bench_peer_SubscriberLi &message)
{
    put(message.has_field_1, message.field_1, record.intercept_value_1);
    put(message.has_field_2, message.field_2, record.intercept_value_2);
    put(message.has_field_3, message.field_3, record.intercept_value_3);
    put_bytes(message.has_field_4, message.field_4, record.intercept_identifier);
    put(message.has_field_5, message.field_5, record.intercept_value_5);
    put(message.has_field_6, message.field_6, record.intercept_value_6);
    put_nonzero(message.has_field_7, message.field_7, swap_ipv4(record.intercept_ipv4_address));
    if (any_byte_set(record.intercept_ipv6_address))
        put_bytes(message.has_field_8, message.field_8, record.intercept_ipv6_address);
}

void fill_lists(const application &record, bench_peer_SessionContext &message)
{
    if (has_feature(record, TUM_NAL_FEATURE_QOS)) {
        message.qos_count = record.qos_count;
        for (unsigned i = 0; i < record.qos_count; ++i)
            fill_qos(record.qos[i], message.qos[i]);
    }
    message.has_acl = has_feature(record, TUM_NAL_FEATURE_ACL);
    if (message.has_acl)
        fill_acl(record, message.acl);
    message.has_httpr = has_feature(record, TUM_NAL_FEATURE_REDIRECT);
    if (message.has_httpr)
        fill_redirect(record, message.httpr);
    message.has_li = has_feature(record, TUM_NAL_FEATURE_INTERCEPT);
    if (message.has_li)
        fill_intercept(record, message.li);
}

void fill_urpf(bool &has, bench_peer_SubscriberUrpf &message, uint32_t value_1, uint32_t value_2)
{
    has = true;
    put(message.has_field_1, message.field_1, value_1);
    put(message.has_field_2, message.field_2, value_2);
}

// ICMP or MTU.
template <class Message>
void fill_check(bool &has, Message &message, uint32_t value)
{
    has = true;
    put(message.has_field_1, message.field_1, value);
}

void fill_checks(const application &record, bench_peer_SessionContext &message)
{
    if (has_feature(record, TUM_NAL_FEATURE_URPF_1))
        fill_urpf(message.has_urpf_1, message.urpf_1, record.urpf_1_value_1, record.urpf_1_value_2);
    if (has_feature(record, TUM_NAL_FEATURE_URPF_2))
        fill_urpf(message.has_urpf_2, message.urpf_2, record.urpf_2_value_1, record.urpf_2_value_2);
    if (has_feature(record, TUM_NAL_FEATURE_ICMP_1))
        fill_check(message.has_icmp_1, message.icmp_1, record.icmp_1_value);
    if (has_feature(record, TUM_NAL_FEATURE_ICMP_2))
        fill_check(message.has_icmp_2, message.icmp_2, record.icmp_2_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_1))
        fill_check(message.has_mtu_1, message.mtu_1, record.mtu_1_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_2))
        fill_check(message.has_mtu_2, message.mtu_2, record.mtu_2_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_3))
        fill_check(message.has_mtu_3, message.mtu_3, record.mtu_3_value);
}

void fill_accounting(const application &record, bench_peer_SubscriberAcct &message)
{
    put(message.has_field_1, message.field_1, record.accounting_flags);
    if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_2) != 0)
        put(message.has_field_2, message.field_2, record.accounting_value_2);
    if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_3) != 0)
        put(message.has_field_3, message.field_3, record.accounting_value_3);
}

void fill_routes(const application &record, bench_peer_SessionContext &message)
{
    if (has_feature(record, TUM_NAL_FEATURE_IPV4_ROUTES)) {
        message.route_ipv4_count = record.ipv4_route_count;
        for (unsigned i = 0; i < record.ipv4_route_count; ++i)
            fill_peer(record.ipv4_routes[i], message.route_ipv4[i]);
    }
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_ROUTES)) {
        message.route_ipv6_count = record.ipv6_route_count;
        for (unsigned i = 0; i < record.ipv6_route_count; ++i)
            fill_peer(record.ipv6_routes[i], message.route_ipv6[i]);
    }
}

} // namespace

void fill_peer(const tum_nal_data_session_context &record, bench_peer_SessionContext &message)
{
    put(message.has_field_1, message.field_1, record.session_value_1);
    put(message.has_field_2, message.field_2, record.session_value_2);
    put(message.has_field_3, message.field_3, record.session_value_3);
    put(message.has_field_4, message.field_4, record.session_value_4);
    put(message.has_feature_mask, message.feature_mask, record.feature_mask);
    put(message.has_field_7, message.field_7, record.session_value_7);
    fill_addresses(record, message);
    message.has_session_data = true;
    fill_session_data(record, message.session_data);
    fill_lists(record, message);
    fill_checks(record, message);
    message.has_acct = has_feature(record, TUM_NAL_FEATURE_ACCOUNTING);
    if (message.has_acct)
        fill_accounting(record, message.acct);
    fill_routes(record, message);
}

} // namespace bench
