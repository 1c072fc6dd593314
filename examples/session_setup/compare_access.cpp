#include "compare_parts.h"

namespace examples::session_setup
{

namespace
{

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

} // namespace

void compare_access(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    compare_ppp(check, who, received);
    compare_l2tp(check, who, received);
}

} // namespace examples::session_setup
