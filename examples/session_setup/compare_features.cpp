#include "compare_parts.h"

namespace examples::session_setup
{

namespace
{

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

} // namespace

void compare_features(member_check &check, const subscriber &who, const tum_nal_data_session_context &received)
{
    compare_acl(check, who, received);
    compare_redirect(check, who, received);
    compare_intercept(check, who, received);
    compare_checks(check, who, received);
    compare_accounting(check, who, received);
}

} // namespace examples::session_setup
