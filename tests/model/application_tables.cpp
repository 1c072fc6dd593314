// A second copy of every application record, typed by hand from its description so that it can disagree. See
// application_layout.h.
#include "model/application_layout.h"

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

constexpr slot going_into(uint8_t sent_as, slot member)
{
    member.sent_as = sent_as;
    return member;
}

// ---- conditions of sending ----

using condition = bool (*)(const slot_view &);

constexpr slot sent(condition when, slot member)
{
    member.when = when;
    return member;
}

bool filled(const slot_view &own)
{
    return own.filled();
}

bool always(const slot_view &)
{
    return true;
}

bool never(const slot_view &)
{
    return false;
}

constexpr slot nz(slot member)
{
    return sent(filled, member);
}

// ---- of the session context: bits of its feature mask, and other members ----

constexpr field_path feature_mask = {5};
constexpr field_path l2tp_kind = {10, 4, 1};

bool has_bit(const slot_view &own, uint32_t bit)
{
    return (own.number_at(feature_mask) >> bit & 1) != 0;
}

template <uint32_t... bits>
bool on(const slot_view &own)
{
    return (has_bit(own, bits) || ...);
}

template <uint32_t bit>
bool on_and_filled(const slot_view &own)
{
    return has_bit(own, bit) && own.filled();
}

// The bit is set, and the text or list is not empty.
template <uint32_t bit>
bool on_with_text(const slot_view &own)
{
    return has_bit(own, bit) && *own.content() != 0;
}

template <uint32_t bit>
bool on_with_elements(const slot_view &own)
{
    return has_bit(own, bit) && own.elements() != 0;
}

template <uint32_t kind>
bool l2tp_endpoint(const slot_view &own)
{
    return has_bit(own, 25) && own.number_at(l2tp_kind) == kind && own.filled();
}

template <uint8_t other>
bool l2tp_with(const slot_view &own)
{
    return has_bit(own, 25) && own.filled() && own.number_at({10, 4, other}) != 0;
}

bool with_ipv4_address(const slot_view &own)
{
    return has_bit(own, 9) && own.number_at({8, 2}) != 0;
}

bool in_session_of_kind_1_or_4(const slot_view &own)
{
    const uint64_t kind = own.number_at({1});
    return kind == 1 || kind == 4;
}

bool in_session_of_kind_4(const slot_view &own)
{
    return own.number_at({1}) == 4 && own.filled();
}

template <uint32_t flag>
bool accounting(const slot_view &own)
{
    return has_bit(own, 7) && (own.number_at({22, 1}) >> flag & 1) != 0;
}

bool at_most_5(const slot_view &own)
{
    return own.number() <= 5;
}

template <uint8_t other>
bool with_number(const slot_view &own)
{
    return own.number_at({other}) != 0;
}

// ---- session context ----

constexpr slot qos_slots[] = {u32({1}), nz(u32({2})), chars(65, {3}), chars(256, {4}), chars(256, {5}), nz(u16({6})),
    nz(u16({7})), nz(u32({8})), chars(65, {12}), chars(65, {10}), chars(65, {11})};
constexpr application_layout qos = layout_of(qos_slots);

constexpr slot ipv4_route_slots[] = {u32({1}), chars(36, {2}, 33), nz(ipv4({3})), nz(u8({4})), nz(ipv4({5})),
    chars(36, {6}, 33), nz(u32({7})), going_into(7, nz(u32({8}))), chars(68, {9}, 65)};
constexpr application_layout ipv4_route = layout_of(ipv4_route_slots);

constexpr slot ipv6_route_slots[] = {u32({1}), chars(36, {2}, 33), nz(octets(16, {3})), nz(u8({4})),
    nz(octets(16, {5})), chars(36, {6}, 33), nz(u32({7})), nz(u32({8})), chars(68, {9}, 65)};
constexpr application_layout ipv6_route = layout_of(ipv6_route_slots);

constexpr slot session_context_slots[] = {u32({1}), u32({2}), u32({3}), u32({4}), u32({5}), unused(20), u32({7}),
    // addresses
    sent(with_ipv4_address, u32({8, 1})), sent(with_ipv4_address, ipv4({8, 2})), unused(4),
    sent(on<10, 11, 12, 26>, u32({9, 1})), unused(4), sent(on<10>, octets(16, {9, 2})),
    sent(on<11>, octets(16, {9, 3})), sent(on<12>, octets(16, {9, 4})), sent(on<26>, octets(16, {9, 6})),
    sent(on<11>, arriving_with(3, u8({9, 5}))), sent(on<26>, arriving_with(6, u8({9, 7}))),
    // session data, with its PPP part
    nz(u32({10, 1})), nz(u64({10, 2})), {mark, 0, {10, 3}}, sent(on_and_filled<19>, u32({10, 3, 1})),
    sent(on_and_filled<20>, u32({10, 3, 2})), sent(on_and_filled<20>, u32({10, 3, 3})),
    sent(on_and_filled<19>, u32({10, 3, 4})), sent(on<23>, octets(9, {10, 3, 5})), nz(u16({10, 3, 6})),
    // its L2TP part
    sent(on<25>, u32({10, 4, 1})), sent(l2tp_endpoint<1>, ipv4({10, 4, 2})), sent(l2tp_endpoint<1>, ipv4({10, 4, 3})),
    sent(l2tp_endpoint<2>, octets(16, {10, 4, 4})), sent(l2tp_endpoint<2>, octets(16, {10, 4, 5})),
    sent(on_and_filled<25>, u16({10, 4, 6})), sent(on_and_filled<25>, u16({10, 4, 7})),
    sent(on_and_filled<25>, u16({10, 4, 8})), sent(on_and_filled<25>, u16({10, 4, 9})),
    sent(on_and_filled<25>, u8({10, 4, 10})), sent(on_and_filled<25>, u32({10, 4, 11})),
    sent(on_and_filled<25>, u32({10, 4, 12})), sent(on_and_filled<25>, u32({10, 4, 13})),
    sent(on_and_filled<25>, u32({10, 4, 14})), sent(on_and_filled<25>, u32({10, 4, 15})),
    sent(l2tp_with<15>, u32({10, 4, 16})), sent(on_and_filled<25>, u32({10, 4, 17})),
    sent(l2tp_with<17>, u32({10, 4, 18})), sent(on_with_text<25>, chars(33, {10, 4, 19})),
    // its texts, and its VLAN part
    chars(65, {10, 5}), sent(in_session_of_kind_1_or_4, octets(7, {10, 6})), chars(33, {10, 7}), chars(65, {10, 8}),
    sent(in_session_of_kind_4, u16({10, 9})), sent(on<16>, u16({10, 10, 1})), sent(on<17>, u16({10, 10, 2})),
    nz(u32({10, 11})),
    // features
    sent(on_with_elements<0>, list_of(qos, 8, 1, {11})), number_of(1, {11}, 8), sent(on<8>, u32({12, 1})),
    sent(on_with_text<8>, chars(65, {12, 2})), sent(on_with_text<8>, chars(65, {12, 3})),
    sent(on_with_text<8>, chars(65, {12, 4})), sent(on_with_text<8>, chars(65, {12, 5})), sent(on<1>, u32({13, 1})),
    sent(on_with_text<1>, chars(256, {13, 2})), sent(on<2>, u32({14, 1})), sent(on<2>, u32({14, 2})),
    sent(on<2>, u16({14, 3})), sent(on<2>, octets(8, {14, 4})), sent(on<2>, u32({14, 5})), sent(on<2>, u32({14, 6})),
    sent(on_and_filled<2>, ipv4({14, 7})), sent(on_and_filled<2>, octets(16, {14, 8})), sent(on<3>, u32({15, 1})),
    sent(on<3>, u32({15, 2})), sent(on<4>, u32({16, 1})), sent(on<4>, u32({16, 2})), sent(on<5>, u32({17, 1})),
    sent(on<6>, u32({18, 1})), sent(on<21>, u32({19, 1})), sent(on<22>, u32({20, 1})), sent(on<24>, u32({21, 1})),
    sent(on<7>, u32({22, 1})), sent(accounting<0>, u32({22, 2})), sent(accounting<1>, u32({22, 3})),
    // routes
    number_of(1, {23}, 4), number_of(1, {24}, 4), sent(on_with_elements<13>, list_of(ipv4_route, 4, 1, {23})),
    sent(on_with_elements<14>, list_of(ipv6_route, 4, 1, {24}))};
constexpr application_layout session_context = layout_of(session_context_slots);

// ---- session, statistics, routes ----

constexpr slot session_delete_slots[] = {
    sent(at_most_5, u32({1})), nz(u32({2})), nz(u16({3})), nz(u64({4})), nz(u32({5}))};
constexpr application_layout session_delete = layout_of(session_delete_slots);

constexpr slot counter_slots[] = {nz(u32({1})), nz(u32({2})), nz(u32({3})), nz(u32({4})), nz(u32({5})), nz(u32({6})),
    nz(u32({7})), nz(u32({8})), nz(u32({9})), nz(u32({10})), nz(u32({11})), nz(u32({12})), nz(u32({13})), nz(u32({14})),
    nz(u32({15})), nz(u32({16})), nz(u32({17})), nz(u32({18}))};
constexpr application_layout counters = layout_of(counter_slots);

constexpr slot service_slots[] = {sent(always, chars(65, {1})), inside(counters, {2})};
constexpr application_layout service = layout_of(service_slots);

// The switches of the last two blocks arrive from separate fields, but are not sent.
constexpr slot subscriber_stats_slots[] = {nz(u64({1})), nz(u32({2})), nz(u32({3})), nz(u32({4})), nz(u32({5})),
    nz(u32({6})), sent(with_number<6>, inside(counters, {7})), number_of(1, {8}, 8), list_of(service, 8, 1, {8}),
    sent(never, u32({9})), sent(with_number<9>, inside(counters, {10})), sent(never, u32({11})),
    sent(with_number<11>, inside(counters, {12}))};
constexpr application_layout subscriber_stats = layout_of(subscriber_stats_slots);

constexpr slot sess_oper_resp_slots[] = {u32({1}), nz(u32({2})), nz(u32({3})), nz(u64({4})), nz(u32({5})),
    chars(65, {6}), chars(65, {7}), chars(65, {8}), inside(subscriber_stats, {9})};
constexpr application_layout sess_oper_resp = layout_of(sess_oper_resp_slots);

constexpr slot sub_route_slots[] = {u32({1}), u16({2}), u32({3}), number_of(1, {4}, 50), number_of(1, {5}, 50),
    list_of(ipv4_route, 50, 1, {4}), list_of(ipv6_route, 50, 1, {5}), u32({6})};
constexpr application_layout sub_route = layout_of(sub_route_slots);

constexpr slot subscriber_route_resp_slots[] = {u32({1}), u32({2}), chars(65, {3}), chars(65, {4})};
constexpr application_layout subscriber_route_resp = layout_of(subscriber_route_resp_slots);

// ---- reconciliation ----

// Field 3 arrives in the first member; the next two stay zero.
constexpr slot rec_start_req_slots[] = {u32({3}), unused(2), unused(2), unused(4), chars(65, {4})};
constexpr application_layout rec_start_req = layout_of(rec_start_req_slots);

constexpr slot sent_start_req_slots[] = {u32({1}), u16({2}), u32({3}), chars(65, {4})};
constexpr application_layout sent_start_req = layout_of(sent_start_req_slots);

constexpr slot rec_complete_req_slots[] = {u32({1}), u32({2}), u16({3}), chars(65, {4})};
constexpr application_layout rec_complete_req = layout_of(rec_complete_req_slots);

constexpr slot rec_res_slots[] = {u32({1}), chars(65, {2}), u32({3})};
constexpr application_layout rec_res = layout_of(rec_res_slots);

constexpr slot session_state_slots[] = {u32({1}), u64({2}), u32({3})};
constexpr application_layout session_state = layout_of(session_state_slots);

constexpr slot rec_sess_req_slots[] = {u32({1}), u16({2}), number_of(4, {3}, 30), list_of(session_state, 30, 4, {3}),
    chars(65, {4}), chars(65, {5}), sent(never, u8({6}))};
constexpr application_layout rec_sess_req = layout_of(rec_sess_req_slots);

constexpr slot rec_sess_res_slots[] = {
    u32({1}), number_of(4, {2}, 30), list_of(session_state, 30, 4, {2}), u8({3}), u32({4})};
constexpr application_layout rec_sess_res = layout_of(rec_sess_res_slots);

constexpr slot replay_req_slots[] = {
    u32({1}), u16({2}), number_of(4, {4}, 1), u32({3}), list_of(session_context, 1, 4, {4}), u8({5}), chars(65, {6})};
constexpr application_layout replay_req = layout_of(replay_req_slots);

constexpr slot sent_replay_req_slots[] = {
    chars(65, {6}), u32({3}), number_of(4, {4}, 1), u32({1}), u16({2}), u8({5}), list_of(session_context, 1, 4, {4})};
constexpr application_layout sent_replay_req = layout_of(sent_replay_req_slots);

constexpr slot replay_failure_slots[] = {u64({1}), u32({2}), inside(subscriber_stats, {3})};
constexpr application_layout replay_failure = layout_of(replay_failure_slots);

constexpr slot service_start_slots[] = {
    u64({1}), u32({2}), u32({3}), u32({4}), number_of(1, {5}, 8), texts_of(65, 8, 1, {5})};
constexpr application_layout service_start = layout_of(service_start_slots);

constexpr slot replay_resp_slots[] = {u32({1}), number_of(4, {2}, 1), number_of(4, {3}, 1),
    list_of(replay_failure, 1, 4, {2}), list_of(service_start, 1, 4, {3}), chars(65, {4}), u32({5})};
constexpr application_layout replay_resp = layout_of(replay_resp_slots);

// ---- redundancy group ----

constexpr slot group_start_slots[] = {u32({1}), u16({2}), u32({3})};
constexpr application_layout group_start = layout_of(group_start_slots);

constexpr slot group_resp_slots[] = {nz(u32({1})), nz(u32({2}))};
constexpr application_layout group_resp = layout_of(group_resp_slots);

constexpr slot group_complete_slots[] = {nz(u32({1})), nz(u32({2})), nz(u16({3}))};
constexpr application_layout group_complete = layout_of(group_complete_slots);

constexpr slot group_data_slots[] = {nz(u32({1})), nz(u32({2})), nz(u32({3})), nz(u32({4})), chars(65, {5})};
constexpr application_layout group_data = layout_of(group_data_slots);

constexpr slot group_replay_req_slots[] = {
    nz(u32({1})), nz(u16({2})), number_of(4, {3}, 15), list_of(group_data, 15, 4, {3}), nz(u8({4}))};
constexpr application_layout group_replay_req = layout_of(group_replay_req_slots);

constexpr slot group_replay_resp_slots[] = {nz(u32({1})), number_of(4, {2}, 15), list_of(group_data, 15, 4, {2}),
    number_of(4, {3}, 15), list_of(group_data, 15, 4, {3}), nz(u32({4}))};
constexpr application_layout group_replay_resp = layout_of(group_replay_resp_slots);

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

} // namespace

const application_layout *received_layout(const char *adapter_name)
{
    for (const named_layout &each : received) {
        if (std::strcmp(each.adapter, adapter_name) == 0)
            return each.layout;
    }
    return nullptr;
}

// Two adapters have different records for sending and receiving.
const application_layout *sent_layout(const char *adapter_name)
{
    if (std::strcmp(adapter_name, "rec_start_req") == 0)
        return &sent_start_req;
    if (std::strcmp(adapter_name, "rec_sess_replay_req") == 0)
        return &sent_replay_req;
    return received_layout(adapter_name);
}

} // namespace mava_tum_model
