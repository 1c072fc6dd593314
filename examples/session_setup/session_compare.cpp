#include "session_compare.h"

namespace examples::session_setup
{

namespace
{

// Every bit written down a second time: were the bits of `fill_session_record` used, a wrong one would pass.
uint32_t wanted_feature_mask(const subscriber &who)
{
    const std::pair<int, bool> bits[] = {
        {0, who.has(feature::qos)},
        {1, who.has(feature::redirect)},
        {2, who.has(feature::intercept)},
        {3, who.has(feature::urpf) && who.urpf[0]},
        {4, who.has(feature::urpf) && who.urpf[1]},
        {5, who.has(feature::icmp) && who.icmp[0]},
        {6, who.has(feature::icmp) && who.icmp[1]},
        {7, who.has(feature::accounting)},
        {8, who.has(feature::acl)},
        {9, who.ipv4.has_value()},
        {10, who.ipv6_host.has_value()},
        {11, who.ipv6_prefix.has_value()},
        {12, who.ipv6_gateway.has_value()},
        {13, who.has(feature::routes) && !who.ipv4_routes.empty()},
        {14, who.has(feature::routes) && !who.ipv6_routes.empty()},
        {16, who.outer_vlan.has_value()},
        {17, who.inner_vlan.has_value()},
        {19, who.ppp.has_value()},
        {20, who.ppp.has_value()},
        {21, who.has(feature::mtu) && who.mtu[0]},
        {22, who.has(feature::mtu) && who.mtu[1]},
        {23, who.ppp && who.ppp->identifier},
        {24, who.has(feature::mtu) && who.mtu[2]},
        {25, who.l2tp.has_value()},
        {26, who.ipv6_delegated.has_value()},
    };
    uint32_t mask = 0;
    for (const auto &[bit, is_on] : bits)
        mask |= is_on ? 1U << bit : 0;
    return mask;
}

void compare_identity(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    constexpr std::array<uint8_t, 7> no_identifier{};
    const bool has_identifier = who.kind == 1 || who.kind == 4;
    check.number("session_value_1", who.kind, received.session_value_1);
    check.number("session_value_2", who.value_2, received.session_value_2);
    check.number("session_value_3", who.value_3, received.session_value_3);
    check.number("session_value_4", who.value_4, received.session_value_4);
    check.number("feature_mask", wanted_feature_mask(who), received.feature_mask);
    check.number("session_value_7", who.value_7, received.session_value_7);
    check.number("session_data_value_1", who.data_value_1, received.session_data_value_1);
    check.number("session_data_value_2", who.data_value_2, received.session_data_value_2);
    check.text("session_name", who.user, received.session_name);
    check.bytes("session_identifier", has_identifier ? who.identifier : no_identifier, received.session_identifier);
    check.text("session_label", who.label, received.session_label);
    check.text("session_text", who.line, received.session_text);
    check.number("session_value_9", who.kind == 4 ? who.value_9 : 0, received.session_value_9);
    check.number("session_data_value_11", who.data_value_11, received.session_data_value_11);
}

void compare_addresses(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    const ipv4_cell ipv4 = who.ipv4 && who.ipv4->address != 0 ? *who.ipv4 : ipv4_cell{};
    const bool has_ipv6 = who.ipv6_host || who.ipv6_prefix || who.ipv6_gateway || who.ipv6_delegated;
    const prefix<ipv6_address> none{};
    check.number("ipv4_value_1", ipv4.value_1, received.ipv4_value_1);
    check.address("ipv4_address", ipv4.address, received.ipv4_address);
    check.number("ipv6_value_1", has_ipv6 ? who.ipv6_value : 0, received.ipv6_value_1);
    check.address("ipv6_part_2", who.ipv6_host.value_or(none.address), received.ipv6_part_2);
    check.address("ipv6_part_3", who.ipv6_prefix.value_or(none).address, received.ipv6_part_3);
    check.address("ipv6_part_4", who.ipv6_gateway.value_or(none.address), received.ipv6_part_4);
    check.address("ipv6_part_6", who.ipv6_delegated.value_or(none).address, received.ipv6_part_6);
    check.number("ipv6_value_5", who.ipv6_prefix.value_or(none).length, received.ipv6_value_5);
    check.number("ipv6_value_7", who.ipv6_delegated.value_or(none).length, received.ipv6_value_7);
    check.number("vlan_value_1", who.outer_vlan.value_or(0), received.vlan_value_1);
    check.number("vlan_value_2", who.inner_vlan.value_or(0), received.vlan_value_2);
}

void compare_reserved(member_check &check, const tum_nal_data_session_context &received)
{
    check.zeros("reserved_6", received.reserved_6);
    check.number("reserved_10", 0, received.reserved_10);
    check.number("reserved_11", 0, received.reserved_11);
}

void compare_ppp(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    const ppp_cell ppp = who.ppp.value_or(ppp_cell{});
    constexpr std::array<uint8_t, 9> no_identifier{};
    check.number("ppp_value_1", ppp.value_1, received.ppp_value_1);
    check.number("ppp_value_2", ppp.value_2, received.ppp_value_2);
    check.number("ppp_value_3", ppp.value_3, received.ppp_value_3);
    check.number("ppp_value_4", ppp.value_4, received.ppp_value_4);
    check.bytes("ppp_identifier", ppp.identifier.value_or(no_identifier), received.ppp_identifier);
    check.number("ppp_value_6", ppp.value_6, received.ppp_value_6);
}

uint32_t kind_number(tunnel_kind kind)
{
    if (kind == tunnel_kind::ipv4)
        return 1;
    return kind == tunnel_kind::ipv6 ? 2 : 0;
}

void compare_l2tp(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    const l2tp_cell l2tp = who.l2tp.value_or(l2tp_cell{});
    const auto &[value_11, value_12, value_13, value_14, value_15, value_16, value_17, value_18] = l2tp.values_11_18;
    check.number("l2tp_kind", kind_number(l2tp.kind), received.l2tp_kind);
    check.address("l2tp_ipv4_2", l2tp.local_ipv4, received.l2tp_ipv4_2);
    check.address("l2tp_ipv4_3", l2tp.remote_ipv4, received.l2tp_ipv4_3);
    check.address("l2tp_ipv6_4", l2tp.local_ipv6, received.l2tp_ipv6_4);
    check.address("l2tp_ipv6_5", l2tp.remote_ipv6, received.l2tp_ipv6_5);
    check.number("l2tp_value_6", l2tp.value_6, received.l2tp_value_6);
    check.number("l2tp_value_7", l2tp.value_7, received.l2tp_value_7);
    check.number("l2tp_value_8", l2tp.value_8, received.l2tp_value_8);
    check.number("l2tp_value_9", l2tp.value_9, received.l2tp_value_9);
    check.number("l2tp_value_10", l2tp.value_10, received.l2tp_value_10);
    check.number("l2tp_value_11", value_11, received.l2tp_value_11);
    check.number("l2tp_value_12", value_12, received.l2tp_value_12);
    check.number("l2tp_value_13", value_13, received.l2tp_value_13);
    check.number("l2tp_value_14", value_14, received.l2tp_value_14);
    check.number("l2tp_value_15", value_15, received.l2tp_value_15);
    check.number("l2tp_value_16", value_15 != 0 ? value_16 : 0, received.l2tp_value_16);
    check.number("l2tp_value_17", value_17, received.l2tp_value_17);
    check.number("l2tp_value_18", value_17 != 0 ? value_18 : 0, received.l2tp_value_18);
    check.text("l2tp_name", l2tp.name, received.l2tp_name);
}

void compare_access(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    compare_ppp(check, who, received);
    compare_l2tp(check, who, received);
}

// The values that the file gives a feature if it is on; otherwise none of them may arrive.
template <typename Values>
Values if_on(bool is_on, const std::optional<Values> &values)
{
    return is_on ? values.value_or(Values{}) : Values{};
}

void compare_acl(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    const acl_cell acl = if_on(who.has(feature::acl), who.acl);
    check.number("acl_value_1", acl.value_1, received.acl_value_1);
    check.text("acl_text_2", acl.texts_2_5[0], received.acl_text_2);
    check.text("acl_text_3", acl.texts_2_5[1], received.acl_text_3);
    check.text("acl_text_4", acl.texts_2_5[2], received.acl_text_4);
    check.text("acl_text_5", acl.texts_2_5[3], received.acl_text_5);
}

void compare_redirect(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    const redirect_cell redirect = if_on(who.has(feature::redirect), who.redirect);
    check.number("redirect_value_1", redirect.value_1, received.redirect_value_1);
    check.text("redirect_text_2", redirect.text_2, received.redirect_text_2);
}

void compare_intercept(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    const intercept_cell intercept = if_on(who.has(feature::intercept), who.intercept);
    check.number("intercept_value_1", intercept.value_1, received.intercept_value_1);
    check.number("intercept_value_2", intercept.value_2, received.intercept_value_2);
    check.number("intercept_value_3", intercept.value_3, received.intercept_value_3);
    check.bytes("intercept_identifier", intercept.identifier, received.intercept_identifier);
    check.number("intercept_value_5", intercept.value_5, received.intercept_value_5);
    check.number("intercept_value_6", intercept.value_6, received.intercept_value_6);
    check.address("intercept_ipv4_address", intercept.ipv4, received.intercept_ipv4_address);
    check.address("intercept_ipv6_address", intercept.ipv6, received.intercept_ipv6_address);
}

void compare_checks(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    const urpf_cell urpf_1 = if_on(who.has(feature::urpf), who.urpf[0]);
    const urpf_cell urpf_2 = if_on(who.has(feature::urpf), who.urpf[1]);
    check.number("urpf_1_value_1", urpf_1.value_1, received.urpf_1_value_1);
    check.number("urpf_1_value_2", urpf_1.value_2, received.urpf_1_value_2);
    check.number("urpf_2_value_1", urpf_2.value_1, received.urpf_2_value_1);
    check.number("urpf_2_value_2", urpf_2.value_2, received.urpf_2_value_2);
    check.number("icmp_1_value", if_on(who.has(feature::icmp), who.icmp[0]), received.icmp_1_value);
    check.number("icmp_2_value", if_on(who.has(feature::icmp), who.icmp[1]), received.icmp_2_value);
    check.number("mtu_1_value", if_on(who.has(feature::mtu), who.mtu[0]), received.mtu_1_value);
    check.number("mtu_2_value", if_on(who.has(feature::mtu), who.mtu[1]), received.mtu_2_value);
    check.number("mtu_3_value", if_on(who.has(feature::mtu), who.mtu[2]), received.mtu_3_value);
}

void compare_accounting(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    const accounting_cell accounting = if_on(who.has(feature::accounting), who.accounting);
    const bool has_value_2 = (accounting.flags & 1) != 0;
    const bool has_value_3 = (accounting.flags & 2) != 0;
    check.number("accounting_flags", accounting.flags, received.accounting_flags);
    check.number("accounting_value_2", has_value_2 ? accounting.value_2 : 0, received.accounting_value_2);
    check.number("accounting_value_3", has_value_3 ? accounting.value_3 : 0, received.accounting_value_3);
}

void compare_features(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    compare_acl(check, who, received);
    compare_redirect(check, who, received);
    compare_intercept(check, who, received);
    compare_checks(check, who, received);
    compare_accounting(check, who, received);
}

void compare_entry(member_check &check, const qos_entry &wanted, const tum_nal_data_qos_element &received)
{
    check.number("value_1", wanted.value_1, received.value_1);
    check.number("value_2", wanted.value_2, received.value_2);
    check.text("text_3", wanted.text_3, received.text_3);
    check.text("text_4", wanted.text_4, received.text_4);
    check.text("text_5", wanted.text_5, received.text_5);
    check.number("value_6", wanted.value_6, received.value_6);
    check.number("value_7", wanted.value_7, received.value_7);
    check.number("value_8", wanted.value_8, received.value_8);
    check.text("text_12", wanted.text_12, received.text_12);
    check.text("text_10", wanted.text_10, received.text_10);
    check.text("text_11", wanted.text_11, received.text_11);
}

template <typename Address, typename Slot>
void compare_common_route_members(member_check &check, const route<Address> &wanted, const Slot &received)
{
    check.number("field_1", wanted.value_1, received.field_1);
    check.text("field_2", wanted.text_2, received.field_2);
    check.address("field_3", wanted.destination.address, received.field_3);
    check.number("field_4", wanted.destination.length, received.field_4);
    check.address("field_5", wanted.next_hop, received.field_5);
    check.text("field_6", wanted.text_6, received.field_6);
    check.text("field_9", wanted.text_9, received.field_9);
}

void compare_entry(member_check &check, const route<ipv4_address> &wanted, const tum_nal_data_ipv4_route &received)
{
    compare_common_route_members(check, wanted, received);
    // The sent `field_8` took the place of `field_7` on the wire.
    check.number("field_7", wanted.value_8 != 0 ? wanted.value_8 : wanted.value_7, received.field_7);
    check.number("field_8", 0, received.field_8);
}

void compare_entry(member_check &check, const route<ipv6_address> &wanted, const tum_nal_data_ipv6_route &received)
{
    compare_common_route_members(check, wanted, received);
    check.number("field_7", wanted.value_7, received.field_7);
    check.number("field_8", wanted.value_8, received.field_8);
}

// A slot without an entry is compared with an entry that says nothing.
template <typename Entry, typename Slot, size_t Slots>
void compare_list(member_check &check, std::string_view name, bool is_sent, const std::vector<Entry> &wanted,
    const Slot (&received)[Slots])
{
    const Entry nothing{};
    for (size_t i = 0; i < Slots; ++i) {
        check.enter_slot(name, i);
        compare_entry(check, is_sent && i < wanted.size() ? wanted[i] : nothing, received[i]);
    }
    check.leave_slot();
}

void compare_qos(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    const bool is_sent = who.has(feature::qos);
    check.number("qos_count", is_sent ? who.qos.size() : 0, received.qos_count);
    compare_list(check, "qos", is_sent, who.qos, received.qos);
}

void compare_routes(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    const bool is_sent = who.has(feature::routes);
    check.number("ipv4_route_count", is_sent ? who.ipv4_routes.size() : 0, received.ipv4_route_count);
    check.number("ipv6_route_count", is_sent ? who.ipv6_routes.size() : 0, received.ipv6_route_count);
    compare_list(check, "ipv4_routes", is_sent, who.ipv4_routes, received.ipv4_routes);
    compare_list(check, "ipv6_routes", is_sent, who.ipv6_routes, received.ipv6_routes);
}

} // namespace

std::vector<mismatch> compare_session(const subscriber &who, const tum_nal_data_session_context &received)
{
    member_check check;
    compare_identity(check, who, received);
    compare_addresses(check, who, received);
    compare_reserved(check, received);
    compare_access(check, who, received);
    compare_features(check, who, received);
    compare_qos(check, who, received);
    compare_routes(check, who, received);
    return check.mismatches();
}

} // namespace examples::session_setup
