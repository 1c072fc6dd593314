#include "peers/protobuf/protobuf_records.h"

namespace bench
{
namespace
{

using application = tum_nal_data_session_context;

void fill_v6(const application &record, peer::SubscriberV6 &message)
{
    message.set_field_1(record.ipv6_value_1);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_2))
        assign_bytes(message.mutable_field_2(), record.ipv6_part_2);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_3)) {
        assign_bytes(message.mutable_field_3(), record.ipv6_part_3);
        message.set_field_5(record.ipv6_value_5);
    }
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_4))
        assign_bytes(message.mutable_field_4(), record.ipv6_part_4);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_6)) {
        assign_bytes(message.mutable_field_6(), record.ipv6_part_6);
        message.set_field_7(record.ipv6_value_7);
    }
}

void fill_addresses(const application &record, peer::SessionContext &message)
{
    constexpr uint32_t any_ipv6 = TUM_NAL_FEATURE_IPV6_PART_2 | TUM_NAL_FEATURE_IPV6_PART_3 |
                                  TUM_NAL_FEATURE_IPV6_PART_4 | TUM_NAL_FEATURE_IPV6_PART_6;
    if (has_feature(record, TUM_NAL_FEATURE_IPV4) && record.ipv4_address != 0) {
        peer::SubscriberV4 &v4 = *message.mutable_subscriber_v4();
        v4.set_field_1(record.ipv4_value_1);
        v4.set_ipv4_address(swap_ipv4(record.ipv4_address));
    }
    if (has_feature(record, any_ipv6))
        fill_v6(record, *message.mutable_subscriber_v6());
}

void fill_ppp(const application &record, peer::PppData &message)
{
    if (has_feature(record, TUM_NAL_FEATURE_PPP_1_4) && record.ppp_value_1 != 0)
        message.set_field_1(record.ppp_value_1);
    if (has_feature(record, TUM_NAL_FEATURE_PPP_2_3) && record.ppp_value_2 != 0)
        message.set_field_2(record.ppp_value_2);
    if (has_feature(record, TUM_NAL_FEATURE_PPP_2_3) && record.ppp_value_3 != 0)
        message.set_field_3(record.ppp_value_3);
    if (has_feature(record, TUM_NAL_FEATURE_PPP_1_4) && record.ppp_value_4 != 0)
        message.set_field_4(record.ppp_value_4);
    if (has_feature(record, TUM_NAL_FEATURE_PPP_IDENTIFIER))
        assign_bytes(message.mutable_field_5(), record.ppp_identifier);
    if (record.ppp_value_6 != 0)
        message.set_field_6(record.ppp_value_6);
}

void fill_l2tp_end_points(const application &record, peer::L2tpData &message)
{
    message.set_field_1(record.l2tp_kind);
    if (record.l2tp_kind == TUM_NAL_L2TP_IPV4) {
        if (record.l2tp_ipv4_2 != 0)
            message.set_field_2(swap_ipv4(record.l2tp_ipv4_2));
        if (record.l2tp_ipv4_3 != 0)
            message.set_field_3(swap_ipv4(record.l2tp_ipv4_3));
    } else if (record.l2tp_kind == TUM_NAL_L2TP_IPV6) {
        if (any_byte_set(record.l2tp_ipv6_4))
            assign_bytes(message.mutable_field_4(), record.l2tp_ipv6_4);
        if (any_byte_set(record.l2tp_ipv6_5))
            assign_bytes(message.mutable_field_5(), record.l2tp_ipv6_5);
    }
}

void fill_l2tp_values(const application &record, peer::L2tpData &message)
{
    if (record.l2tp_value_6 != 0)
        message.set_field_6(record.l2tp_value_6);
    if (record.l2tp_value_7 != 0)
        message.set_field_7(record.l2tp_value_7);
    if (record.l2tp_value_8 != 0)
        message.set_field_8(record.l2tp_value_8);
    if (record.l2tp_value_9 != 0)
        message.set_field_9(record.l2tp_value_9);
    if (record.l2tp_value_10 != 0)
        message.set_field_10(record.l2tp_value_10);
    if (record.l2tp_value_11 != 0)
        message.set_field_11(record.l2tp_value_11);
    if (record.l2tp_value_12 != 0)
        message.set_field_12(record.l2tp_value_12);
    if (record.l2tp_value_13 != 0)
        message.set_field_13(record.l2tp_value_13);
    if (record.l2tp_value_14 != 0)
        message.set_field_14(record.l2tp_value_14);
}

void fill_l2tp_pairs(const application &record, peer::L2tpData &message)
{
    if (record.l2tp_value_15 != 0) {
        message.set_field_15(record.l2tp_value_15);
        if (record.l2tp_value_16 != 0)
            message.set_field_16(record.l2tp_value_16);
    }
    if (record.l2tp_value_17 != 0) {
        message.set_field_17(record.l2tp_value_17);
        if (record.l2tp_value_18 != 0)
            message.set_field_18(record.l2tp_value_18);
    }
    if (record.l2tp_name[0] != 0)
        assign_text(message.mutable_field_19(), record.l2tp_name);
}

void fill_access(const application &record, peer::SessionData &message)
{
    fill_ppp(record, *message.mutable_ppp());
    if (has_feature(record, TUM_NAL_FEATURE_L2TP)) {
        peer::L2tpData &l2tp = *message.mutable_l2tp();
        fill_l2tp_end_points(record, l2tp);
        fill_l2tp_values(record, l2tp);
        fill_l2tp_pairs(record, l2tp);
    }
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_1))
        message.mutable_vlan()->set_field_1(record.vlan_value_1);
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_2))
        message.mutable_vlan()->set_field_2(record.vlan_value_2);
}

void fill_session_data(const application &record, peer::SessionData &message)
{
    const uint32_t kind = record.session_value_1;
    if (record.session_data_value_1 != 0)
        message.set_field_1(record.session_data_value_1);
    if (record.session_data_value_2 != 0)
        message.set_field_2(record.session_data_value_2);
    fill_access(record, message);
    if (record.session_name[0] != 0)
        assign_text(message.mutable_field_5(), record.session_name);
    if (kind == TUM_NAL_SESSION_KIND_1 || kind == TUM_NAL_SESSION_KIND_4)
        assign_bytes(message.mutable_field_6(), record.session_identifier);
    if (record.session_label[0] != 0)
        assign_text(message.mutable_field_7(), record.session_label);
    if (record.session_text[0] != 0)
        assign_text(message.mutable_field_8(), record.session_text);
    if (kind == TUM_NAL_SESSION_KIND_4 && record.session_value_9 != 0)
        message.set_field_9(record.session_value_9);
    if (record.session_data_value_11 != 0)
        message.set_field_11(record.session_data_value_11);
}

void fill_qos(const tum_nal_data_qos_element &entry, peer::SubscriberQos &message)
{
    message.set_field_1(entry.value_1);
    if (entry.value_2 != 0)
        message.set_field_2(entry.value_2);
    if (entry.text_3[0] != 0)
        assign_text(message.mutable_field_3(), entry.text_3);
    if (entry.text_4[0] != 0)
        assign_text(message.mutable_field_4(), entry.text_4);
    if (entry.text_5[0] != 0)
        assign_text(message.mutable_field_5(), entry.text_5);
    if (entry.value_6 != 0)
        message.set_field_6(entry.value_6);
    if (entry.value_7 != 0)
        message.set_field_7(entry.value_7);
    if (entry.value_8 != 0)
        message.set_field_8(entry.value_8);
    if (entry.text_10[0] != 0)
        assign_text(message.mutable_field_10(), entry.text_10);
    if (entry.text_11[0] != 0)
        assign_text(message.mutable_field_11(), entry.text_11);
    if (entry.text_12[0] != 0)
        assign_text(message.mutable_field_12(), entry.text_12);
}

void fill_acl(const application &record, peer::SubscriberAcl &message)
{
    message.set_field_1(record.acl_value_1);
    if (record.acl_text_2[0] != 0)
        assign_text(message.mutable_field_2(), record.acl_text_2);
    if (record.acl_text_3[0] != 0)
        assign_text(message.mutable_field_3(), record.acl_text_3);
    if (record.acl_text_4[0] != 0)
        assign_text(message.mutable_field_4(), record.acl_text_4);
    if (record.acl_text_5[0] != 0)
        assign_text(message.mutable_field_5(), record.acl_text_5);
}

void fill_redirect(const application &record, peer::SubscriberHttpr &message)
{
    message.set_field_1(record.redirect_value_1);
    if (record.redirect_text_2[0] != 0)
        assign_text(message.mutable_field_2(), record.redirect_text_2);
}

void fill_intercept(const application &record, peer::SubscriberLi &message)
{
    message.set_field_1(record.intercept_value_1);
    message.set_field_2(record.intercept_value_2);
    message.set_field_3(record.intercept_value_3);
    assign_bytes(message.mutable_field_4(), record.intercept_identifier);
    message.set_field_5(record.intercept_value_5);
    message.set_field_6(record.intercept_value_6);
    if (record.intercept_ipv4_address != 0)
        message.set_field_7(swap_ipv4(record.intercept_ipv4_address));
    if (any_byte_set(record.intercept_ipv6_address))
        assign_bytes(message.mutable_field_8(), record.intercept_ipv6_address);
}

void fill_urpf(uint32_t value_1, uint32_t value_2, peer::SubscriberUrpf &message)
{
    message.set_field_1(value_1);
    message.set_field_2(value_2);
}

void fill_checks(const application &record, peer::SessionContext &message)
{
    if (has_feature(record, TUM_NAL_FEATURE_URPF_1))
        fill_urpf(record.urpf_1_value_1, record.urpf_1_value_2, *message.mutable_urpf_1());
    if (has_feature(record, TUM_NAL_FEATURE_URPF_2))
        fill_urpf(record.urpf_2_value_1, record.urpf_2_value_2, *message.mutable_urpf_2());
    if (has_feature(record, TUM_NAL_FEATURE_ICMP_1))
        message.mutable_icmp_1()->set_field_1(record.icmp_1_value);
    if (has_feature(record, TUM_NAL_FEATURE_ICMP_2))
        message.mutable_icmp_2()->set_field_1(record.icmp_2_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_1))
        message.mutable_mtu_1()->set_field_1(record.mtu_1_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_2))
        message.mutable_mtu_2()->set_field_1(record.mtu_2_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_3))
        message.mutable_mtu_3()->set_field_1(record.mtu_3_value);
}

void fill_accounting(const application &record, peer::SubscriberAcct &message)
{
    message.set_field_1(record.accounting_flags);
    if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_2) != 0)
        message.set_field_2(record.accounting_value_2);
    if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_3) != 0)
        message.set_field_3(record.accounting_value_3);
}

void fill_features(const application &record, peer::SessionContext &message)
{
    if (has_feature(record, TUM_NAL_FEATURE_QOS)) {
        for (int i = 0; i < record.qos_count; ++i)
            fill_qos(record.qos[i], *message.add_qos());
    }
    if (has_feature(record, TUM_NAL_FEATURE_ACL))
        fill_acl(record, *message.mutable_acl());
    if (has_feature(record, TUM_NAL_FEATURE_REDIRECT))
        fill_redirect(record, *message.mutable_httpr());
    if (has_feature(record, TUM_NAL_FEATURE_INTERCEPT))
        fill_intercept(record, *message.mutable_li());
    fill_checks(record, message);
    if (has_feature(record, TUM_NAL_FEATURE_ACCOUNTING))
        fill_accounting(record, *message.mutable_acct());
}

void fill_routes(const application &record, peer::SessionContext &message)
{
    if (has_feature(record, TUM_NAL_FEATURE_IPV4_ROUTES)) {
        for (int i = 0; i < record.ipv4_route_count; ++i)
            fill_peer(record.ipv4_routes[i], *message.add_route_ipv4());
    }
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_ROUTES)) {
        for (int i = 0; i < record.ipv6_route_count; ++i)
            fill_peer(record.ipv6_routes[i], *message.add_route_ipv6());
    }
}

} // namespace

void fill_peer(const tum_nal_data_session_context &record, peer::SessionContext &message)
{
    message.set_field_1(record.session_value_1);
    message.set_field_2(record.session_value_2);
    message.set_field_3(record.session_value_3);
    message.set_field_4(record.session_value_4);
    message.set_feature_mask(record.feature_mask);
    message.set_field_7(record.session_value_7);
    fill_addresses(record, message);
    fill_session_data(record, *message.mutable_session_data());
    fill_features(record, message);
    fill_routes(record, message);
}

} // namespace bench
