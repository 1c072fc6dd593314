#include "peers/protobuf/protobuf_records.h"

// The record is zero at first, and an absent field reads as zero. So only nested messages are tested for presence,
// which is faster.
namespace bench
{
namespace
{

using application = tum_nal_data_session_context;

void read_addresses(const peer::SessionContext &message, application &record)
{
    if (message.has_subscriber_v4()) {
        record.ipv4_value_1 = message.subscriber_v4().field_1();
        record.ipv4_address = swap_ipv4(message.subscriber_v4().ipv4_address());
    }
    if (message.has_subscriber_v6()) {
        const peer::SubscriberV6 &v6 = message.subscriber_v6();
        record.ipv6_value_1 = v6.field_1();
        copy_bytes(record.ipv6_part_2, v6.field_2());
        copy_bytes(record.ipv6_part_3, v6.field_3());
        copy_bytes(record.ipv6_part_4, v6.field_4());
        copy_bytes(record.ipv6_part_6, v6.field_6());
        record.ipv6_value_5 = static_cast<uint8_t>(v6.field_5());
        record.ipv6_value_7 = static_cast<uint8_t>(v6.field_7());
    }
}

void read_ppp(const peer::PppData &message, application &record)
{
    record.ppp_value_1 = message.field_1();
    record.ppp_value_2 = message.field_2();
    record.ppp_value_3 = message.field_3();
    record.ppp_value_4 = message.field_4();
    copy_bytes(record.ppp_identifier, message.field_5());
    record.ppp_value_6 = static_cast<uint16_t>(message.field_6());
}

void read_l2tp(const peer::L2tpData &message, application &record)
{
    record.l2tp_kind = message.field_1();
    record.l2tp_ipv4_2 = swap_ipv4(message.field_2());
    record.l2tp_ipv4_3 = swap_ipv4(message.field_3());
    copy_bytes(record.l2tp_ipv6_4, message.field_4());
    copy_bytes(record.l2tp_ipv6_5, message.field_5());
    record.l2tp_value_6 = static_cast<uint16_t>(message.field_6());
    record.l2tp_value_7 = static_cast<uint16_t>(message.field_7());
    record.l2tp_value_8 = static_cast<uint16_t>(message.field_8());
    record.l2tp_value_9 = static_cast<uint16_t>(message.field_9());
    record.l2tp_value_10 = static_cast<uint8_t>(message.field_10());
    record.l2tp_value_11 = message.field_11();
    record.l2tp_value_12 = message.field_12();
    record.l2tp_value_13 = message.field_13();
    record.l2tp_value_14 = message.field_14();
    record.l2tp_value_15 = message.field_15();
    record.l2tp_value_16 = message.field_16();
    record.l2tp_value_17 = message.field_17();
    record.l2tp_value_18 = message.field_18();
    copy_text(record.l2tp_name, message.field_19());
}

void read_session_data(const peer::SessionData &message, application &record)
{
    record.session_data_value_1 = message.field_1();
    record.session_data_value_2 = message.field_2();
    if (message.has_ppp())
        read_ppp(message.ppp(), record);
    if (message.has_l2tp())
        read_l2tp(message.l2tp(), record);
    copy_text(record.session_name, message.field_5());
    copy_bytes(record.session_identifier, message.field_6());
    copy_text(record.session_label, message.field_7());
    copy_text(record.session_text, message.field_8());
    record.session_value_9 = static_cast<uint16_t>(message.field_9());
    if (message.has_vlan()) {
        record.vlan_value_1 = static_cast<uint16_t>(message.vlan().field_1());
        record.vlan_value_2 = static_cast<uint16_t>(message.vlan().field_2());
    }
    record.session_data_value_11 = message.field_11();
}

void read_qos(const peer::SubscriberQos &message, tum_nal_data_qos_element &entry)
{
    entry.value_1 = message.field_1();
    entry.value_2 = message.field_2();
    copy_text(entry.text_3, message.field_3());
    copy_text(entry.text_4, message.field_4());
    copy_text(entry.text_5, message.field_5());
    entry.value_6 = static_cast<uint16_t>(message.field_6());
    entry.value_7 = static_cast<uint16_t>(message.field_7());
    entry.value_8 = message.field_8();
    copy_text(entry.text_10, message.field_10());
    copy_text(entry.text_11, message.field_11());
    copy_text(entry.text_12, message.field_12());
}

void read_acl(const peer::SubscriberAcl &message, application &record)
{
    record.acl_value_1 = message.field_1();
    copy_text(record.acl_text_2, message.field_2());
    copy_text(record.acl_text_3, message.field_3());
    copy_text(record.acl_text_4, message.field_4());
    copy_text(record.acl_text_5, message.field_5());
}

void read_intercept(const peer::SubscriberLi &message, application &record)
{
    record.intercept_value_1 = message.field_1();
    record.intercept_value_2 = message.field_2();
    record.intercept_value_3 = static_cast<uint16_t>(message.field_3());
    copy_bytes(record.intercept_identifier, message.field_4());
    record.intercept_value_5 = message.field_5();
    record.intercept_value_6 = message.field_6();
    record.intercept_ipv4_address = swap_ipv4(message.field_7());
    copy_bytes(record.intercept_ipv6_address, message.field_8());
}

void read_checks(const peer::SessionContext &message, application &record)
{
    // An absent nested message reads as its default instance, whose values are zero.
    record.urpf_1_value_1 = message.urpf_1().field_1();
    record.urpf_1_value_2 = message.urpf_1().field_2();
    record.urpf_2_value_1 = message.urpf_2().field_1();
    record.urpf_2_value_2 = message.urpf_2().field_2();
    record.icmp_1_value = message.icmp_1().field_1();
    record.icmp_2_value = message.icmp_2().field_1();
    record.mtu_1_value = message.mtu_1().field_1();
    record.mtu_2_value = message.mtu_2().field_1();
    record.mtu_3_value = message.mtu_3().field_1();
    record.accounting_flags = message.acct().field_1();
    record.accounting_value_2 = message.acct().field_2();
    record.accounting_value_3 = message.acct().field_3();
}

void read_features(const peer::SessionContext &message, application &record)
{
    const int entries = std::min<int>(message.qos_size(), TUM_NAL_SESSION_QOS_ENTRIES);
    record.qos_count = static_cast<uint8_t>(entries);
    for (int i = 0; i < entries; ++i)
        read_qos(message.qos(i), record.qos[i]);
    if (message.has_acl())
        read_acl(message.acl(), record);
    if (message.has_httpr()) {
        record.redirect_value_1 = message.httpr().field_1();
        copy_text(record.redirect_text_2, message.httpr().field_2());
    }
    if (message.has_li())
        read_intercept(message.li(), record);
    read_checks(message, record);
}

void read_routes(const peer::SessionContext &message, application &record)
{
    const int ipv4_routes = std::min<int>(message.route_ipv4_size(), TUM_NAL_SESSION_IPV4_ROUTES);
    record.ipv4_route_count = static_cast<uint8_t>(ipv4_routes);
    for (int i = 0; i < ipv4_routes; ++i)
        read_peer(message.route_ipv4(i), record.ipv4_routes[i]);
    const int ipv6_routes = std::min<int>(message.route_ipv6_size(), TUM_NAL_SESSION_IPV6_ROUTES);
    record.ipv6_route_count = static_cast<uint8_t>(ipv6_routes);
    for (int i = 0; i < ipv6_routes; ++i)
        read_peer(message.route_ipv6(i), record.ipv6_routes[i]);
}

} // namespace

void read_peer(const peer::SessionContext &message, tum_nal_data_session_context &record)
{
    std::memset(&record, 0, sizeof record);
    record.session_value_1 = message.field_1();
    record.session_value_2 = message.field_2();
    record.session_value_3 = message.field_3();
    record.session_value_4 = message.field_4();
    record.feature_mask = message.feature_mask();
    record.session_value_7 = message.field_7();
    read_addresses(message, record);
    if (message.has_session_data())
        read_session_data(message.session_data(), record);
    read_features(message, record);
    read_routes(message, record);
}

} // namespace bench
