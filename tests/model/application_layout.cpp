#include "model/application_layout.h"

#include <algorithm>
#include <cstring>

namespace mava_tum_model
{

namespace
{

using enum slot_kind;

constexpr slot u8(field_path path)
{
    return {number, 1, path};
}

constexpr slot u16(field_path path)
{
    return {number, 2, path};
}

constexpr slot u32(field_path path)
{
    return {number, 4, path};
}

constexpr slot u64(field_path path)
{
    return {number, 8, path};
}

constexpr slot ipv4(field_path path)
{
    return {address, 4, path};
}

constexpr slot chars(uint32_t size, field_path path, uint32_t limit = 0)
{
    return {text, size, path, 0, 0, nullptr, limit};
}

constexpr slot octets(uint32_t size, field_path path)
{
    return {slot_kind::bytes, size, path};
}

constexpr slot unused(uint32_t size)
{
    return {gap, size};
}

constexpr slot number_of(uint32_t width, field_path path, uint32_t slots)
{
    return {count, width, path, slots};
}

constexpr slot list_of(const application_layout &element, uint32_t slots, uint32_t count_width, field_path path)
{
    return {list, 0, path, slots, count_width, &element};
}

constexpr slot texts_of(uint32_t size, uint32_t slots, uint32_t count_width, field_path path)
{
    return {list, size, path, slots, count_width, nullptr};
}

constexpr slot inside(const application_layout &element, field_path path)
{
    return {part, 0, path, 0, 0, &element};
}

constexpr slot arriving_with(uint8_t presence_of, slot member)
{
    member.presence_of = presence_of;
    return member;
}

// ---- session context ----

constexpr slot qos_slots[] = {u32({1}), u32({2}), chars(65, {3}), chars(256, {4}), chars(256, {5}), u16({6}), u16({7}),
    u32({8}), chars(65, {12}), chars(65, {10}), chars(65, {11})};
constexpr application_layout qos = {qos_slots};

constexpr slot ipv4_route_slots[] = {u32({1}), chars(36, {2}, 33), ipv4({3}), u8({4}), ipv4({5}), chars(36, {6}, 33),
    u32({7}), u32({8}), chars(68, {9}, 65)};
constexpr application_layout ipv4_route = {ipv4_route_slots};

constexpr slot ipv6_route_slots[] = {u32({1}), chars(36, {2}, 33), octets(16, {3}), u8({4}), octets(16, {5}),
    chars(36, {6}, 33), u32({7}), u32({8}), chars(68, {9}, 65)};
constexpr application_layout ipv6_route = {ipv6_route_slots};

constexpr slot session_context_slots[] = {u32({1}), u32({2}), u32({3}), u32({4}), u32({5}), unused(20), u32({7}),
    // addresses
    u32({8, 1}), ipv4({8, 2}), unused(4), u32({9, 1}), unused(4), octets(16, {9, 2}), octets(16, {9, 3}),
    octets(16, {9, 4}), octets(16, {9, 6}), arriving_with(3, u8({9, 5})), arriving_with(6, u8({9, 7})),
    // session data, with its PPP part
    u32({10, 1}), u64({10, 2}), u32({10, 3, 1}), u32({10, 3, 2}), u32({10, 3, 3}), u32({10, 3, 4}),
    octets(9, {10, 3, 5}), u16({10, 3, 6}),
    // its L2TP part
    u32({10, 4, 1}), ipv4({10, 4, 2}), ipv4({10, 4, 3}), octets(16, {10, 4, 4}), octets(16, {10, 4, 5}),
    u16({10, 4, 6}), u16({10, 4, 7}), u16({10, 4, 8}), u16({10, 4, 9}), u8({10, 4, 10}), u32({10, 4, 11}),
    u32({10, 4, 12}), u32({10, 4, 13}), u32({10, 4, 14}), u32({10, 4, 15}), u32({10, 4, 16}), u32({10, 4, 17}),
    u32({10, 4, 18}), chars(33, {10, 4, 19}),
    // its texts, and its VLAN part
    chars(65, {10, 5}), octets(7, {10, 6}), chars(33, {10, 7}), chars(65, {10, 8}), u16({10, 9}), u16({10, 10, 1}),
    u16({10, 10, 2}), u32({10, 11}),
    // features
    list_of(qos, 8, 1, {11}), number_of(1, {11}, 8), u32({12, 1}), chars(65, {12, 2}), chars(65, {12, 3}),
    chars(65, {12, 4}), chars(65, {12, 5}), u32({13, 1}), chars(256, {13, 2}), u32({14, 1}), u32({14, 2}), u16({14, 3}),
    octets(8, {14, 4}), u32({14, 5}), u32({14, 6}), ipv4({14, 7}), octets(16, {14, 8}), u32({15, 1}), u32({15, 2}),
    u32({16, 1}), u32({16, 2}), u32({17, 1}), u32({18, 1}), u32({19, 1}), u32({20, 1}), u32({21, 1}), u32({22, 1}),
    u32({22, 2}), u32({22, 3}),
    // routes
    number_of(1, {23}, 4), number_of(1, {24}, 4), list_of(ipv4_route, 4, 1, {23}), list_of(ipv6_route, 4, 1, {24})};
constexpr application_layout session_context = {session_context_slots};

// ---- session, statistics, routes ----

constexpr slot session_delete_slots[] = {u32({1}), u32({2}), u16({3}), u64({4}), u32({5})};
constexpr application_layout session_delete = {session_delete_slots};

constexpr slot counter_slots[] = {u32({1}), u32({2}), u32({3}), u32({4}), u32({5}), u32({6}), u32({7}), u32({8}),
    u32({9}), u32({10}), u32({11}), u32({12}), u32({13}), u32({14}), u32({15}), u32({16}), u32({17}), u32({18})};
constexpr application_layout counters = {counter_slots};

constexpr slot service_slots[] = {chars(65, {1}), inside(counters, {2})};
constexpr application_layout service = {service_slots};

constexpr slot subscriber_stats_slots[] = {u64({1}), u32({2}), u32({3}), u32({4}), u32({5}), u32({6}),
    inside(counters, {7}), number_of(1, {8}, 8), list_of(service, 8, 1, {8}), u32({9}), inside(counters, {10}),
    u32({11}), inside(counters, {12})};
constexpr application_layout subscriber_stats = {subscriber_stats_slots};

constexpr slot sess_oper_resp_slots[] = {u32({1}), u32({2}), u32({3}), u64({4}), u32({5}), chars(65, {6}),
    chars(65, {7}), chars(65, {8}), inside(subscriber_stats, {9})};
constexpr application_layout sess_oper_resp = {sess_oper_resp_slots};

constexpr slot sub_route_slots[] = {u32({1}), u16({2}), u32({3}), number_of(1, {4}, 50), number_of(1, {5}, 50),
    list_of(ipv4_route, 50, 1, {4}), list_of(ipv6_route, 50, 1, {5}), u32({6})};
constexpr application_layout sub_route = {sub_route_slots};

constexpr slot subscriber_route_resp_slots[] = {u32({1}), u32({2}), chars(65, {3}), chars(65, {4})};
constexpr application_layout subscriber_route_resp = {subscriber_route_resp_slots};

// ---- reconciliation ----

// What arrives in field 3 lands in the first member; the next two stay zero.
constexpr slot rec_start_req_slots[] = {u32({3}), unused(2), unused(2), unused(4), chars(65, {4})};
constexpr application_layout rec_start_req = {rec_start_req_slots};

constexpr slot rec_complete_req_slots[] = {u32({1}), u32({2}), u16({3}), chars(65, {4})};
constexpr application_layout rec_complete_req = {rec_complete_req_slots};

constexpr slot rec_res_slots[] = {u32({1}), chars(65, {2}), u32({3})};
constexpr application_layout rec_res = {rec_res_slots};

constexpr slot session_state_slots[] = {u32({1}), u64({2}), u32({3})};
constexpr application_layout session_state = {session_state_slots};

constexpr slot rec_sess_req_slots[] = {u32({1}), u16({2}), number_of(4, {3}, 30), list_of(session_state, 30, 4, {3}),
    chars(65, {4}), chars(65, {5}), u8({6})};
constexpr application_layout rec_sess_req = {rec_sess_req_slots};

constexpr slot rec_sess_res_slots[] = {
    u32({1}), number_of(4, {2}, 30), list_of(session_state, 30, 4, {2}), u8({3}), u32({4})};
constexpr application_layout rec_sess_res = {rec_sess_res_slots};

constexpr slot replay_req_slots[] = {
    u32({1}), u16({2}), number_of(4, {4}, 1), u32({3}), list_of(session_context, 1, 4, {4}), u8({5}), chars(65, {6})};
constexpr application_layout replay_req = {replay_req_slots};

constexpr slot replay_failure_slots[] = {u64({1}), u32({2}), inside(subscriber_stats, {3})};
constexpr application_layout replay_failure = {replay_failure_slots};

constexpr slot service_start_slots[] = {
    u64({1}), u32({2}), u32({3}), u32({4}), number_of(1, {5}, 8), texts_of(65, 8, 1, {5})};
constexpr application_layout service_start = {service_start_slots};

constexpr slot replay_resp_slots[] = {u32({1}), number_of(4, {2}, 1), number_of(4, {3}, 1),
    list_of(replay_failure, 1, 4, {2}), list_of(service_start, 1, 4, {3}), chars(65, {4}), u32({5})};
constexpr application_layout replay_resp = {replay_resp_slots};

// ---- redundancy group ----

constexpr slot group_start_slots[] = {u32({1}), u16({2}), u32({3})};
constexpr application_layout group_start = {group_start_slots};

constexpr slot group_resp_slots[] = {u32({1}), u32({2})};
constexpr application_layout group_resp = {group_resp_slots};

constexpr slot group_complete_slots[] = {u32({1}), u32({2}), u16({3})};
constexpr application_layout group_complete = {group_complete_slots};

constexpr slot group_data_slots[] = {u32({1}), u32({2}), u32({3}), u32({4}), chars(65, {5})};
constexpr application_layout group_data = {group_data_slots};

constexpr slot group_replay_req_slots[] = {
    u32({1}), u16({2}), number_of(4, {3}, 15), list_of(group_data, 15, 4, {3}), u8({4})};
constexpr application_layout group_replay_req = {group_replay_req_slots};

constexpr slot group_replay_resp_slots[] = {u32({1}), number_of(4, {2}, 15), list_of(group_data, 15, 4, {2}),
    number_of(4, {3}, 15), list_of(group_data, 15, 4, {3}), u32({4})};
constexpr application_layout group_replay_resp = {group_replay_resp_slots};

struct named_layout {
    const char *adapter;
    const application_layout *layout;
};

constexpr named_layout received[] = {{"session_context", &session_context}, {"session_delete", &session_delete},
    {"sess_oper_resp", &sess_oper_resp}, {"subscriber_stats", &subscriber_stats}, {"sub_route", &sub_route},
    {"subscriber_route_resp", &subscriber_route_resp}, {"rec_start_req", &rec_start_req}, {"rec_start_res", &rec_res},
    {"rec_complete_req", &rec_complete_req}, {"rec_complete_res", &rec_res}, {"rec_sess_req", &rec_sess_req},
    {"rec_sess_res", &rec_sess_res}, {"rec_sess_replay_req", &replay_req}, {"rec_sess_replay_resp", &replay_resp},
    {"srg_group_rec_start_req", &group_start}, {"srg_group_rec_resp", &group_resp},
    {"srg_group_rec_complete_req", &group_complete}, {"srg_group_rec_replay_req", &group_replay_req},
    {"srg_group_rec_replay_resp", &group_replay_resp}};

uint32_t rounded_up(uint32_t value, uint32_t alignment)
{
    return (value + alignment - 1) / alignment * alignment;
}

} // namespace

layout_extent extent_of(const slot &member)
{
    switch (member.kind) {
    case number:
    case address:
    case count:
        return {member.bytes, member.bytes};
    case part:
        return extent_of(*member.element);
    case list: {
        const layout_extent one =
            member.element == nullptr ? layout_extent{member.bytes, 1} : extent_of(*member.element);
        return {one.bytes * member.slots, one.alignment};
    }
    default:
        return {member.bytes, 1};
    }
}

layout_extent extent_of(const application_layout &layout)
{
    layout_extent whole = {0, 1};
    for (const slot &member : layout.slots) {
        const layout_extent own = extent_of(member);
        whole.bytes = rounded_up(whole.bytes, own.alignment) + own.bytes;
        whole.alignment = std::max(whole.alignment, own.alignment);
    }
    whole.bytes = rounded_up(whole.bytes, whole.alignment);
    return whole;
}

const application_layout *received_layout(const char *adapter_name)
{
    for (const named_layout &each : received) {
        if (std::strcmp(each.adapter, adapter_name) == 0)
            return each.layout;
    }
    return nullptr;
}

} // namespace mava_tum_model
