#include "session_record.h"

#include <algorithm>
#include <cassert>
#include <cstring>

namespace examples
{

namespace
{

using application_record = tum_nal_data_session_context;

// The record is zeroed before, so the text ends in NUL. The file's reader has refused what is too long.
template <size_t Size>
void fill_text(char (&array)[Size], const std::string &text)
{
    assert(text.size() < Size);
    std::memcpy(array, text.data(), text.size());
}

template <size_t Size>
void fill_bytes(uint8_t (&array)[Size], const std::array<uint8_t, Size> &bytes)
{
    std::ranges::copy(bytes, array);
}

void switch_on(application_record &record, uint32_t feature_bit, bool condition)
{
    if (condition)
        record.feature_mask |= feature_bit;
}

void fill_identity(application_record &record, const subscriber &who)
{
    record.session_value_1 = who.kind;
    record.session_value_2 = who.value_2;
    record.session_value_3 = who.value_3;
    record.session_value_4 = who.value_4;
    record.session_value_7 = who.value_7;
    fill_text(record.session_text, who.line);
    fill_text(record.session_name, who.user);
    fill_text(record.session_label, who.label);
    fill_bytes(record.session_identifier, who.identifier);
    record.session_value_9 = who.value_9;
    record.session_data_value_1 = who.data_value_1;
    record.session_data_value_2 = who.data_value_2;
    record.session_data_value_11 = who.data_value_11;
}

void fill_ipv4(application_record &record, const subscriber &who)
{
    if (!who.ipv4)
        return;
    record.feature_mask |= TUM_NAL_FEATURE_IPV4;
    record.ipv4_address = who.ipv4->address;
    record.ipv4_value_1 = who.ipv4->value_1;
}

void fill_ipv6(application_record &record, const subscriber &who)
{
    record.ipv6_value_1 = who.ipv6_value;
    if (who.ipv6_host) {
        record.feature_mask |= TUM_NAL_FEATURE_IPV6_PART_2;
        fill_bytes(record.ipv6_part_2, *who.ipv6_host);
    }
    if (who.ipv6_prefix) {
        record.feature_mask |= TUM_NAL_FEATURE_IPV6_PART_3;
        fill_bytes(record.ipv6_part_3, who.ipv6_prefix->address);
        record.ipv6_value_5 = who.ipv6_prefix->length;
    }
    if (who.ipv6_gateway) {
        record.feature_mask |= TUM_NAL_FEATURE_IPV6_PART_4;
        fill_bytes(record.ipv6_part_4, *who.ipv6_gateway);
    }
    if (who.ipv6_delegated) {
        record.feature_mask |= TUM_NAL_FEATURE_IPV6_PART_6;
        fill_bytes(record.ipv6_part_6, who.ipv6_delegated->address);
        record.ipv6_value_7 = who.ipv6_delegated->length;
    }
}

void fill_vlans(application_record &record, const subscriber &who)
{
    switch_on(record, TUM_NAL_FEATURE_VLAN_1, who.outer_vlan.has_value());
    switch_on(record, TUM_NAL_FEATURE_VLAN_2, who.inner_vlan.has_value());
    record.vlan_value_1 = who.outer_vlan.value_or(0);
    record.vlan_value_2 = who.inner_vlan.value_or(0);
}

void fill_ppp(application_record &record, const subscriber &who)
{
    if (!who.ppp)
        return;
    record.feature_mask |= TUM_NAL_FEATURE_PPP_1_4 | TUM_NAL_FEATURE_PPP_2_3;
    record.ppp_value_1 = who.ppp->value_1;
    record.ppp_value_2 = who.ppp->value_2;
    record.ppp_value_3 = who.ppp->value_3;
    record.ppp_value_4 = who.ppp->value_4;
    record.ppp_value_6 = who.ppp->value_6;
    if (who.ppp->identifier) {
        record.feature_mask |= TUM_NAL_FEATURE_PPP_IDENTIFIER;
        fill_bytes(record.ppp_identifier, *who.ppp->identifier);
    }
}

void fill_tunnel_end_points(application_record &record, const l2tp_cell &l2tp)
{
    if (l2tp.kind == tunnel_kind::ipv4) {
        record.l2tp_kind = TUM_NAL_L2TP_IPV4;
        record.l2tp_ipv4_2 = l2tp.local_ipv4;
        record.l2tp_ipv4_3 = l2tp.remote_ipv4;
    } else if (l2tp.kind == tunnel_kind::ipv6) {
        record.l2tp_kind = TUM_NAL_L2TP_IPV6;
        fill_bytes(record.l2tp_ipv6_4, l2tp.local_ipv6);
        fill_bytes(record.l2tp_ipv6_5, l2tp.remote_ipv6);
    }
}

void fill_l2tp(application_record &record, const subscriber &who)
{
    if (!who.l2tp)
        return;
    record.feature_mask |= TUM_NAL_FEATURE_L2TP;
    fill_tunnel_end_points(record, *who.l2tp);
    fill_text(record.l2tp_name, who.l2tp->name);
    record.l2tp_value_6 = who.l2tp->value_6;
    record.l2tp_value_7 = who.l2tp->value_7;
    record.l2tp_value_8 = who.l2tp->value_8;
    record.l2tp_value_9 = who.l2tp->value_9;
    record.l2tp_value_10 = who.l2tp->value_10;
    record.l2tp_value_11 = who.l2tp->values_11_18[0];
    record.l2tp_value_12 = who.l2tp->values_11_18[1];
    record.l2tp_value_13 = who.l2tp->values_11_18[2];
    record.l2tp_value_14 = who.l2tp->values_11_18[3];
    record.l2tp_value_15 = who.l2tp->values_11_18[4];
    record.l2tp_value_16 = who.l2tp->values_11_18[5];
    record.l2tp_value_17 = who.l2tp->values_11_18[6];
    record.l2tp_value_18 = who.l2tp->values_11_18[7];
}

void fill_qos_entry(tum_nal_data_qos_element &slot, const qos_entry &entry)
{
    slot.value_1 = entry.value_1;
    slot.value_2 = entry.value_2;
    fill_text(slot.text_3, entry.text_3);
    fill_text(slot.text_4, entry.text_4);
    fill_text(slot.text_5, entry.text_5);
    slot.value_6 = entry.value_6;
    slot.value_7 = entry.value_7;
    slot.value_8 = entry.value_8;
    fill_text(slot.text_10, entry.text_10);
    fill_text(slot.text_11, entry.text_11);
    fill_text(slot.text_12, entry.text_12);
}

void fill_qos(application_record &record, const subscriber &who)
{
    switch_on(record, TUM_NAL_FEATURE_QOS, who.has(feature::qos));
    record.qos_count = static_cast<uint8_t>(who.qos.size());
    for (size_t i = 0; i < who.qos.size(); ++i)
        fill_qos_entry(record.qos[i], who.qos[i]);
}

void fill_acl(application_record &record, const subscriber &who)
{
    switch_on(record, TUM_NAL_FEATURE_ACL, who.has(feature::acl));
    if (!who.acl)
        return;
    record.acl_value_1 = who.acl->value_1;
    fill_text(record.acl_text_2, who.acl->texts_2_5[0]);
    fill_text(record.acl_text_3, who.acl->texts_2_5[1]);
    fill_text(record.acl_text_4, who.acl->texts_2_5[2]);
    fill_text(record.acl_text_5, who.acl->texts_2_5[3]);
}

void fill_redirect(application_record &record, const subscriber &who)
{
    switch_on(record, TUM_NAL_FEATURE_REDIRECT, who.has(feature::redirect));
    if (!who.redirect)
        return;
    record.redirect_value_1 = who.redirect->value_1;
    fill_text(record.redirect_text_2, who.redirect->text_2);
}

void fill_intercept(application_record &record, const subscriber &who)
{
    switch_on(record, TUM_NAL_FEATURE_INTERCEPT, who.has(feature::intercept));
    if (!who.intercept)
        return;
    record.intercept_value_1 = who.intercept->value_1;
    record.intercept_value_2 = who.intercept->value_2;
    record.intercept_value_3 = who.intercept->value_3;
    fill_bytes(record.intercept_identifier, who.intercept->identifier);
    record.intercept_value_5 = who.intercept->value_5;
    record.intercept_value_6 = who.intercept->value_6;
    record.intercept_ipv4_address = who.intercept->ipv4;
    fill_bytes(record.intercept_ipv6_address, who.intercept->ipv6);
}

void fill_checks(application_record &record, const subscriber &who)
{
    switch_on(record, TUM_NAL_FEATURE_URPF_1, who.has(feature::urpf) && who.urpf[0]);
    switch_on(record, TUM_NAL_FEATURE_URPF_2, who.has(feature::urpf) && who.urpf[1]);
    switch_on(record, TUM_NAL_FEATURE_ICMP_1, who.has(feature::icmp) && who.icmp[0]);
    switch_on(record, TUM_NAL_FEATURE_ICMP_2, who.has(feature::icmp) && who.icmp[1]);
    record.urpf_1_value_1 = who.urpf[0].value_or(urpf_cell{}).value_1;
    record.urpf_1_value_2 = who.urpf[0].value_or(urpf_cell{}).value_2;
    record.urpf_2_value_1 = who.urpf[1].value_or(urpf_cell{}).value_1;
    record.urpf_2_value_2 = who.urpf[1].value_or(urpf_cell{}).value_2;
    record.icmp_1_value = who.icmp[0].value_or(0);
    record.icmp_2_value = who.icmp[1].value_or(0);
}

void fill_mtu(application_record &record, const subscriber &who)
{
    switch_on(record, TUM_NAL_FEATURE_MTU_1, who.has(feature::mtu) && who.mtu[0]);
    switch_on(record, TUM_NAL_FEATURE_MTU_2, who.has(feature::mtu) && who.mtu[1]);
    switch_on(record, TUM_NAL_FEATURE_MTU_3, who.has(feature::mtu) && who.mtu[2]);
    record.mtu_1_value = who.mtu[0].value_or(0);
    record.mtu_2_value = who.mtu[1].value_or(0);
    record.mtu_3_value = who.mtu[2].value_or(0);
}

void fill_accounting(application_record &record, const subscriber &who)
{
    switch_on(record, TUM_NAL_FEATURE_ACCOUNTING, who.has(feature::accounting));
    const accounting_cell accounting = who.accounting.value_or(accounting_cell{});
    record.accounting_flags = accounting.flags;
    record.accounting_value_2 = accounting.value_2;
    record.accounting_value_3 = accounting.value_3;
}

void fill_address(uint32_t &member, ipv4_address address)
{
    member = address;
}

void fill_address(uint8_t (&member)[16], const ipv6_address &address)
{
    fill_bytes(member, address);
}

// IPv4 and IPv6 slots have the same members; only the addresses differ.
template <typename Slot, typename Address>
void fill_route(Slot &slot, const route<Address> &from)
{
    slot.field_1 = from.value_1;
    fill_text(slot.field_2, from.text_2);
    fill_address(slot.field_3, from.destination.address);
    slot.field_4 = from.destination.length;
    fill_address(slot.field_5, from.next_hop);
    fill_text(slot.field_6, from.text_6);
    slot.field_7 = from.value_7;
    slot.field_8 = from.value_8;
    fill_text(slot.field_9, from.text_9);
}

void fill_routes(application_record &record, const subscriber &who)
{
    switch_on(record, TUM_NAL_FEATURE_IPV4_ROUTES, who.has(feature::routes) && !who.ipv4_routes.empty());
    switch_on(record, TUM_NAL_FEATURE_IPV6_ROUTES, who.has(feature::routes) && !who.ipv6_routes.empty());
    record.ipv4_route_count = static_cast<uint8_t>(who.ipv4_routes.size());
    record.ipv6_route_count = static_cast<uint8_t>(who.ipv6_routes.size());
    for (size_t i = 0; i < who.ipv4_routes.size(); ++i)
        fill_route(record.ipv4_routes[i], who.ipv4_routes[i]);
    for (size_t i = 0; i < who.ipv6_routes.size(); ++i)
        fill_route(record.ipv6_routes[i], who.ipv6_routes[i]);
}

} // namespace

void fill_session_record(tum_nal_data_session_context &record, const subscriber &who)
{
    record = {};
    fill_identity(record, who);
    fill_ipv4(record, who);
    fill_ipv6(record, who);
    fill_vlans(record, who);
    fill_ppp(record, who);
    fill_l2tp(record, who);
    fill_qos(record, who);
    fill_acl(record, who);
    fill_redirect(record, who);
    fill_intercept(record, who);
    fill_checks(record, who);
    fill_mtu(record, who);
    fill_accounting(record, who);
    fill_routes(record, who);
}

} // namespace examples
