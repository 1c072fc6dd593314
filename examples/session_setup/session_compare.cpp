#include "session_compare.h"

#include "compare_parts.h"

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
