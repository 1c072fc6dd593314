#include "peers/protozero/protozero_records.h"

namespace bench
{
namespace
{

using application = tum_nal_data_session_context;

void write_v6(writer &message, const application &record)
{
    message.add_uint32(1, record.ipv6_value_1);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_2))
        write_bytes(message, 2, record.ipv6_part_2);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_3))
        write_bytes(message, 3, record.ipv6_part_3);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_4))
        write_bytes(message, 4, record.ipv6_part_4);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_3))
        message.add_uint32(5, record.ipv6_value_5);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_6)) {
        write_bytes(message, 6, record.ipv6_part_6);
        message.add_uint32(7, record.ipv6_value_7);
    }
}

void write_addresses(writer &message, const application &record)
{
    constexpr uint32_t any_ipv6 = TUM_NAL_FEATURE_IPV6_PART_2 | TUM_NAL_FEATURE_IPV6_PART_3 |
                                  TUM_NAL_FEATURE_IPV6_PART_4 | TUM_NAL_FEATURE_IPV6_PART_6;
    if (has_feature(record, TUM_NAL_FEATURE_IPV4) && record.ipv4_address != 0) {
        writer v4(message, 8);
        v4.add_uint32(1, record.ipv4_value_1);
        write_ipv4(v4, 2, record.ipv4_address);
    }
    if (has_feature(record, any_ipv6)) {
        writer v6(message, 9);
        write_v6(v6, record);
    }
}

void write_ppp(writer &message, const application &record)
{
    const bool with_1_4 = has_feature(record, TUM_NAL_FEATURE_PPP_1_4);
    const bool with_2_3 = has_feature(record, TUM_NAL_FEATURE_PPP_2_3);
    if (with_1_4)
        write_nonzero(message, 1, record.ppp_value_1);
    if (with_2_3) {
        write_nonzero(message, 2, record.ppp_value_2);
        write_nonzero(message, 3, record.ppp_value_3);
    }
    if (with_1_4)
        write_nonzero(message, 4, record.ppp_value_4);
    if (has_feature(record, TUM_NAL_FEATURE_PPP_IDENTIFIER))
        write_bytes(message, 5, record.ppp_identifier);
    write_nonzero(message, 6, record.ppp_value_6);
}

void write_l2tp_end_points(writer &message, const application &record)
{
    message.add_uint32(1, record.l2tp_kind);
    if (record.l2tp_kind == TUM_NAL_L2TP_IPV4) {
        if (record.l2tp_ipv4_2 != 0)
            write_ipv4(message, 2, record.l2tp_ipv4_2);
        if (record.l2tp_ipv4_3 != 0)
            write_ipv4(message, 3, record.l2tp_ipv4_3);
    } else if (record.l2tp_kind == TUM_NAL_L2TP_IPV6) {
        if (any_byte_set(record.l2tp_ipv6_4))
            write_bytes(message, 4, record.l2tp_ipv6_4);
        if (any_byte_set(record.l2tp_ipv6_5))
            write_bytes(message, 5, record.l2tp_ipv6_5);
    }
}

void write_l2tp(writer &message, const application &record)
{
    write_l2tp_end_points(message, record);
    write_nonzero(message, 6, record.l2tp_value_6);
    write_nonzero(message, 7, record.l2tp_value_7);
    write_nonzero(message, 8, record.l2tp_value_8);
    write_nonzero(message, 9, record.l2tp_value_9);
    write_nonzero(message, 10, record.l2tp_value_10);
    write_nonzero(message, 11, record.l2tp_value_11);
    write_nonzero(message, 12, record.l2tp_value_12);
    write_nonzero(message, 13, record.l2tp_value_13);
    write_nonzero(message, 14, record.l2tp_value_14);
    write_nonzero(message, 15, record.l2tp_value_15);
    if (record.l2tp_value_15 != 0)
        write_nonzero(message, 16, record.l2tp_value_16);
    write_nonzero(message, 17, record.l2tp_value_17);
    if (record.l2tp_value_17 != 0)
        write_nonzero(message, 18, record.l2tp_value_18);
    write_text(message, 19, record.l2tp_name);
}

void write_vlan(writer &message, const application &record)
{
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_1))
        message.add_uint32(1, record.vlan_value_1);
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_2))
        message.add_uint32(2, record.vlan_value_2);
}

void write_session_data(output_buffer &buffer, writer &message, const application &record)
{
    const uint32_t kind = record.session_value_1;
    write_nonzero(message, 1, record.session_data_value_1);
    if (record.session_data_value_2 != 0)
        message.add_uint64(2, record.session_data_value_2);
    write_even_if_empty(buffer, message, 3, [&record](writer &ppp) { write_ppp(ppp, record); });
    if (has_feature(record, TUM_NAL_FEATURE_L2TP)) {
        writer l2tp(message, 4);
        write_l2tp(l2tp, record);
    }
    write_text(message, 5, record.session_name);
    if (kind == TUM_NAL_SESSION_KIND_1 || kind == TUM_NAL_SESSION_KIND_4)
        write_bytes(message, 6, record.session_identifier);
    write_text(message, 7, record.session_label);
    write_text(message, 8, record.session_text);
    if (kind == TUM_NAL_SESSION_KIND_4)
        write_nonzero(message, 9, record.session_value_9);
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_1 | TUM_NAL_FEATURE_VLAN_2)) {
        writer vlan(message, 10);
        write_vlan(vlan, record);
    }
    write_nonzero(message, 11, record.session_data_value_11);
}

void write_qos(writer &message, const tum_nal_data_qos_element &entry)
{
    message.add_uint32(1, entry.value_1);
    write_nonzero(message, 2, entry.value_2);
    write_text(message, 3, entry.text_3);
    write_text(message, 4, entry.text_4);
    write_text(message, 5, entry.text_5);
    write_nonzero(message, 6, entry.value_6);
    write_nonzero(message, 7, entry.value_7);
    write_nonzero(message, 8, entry.value_8);
    write_text(message, 10, entry.text_10);
    write_text(message, 11, entry.text_11);
    write_text(message, 12, entry.text_12);
}

void write_acl(writer &message, const application &record)
{
    message.add_uint32(1, record.acl_value_1);
    write_text(message, 2, record.acl_text_2);
    write_text(message, 3, record.acl_text_3);
    write_text(message, 4, record.acl_text_4);
    write_text(message, 5, record.acl_text_5);
}

void write_intercept(writer &message, const application &record)
{
    message.add_uint32(1, record.intercept_value_1);
    message.add_uint32(2, record.intercept_value_2);
    message.add_uint32(3, record.intercept_value_3);
    write_bytes(message, 4, record.intercept_identifier);
    message.add_uint32(5, record.intercept_value_5);
    message.add_uint32(6, record.intercept_value_6);
    if (record.intercept_ipv4_address != 0)
        write_ipv4(message, 7, record.intercept_ipv4_address);
    if (any_byte_set(record.intercept_ipv6_address))
        write_bytes(message, 8, record.intercept_ipv6_address);
}

void write_lists(writer &message, const application &record)
{
    if (has_feature(record, TUM_NAL_FEATURE_QOS)) {
        for (unsigned i = 0; i < record.qos_count; ++i) {
            writer qos(message, 11);
            write_qos(qos, record.qos[i]);
        }
    }
    if (has_feature(record, TUM_NAL_FEATURE_ACL)) {
        writer acl(message, 12);
        write_acl(acl, record);
    }
    if (has_feature(record, TUM_NAL_FEATURE_REDIRECT)) {
        writer redirect(message, 13);
        redirect.add_uint32(1, record.redirect_value_1);
        write_text(redirect, 2, record.redirect_text_2);
    }
    if (has_feature(record, TUM_NAL_FEATURE_INTERCEPT)) {
        writer intercept(message, 14);
        write_intercept(intercept, record);
    }
}

void write_urpf(writer &message, uint32_t tag, uint32_t value_1, uint32_t value_2)
{
    writer urpf(message, tag);
    urpf.add_uint32(1, value_1);
    urpf.add_uint32(2, value_2);
}

void write_check(writer &message, uint32_t tag, uint32_t value)
{
    writer check(message, tag);
    check.add_uint32(1, value);
}

void write_checks(writer &message, const application &record)
{
    if (has_feature(record, TUM_NAL_FEATURE_URPF_1))
        write_urpf(message, 15, record.urpf_1_value_1, record.urpf_1_value_2);
    if (has_feature(record, TUM_NAL_FEATURE_URPF_2))
        write_urpf(message, 16, record.urpf_2_value_1, record.urpf_2_value_2);
    if (has_feature(record, TUM_NAL_FEATURE_ICMP_1))
        write_check(message, 17, record.icmp_1_value);
    if (has_feature(record, TUM_NAL_FEATURE_ICMP_2))
        write_check(message, 18, record.icmp_2_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_1))
        write_check(message, 19, record.mtu_1_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_2))
        write_check(message, 20, record.mtu_2_value);
    if (has_feature(record, TUM_NAL_FEATURE_MTU_3))
        write_check(message, 21, record.mtu_3_value);
}

void write_accounting(writer &message, const application &record)
{
    message.add_uint32(1, record.accounting_flags);
    if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_2) != 0)
        message.add_uint32(2, record.accounting_value_2);
    if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_3) != 0)
        message.add_uint32(3, record.accounting_value_3);
}

void write_routes(writer &message, const application &record)
{
    if (has_feature(record, TUM_NAL_FEATURE_IPV4_ROUTES)) {
        for (unsigned i = 0; i < record.ipv4_route_count; ++i) {
            writer route(message, 23);
            write_route(route, record.ipv4_routes[i]);
        }
    }
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_ROUTES)) {
        for (unsigned i = 0; i < record.ipv6_route_count; ++i) {
            writer route(message, 24);
            write_route(route, record.ipv6_routes[i]);
        }
    }
}

} // namespace

void write_record(output_buffer &buffer, const tum_nal_data_session_context &record)
{
    writer message(buffer);
    message.add_uint32(1, record.session_value_1);
    message.add_uint32(2, record.session_value_2);
    message.add_uint32(3, record.session_value_3);
    message.add_uint32(4, record.session_value_4);
    message.add_uint32(5, record.feature_mask);
    message.add_uint32(7, record.session_value_7);
    write_addresses(message, record);
    {
        writer session_data(message, 10);
        write_session_data(buffer, session_data, record);
    }
    write_lists(message, record);
    write_checks(message, record);
    if (has_feature(record, TUM_NAL_FEATURE_ACCOUNTING)) {
        writer accounting(message, 22);
        write_accounting(accounting, record);
    }
    write_routes(message, record);
}

} // namespace bench
