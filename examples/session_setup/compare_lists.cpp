#include "compare_parts.h"

namespace examples::session_setup
{

namespace
{

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

} // namespace

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

} // namespace examples::session_setup
