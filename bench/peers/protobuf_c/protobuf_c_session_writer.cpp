#include "peers/protobuf_c/protobuf_c_records.h"

namespace bench
{
namespace
{

using application = tum_nal_data_session_context;

void fill_v6(const application &record, Bench__Peer__SubscriberV6 &message)
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

void fill_addresses(const application &record, Bench__Peer__SessionContext &message, session_parts &parts)
{
    constexpr uint32_t any_ipv6 = TUM_NAL_FEATURE_IPV6_PART_2 | TUM_NAL_FEATURE_IPV6_PART_3 |
                                  TUM_NAL_FEATURE_IPV6_PART_4 | TUM_NAL_FEATURE_IPV6_PART_6;
    if (has_feature(record, TUM_NAL_FEATURE_IPV4) && record.ipv4_address != 0) {
        Bench__Peer__SubscriberV4 &v4 = attach(message.subscriber_v4, parts.v4, bench__peer__subscriber_v4__init);
        put(v4.has_field_1, v4.field_1, record.ipv4_value_1);
        put(v4.has_ipv4_address, v4.ipv4_address, swap_ipv4(record.ipv4_address));
    }
    if (has_feature(record, any_ipv6))
        fill_v6(record, attach(message.subscriber_v6, parts.v6, bench__peer__subscriber_v6__init));
}

void fill_ppp(const application &record, Bench__Peer__PppData &message)
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

void fill_l2tp_end_points(const application &record, Bench__Peer__L2tpData &message)
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

void fill_l2tp(const application &record, Bench__Peer__L2tpData &message)
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
    put_text(message.field_19, record.l2tp_name);
}

void fill_vlan(const application &record, Bench__Peer__VlanInfo &message)
{
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_1))
        put(message.has_field_1, message.field_1, record.vlan_value_1);
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_2))
        put(message.has_field_2, message.field_2, record.vlan_value_2);
}

void fill_session_data(const application &record, Bench__Peer__SessionData &message, session_parts &parts)
{
    const uint32_t kind = record.session_value_1;
    put_nonzero(message.has_field_1, message.field_1, record.session_data_value_1);
    put_nonzero(message.has_field_2, message.field_2, record.session_data_value_2);
    fill_ppp(record, attach(message.ppp, parts.ppp, bench__peer__ppp_data__init));
    if (has_feature(record, TUM_NAL_FEATURE_L2TP))
        fill_l2tp(record, attach(message.l2tp, parts.l2tp, bench__peer__l2tp_data__init));
    put_text(message.field_5, record.session_name);
    if (kind == TUM_NAL_SESSION_KIND_1 || kind == TUM_NAL_SESSION_KIND_4)
        put_bytes(message.has_field_6, message.field_6, record.session_identifier);
    put_text(message.field_7, record.session_label);
    put_text(message.field_8, record.session_text);
    if (kind == TUM_NAL_SESSION_KIND_4)
        put_nonzero(message.has_field_9, message.field_9, record.session_value_9);
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_1 | TUM_NAL_FEATURE_VLAN_2))
        fill_vlan(record, attach(message.vlan, parts.vlan, bench__peer__vlan_info__init));
    put_nonzero(message.has_field_11, message.field_11, record.session_data_value_11);
}

void fill_qos(const tum_nal_data_qos_element &entry, Bench__Peer__SubscriberQos &message)
{
    put(message.has_field_1, message.field_1, entry.value_1);
    put_nonzero(message.has_field_2, message.field_2, entry.value_2);
    put_text(message.field_3, entry.text_3);
    put_text(message.field_4, entry.text_4);
    put_text(message.field_5, entry.text_5);
    put_nonzero(message.has_field_6, message.field_6, entry.value_6);
    put_nonzero(message.has_field_7, message.field_7, entry.value_7);
    put_nonzero(message.has_field_8, message.field_8, entry.value_8);
    put_text(message.field_10, entry.text_10);
    put_text(message.field_11, entry.text_11);
    put_text(message.field_12, entry.text_12);
}

void fill_acl(const application &record, Bench__Peer__SubscriberAcl &message)
{
    put(message.has_field_1, message.field_1, record.acl_value_1);
    put_text(message.field_2, record.acl_text_2);
    put_text(message.field_3, record.acl_text_3);
    put_text(message.field_4, record.acl_text_4);
    put_text(message.field_5, record.acl_text_5);
}

void fill_redirect(const application &record, Bench__Peer__SubscriberHttpr &message)
{
    put(message.has_field_1, message.field_1, record.redirect_value_1);
    put_text(message.field_2, record.redirect_text_2);
}

void fill_intercept(const application &record, Bench__Peer__SubscriberLi &message)
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

void fill_lists(const application &record, Bench__Peer__SessionContext &message, session_parts &parts)
{
    if (has_feature(record, TUM_NAL_FEATURE_QOS)) {
        message.n_qos = record.qos_count;
        message.qos = parts.qos.pointers;
        for (unsigned i = 0; i < record.qos_count; ++i) {
            fill_qos(record.qos[i], attach(message.qos[i], parts.qos.messages[i], bench__peer__subscriber_qos__init));
        }
    }
    if (has_feature(record, TUM_NAL_FEATURE_ACL))
        fill_acl(record, attach(message.acl, parts.acl, bench__peer__subscriber_acl__init));
    if (has_feature(record, TUM_NAL_FEATURE_REDIRECT))
        fill_redirect(record, attach(message.httpr, parts.httpr, bench__peer__subscriber_httpr__init));
    if (has_feature(record, TUM_NAL_FEATURE_INTERCEPT))
        fill_intercept(record, attach(message.li, parts.li, bench__peer__subscriber_li__init));
}

void fill_urpf(Bench__Peer__SubscriberUrpf &message, uint32_t value_1, uint32_t value_2)
{
    put(message.has_field_1, message.field_1, value_1);
    put(message.has_field_2, message.field_2, value_2);
}

// ICMP or MTU.
template <class Message>
void fill_check(Message &message, uint32_t value)
{
    put(message.has_field_1, message.field_1, value);
}

void fill_checks(const application &record, Bench__Peer__SessionContext &message, session_parts &parts)
{
    if (has_feature(record, TUM_NAL_FEATURE_URPF_1))
        fill_urpf(attach(message.urpf_1, parts.urpf[0], bench__peer__subscriber_urpf__init), record.urpf_1_value_1,
            record.urpf_1_value_2);
    if (has_feature(record, TUM_NAL_FEATURE_URPF_2))
        fill_urpf(attach(message.urpf_2, parts.urpf[1], bench__peer__subscriber_urpf__init), record.urpf_2_value_1,
            record.urpf_2_value_2);
    if (has_feature(record, TUM_NAL_FEATURE_ICMP_1))
        fill_check(attach(message.icmp_1, parts.icmp[0], bench__peer__subscriber_icmp__init), record.icmp_1_value);
    if (has_feature(record, TUM_NAL_FEATURE_ICMP_2))
        fill_check(attach(message.icmp_2, parts.icmp[1], bench__peer__subscriber_icmp__init), record.icmp_2_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_1))
        fill_check(attach(message.mtu_1, parts.mtu[0], bench__peer__subscriber_mtu__init), record.mtu_1_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_2))
        fill_check(attach(message.mtu_2, parts.mtu[1], bench__peer__subscriber_mtu__init), record.mtu_2_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_3))
        fill_check(attach(message.mtu_3, parts.mtu[2], bench__peer__subscriber_mtu__init), record.mtu_3_value);
}

void fill_accounting(const application &record, Bench__Peer__SubscriberAcct &message)
{
    put(message.has_field_1, message.field_1, record.accounting_flags);
    if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_2) != 0)
        put(message.has_field_2, message.field_2, record.accounting_value_2);
    if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_3) != 0)
        put(message.has_field_3, message.field_3, record.accounting_value_3);
}

void fill_routes(const application &record, Bench__Peer__SessionContext &message, session_parts &parts)
{
    if (has_feature(record, TUM_NAL_FEATURE_IPV4_ROUTES)) {
        message.n_route_ipv4 = record.ipv4_route_count;
        message.route_ipv4 = parts.ipv4_routes.pointers;
        for (unsigned i = 0; i < record.ipv4_route_count; ++i) {
            fill_peer(record.ipv4_routes[i],
                attach(message.route_ipv4[i], parts.ipv4_routes.messages[i], bench__peer__subscriber_route_ipv4__init));
        }
    }
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_ROUTES)) {
        message.n_route_ipv6 = record.ipv6_route_count;
        message.route_ipv6 = parts.ipv6_routes.pointers;
        for (unsigned i = 0; i < record.ipv6_route_count; ++i) {
            fill_peer(record.ipv6_routes[i],
                attach(message.route_ipv6[i], parts.ipv6_routes.messages[i], bench__peer__subscriber_route_ipv6__init));
        }
    }
}

} // namespace

void fill_peer(const tum_nal_data_session_context &record, Bench__Peer__SessionContext &message, session_parts &parts)
{
    put(message.has_field_1, message.field_1, record.session_value_1);
    put(message.has_field_2, message.field_2, record.session_value_2);
    put(message.has_field_3, message.field_3, record.session_value_3);
    put(message.has_field_4, message.field_4, record.session_value_4);
    put(message.has_feature_mask, message.feature_mask, record.feature_mask);
    put(message.has_field_7, message.field_7, record.session_value_7);
    fill_addresses(record, message, parts);
    fill_session_data(record, attach(message.session_data, parts.session_data, bench__peer__session_data__init), parts);
    fill_lists(record, message, parts);
    fill_checks(record, message, parts);
    if (has_feature(record, TUM_NAL_FEATURE_ACCOUNTING))
        fill_accounting(record, attach(message.acct, parts.acct, bench__peer__subscriber_acct__init));
    fill_routes(record, message, parts);
}

} // namespace bench
