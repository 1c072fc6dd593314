#include "peers/content/content.h"

#include <algorithm>

namespace bench
{
namespace
{

constexpr unsigned presence_percent = 70;

template <class Member>
void maybe(random_source &random, Member &member)
{
    member = random.in_percent(presence_percent) ? static_cast<Member>(random.of_any_width(8 * sizeof member)) : 0;
}

template <size_t Bytes>
void maybe_text(random_source &random, char (&array)[Bytes], size_t longest = Bytes - 1)
{
    const size_t length = random.in_percent(presence_percent) ? random.between(1, longest) : 0;
    std::fill_n(array, Bytes, '\0');
    std::generate_n(array, length, [&random] { return static_cast<char>(random.between('!', '~')); });
}

template <size_t Bytes>
void maybe_bytes(random_source &random, uint8_t (&array)[Bytes])
{
    std::fill_n(array, Bytes, uint8_t{0});
    if (random.in_percent(presence_percent))
        std::generate_n(array, Bytes, [&random] { return static_cast<uint8_t>(random.bits()); });
}

// Texts of a typical session are short, also in long arrays.
struct session_limits {
    uint32_t features;
    uint8_t qos_entries;
    size_t longest_text;
};

// A random count of used slots.
uint8_t some_slots(random_source &random, unsigned slots)
{
    uint8_t taken = 0;
    for (unsigned i = 0; i < slots; ++i)
        taken += random.in_percent(presence_percent);
    return taken;
}

uint32_t some_features(random_source &random, uint32_t features)
{
    for (uint32_t bit = 0; bit < 32; ++bit) {
        if (!random.in_percent(presence_percent))
            features &= ~(uint32_t{1} << bit);
    }
    return features;
}

template <size_t Bytes>
void maybe_session_text(random_source &random, char (&array)[Bytes], const session_limits &limits)
{
    maybe_text(random, array, std::min(Bytes - 1, limits.longest_text));
}

void randomise_identity(random_source &random, tum_nal_data_session_context &record)
{
    record.session_value_1 = static_cast<uint32_t>(random.between(1, 5));
    maybe(random, record.session_value_2);
    maybe(random, record.session_value_3);
    maybe(random, record.session_value_4);
    maybe(random, record.session_value_7);
    maybe(random, record.ipv4_value_1);
    maybe(random, record.ipv4_address);
    maybe(random, record.ipv6_value_1);
    maybe_bytes(random, record.ipv6_part_2);
    maybe_bytes(random, record.ipv6_part_3);
    maybe_bytes(random, record.ipv6_part_4);
    maybe_bytes(random, record.ipv6_part_6);
    maybe(random, record.ipv6_value_5);
    maybe(random, record.ipv6_value_7);
}

void randomise_session_data(random_source &random, const session_limits &limits, tum_nal_data_session_context &record)
{
    maybe(random, record.session_data_value_1);
    maybe(random, record.session_data_value_2);
    maybe(random, record.ppp_value_1);
    maybe(random, record.ppp_value_2);
    maybe(random, record.ppp_value_3);
    maybe(random, record.ppp_value_4);
    maybe_bytes(random, record.ppp_identifier);
    maybe(random, record.ppp_value_6);
    maybe_session_text(random, record.session_name, limits);
    maybe_bytes(random, record.session_identifier);
    maybe_session_text(random, record.session_label, limits);
    maybe_session_text(random, record.session_text, limits);
    maybe(random, record.session_value_9);
    maybe(random, record.vlan_value_1);
    maybe(random, record.vlan_value_2);
    maybe(random, record.session_data_value_11);
}

void randomise_l2tp(random_source &random, const session_limits &limits, tum_nal_data_session_context &record)
{
    record.l2tp_kind = static_cast<uint32_t>(random.between(TUM_NAL_L2TP_IPV4, TUM_NAL_L2TP_IPV6));
    maybe(random, record.l2tp_ipv4_2);
    maybe(random, record.l2tp_ipv4_3);
    maybe_bytes(random, record.l2tp_ipv6_4);
    maybe_bytes(random, record.l2tp_ipv6_5);
    maybe(random, record.l2tp_value_6);
    maybe(random, record.l2tp_value_7);
    maybe(random, record.l2tp_value_8);
    maybe(random, record.l2tp_value_9);
    maybe(random, record.l2tp_value_10);
    maybe(random, record.l2tp_value_11);
    maybe(random, record.l2tp_value_12);
    maybe(random, record.l2tp_value_13);
    maybe(random, record.l2tp_value_14);
    maybe(random, record.l2tp_value_15);
    maybe(random, record.l2tp_value_16);
    maybe(random, record.l2tp_value_17);
    maybe(random, record.l2tp_value_18);
    maybe_session_text(random, record.l2tp_name, limits);
}

void randomise_qos(random_source &random, const session_limits &limits, tum_nal_data_session_context &record)
{
    record.qos_count = some_slots(random, limits.qos_entries);
    for (unsigned i = 0; i < record.qos_count; ++i) {
        tum_nal_data_qos_element &entry = record.qos[i];
        maybe(random, entry.value_1);
        maybe(random, entry.value_2);
        maybe_session_text(random, entry.text_3, limits);
        maybe_session_text(random, entry.text_4, limits);
        maybe_session_text(random, entry.text_5, limits);
        maybe(random, entry.value_6);
        maybe(random, entry.value_7);
        maybe(random, entry.value_8);
        maybe_session_text(random, entry.text_10, limits);
        maybe_session_text(random, entry.text_11, limits);
        maybe_session_text(random, entry.text_12, limits);
    }
}

void randomise_lists(random_source &random, const session_limits &limits, tum_nal_data_session_context &record)
{
    maybe(random, record.acl_value_1);
    maybe_session_text(random, record.acl_text_2, limits);
    maybe_session_text(random, record.acl_text_3, limits);
    maybe_session_text(random, record.acl_text_4, limits);
    maybe_session_text(random, record.acl_text_5, limits);
    maybe(random, record.redirect_value_1);
    maybe_session_text(random, record.redirect_text_2, limits);
    maybe(random, record.intercept_value_1);
    maybe(random, record.intercept_value_2);
    maybe(random, record.intercept_value_3);
    maybe_bytes(random, record.intercept_identifier);
    maybe(random, record.intercept_value_5);
    maybe(random, record.intercept_value_6);
    maybe(random, record.intercept_ipv4_address);
    maybe_bytes(random, record.intercept_ipv6_address);
}

void randomise_checks(random_source &random, tum_nal_data_session_context &record)
{
    maybe(random, record.urpf_1_value_1);
    maybe(random, record.urpf_1_value_2);
    maybe(random, record.urpf_2_value_1);
    maybe(random, record.urpf_2_value_2);
    maybe(random, record.icmp_1_value);
    maybe(random, record.icmp_2_value);
    maybe(random, record.mtu_1_value);
    maybe(random, record.mtu_2_value);
    maybe(random, record.mtu_3_value);
    maybe(random, record.accounting_flags);
    maybe(random, record.accounting_value_2);
    maybe(random, record.accounting_value_3);
}

template <class Route>
void randomise_route(random_source &random, Route &route)
{
    maybe(random, route.field_1);
    maybe_text(random, route.field_2);
    maybe(random, route.field_4);
    maybe_text(random, route.field_6);
    maybe(random, route.field_7);
    maybe(random, route.field_8);
    maybe_text(random, route.field_9);
}

void randomise_ipv4_route(random_source &random, tum_nal_data_ipv4_route &route)
{
    randomise_route(random, route);
    maybe(random, route.field_3);
    maybe(random, route.field_5);
}

void randomise_ipv6_route(random_source &random, tum_nal_data_ipv6_route &route)
{
    randomise_route(random, route);
    maybe_bytes(random, route.field_3);
    maybe_bytes(random, route.field_5);
}

void randomise_routes(random_source &random, tum_nal_data_session_context &record)
{
    record.ipv4_route_count = some_slots(random, TUM_NAL_SESSION_IPV4_ROUTES);
    for (unsigned i = 0; i < record.ipv4_route_count; ++i)
        randomise_ipv4_route(random, record.ipv4_routes[i]);
    record.ipv6_route_count = some_slots(random, TUM_NAL_SESSION_IPV6_ROUTES);
    for (unsigned i = 0; i < record.ipv6_route_count; ++i)
        randomise_ipv6_route(random, record.ipv6_routes[i]);
}

void randomise_session(random_source &random, const session_limits &limits, tum_nal_data_session_context &record)
{
    record.feature_mask = some_features(random, limits.features);
    randomise_identity(random, record);
    randomise_session_data(random, limits, record);
    randomise_l2tp(random, limits, record);
    randomise_qos(random, limits, record);
    randomise_lists(random, limits, record);
    randomise_checks(random, record);
    randomise_routes(random, record);
}

void randomise_block(random_source &random, tum_nal_data_stats_block &block)
{
    for (uint32_t &counter : block.counter)
        maybe(random, counter);
}

} // namespace

// The features are those of the fixed message of the same name.
void fill_random_typical_session(random_source &random, tum_nal_data_session_context &record)
{
    tum_nal_data_session_context typical = {};
    fill_typical_session(typical);
    randomise_session(random, {typical.feature_mask, 3, 32}, record);
}

void fill_random_full_session(random_source &random, tum_nal_data_session_context &record)
{
    tum_nal_data_session_context full = {};
    fill_full_session(full);
    randomise_session(random, {full.feature_mask, TUM_NAL_SESSION_QOS_ENTRIES, 255}, record);
}

void fill_random_route_batch(random_source &random, tum_nal_data_sub_route &record)
{
    maybe(random, record.field_1);
    maybe(random, record.field_2);
    maybe(random, record.field_3);
    record.ipv4_route_count = TUM_NAL_SUB_ROUTE_IPV4_ROUTES;
    for (tum_nal_data_ipv4_route &route : record.ipv4_routes)
        randomise_ipv4_route(random, route);
    record.ipv6_route_count = TUM_NAL_SUB_ROUTE_IPV6_ROUTES;
    for (tum_nal_data_ipv6_route &route : record.ipv6_routes)
        randomise_ipv6_route(random, route);
    maybe(random, record.field_6);
}

void fill_random_subscriber_stats(random_source &random, tum_nal_data_subscriber_stats &record)
{
    maybe(random, record.value_1);
    maybe(random, record.value_2);
    maybe(random, record.value_3);
    maybe(random, record.value_4);
    maybe(random, record.value_5);
    maybe(random, record.value_6);
    randomise_block(random, record.block_7);
    record.service_count = TUM_NAL_STATS_SERVICES;
    for (tum_nal_data_service_entry &service : record.services) {
        maybe_text(random, service.name);
        randomise_block(random, service.stats);
    }
    maybe(random, record.block_10_switch);
    randomise_block(random, record.block_10);
    maybe(random, record.block_12_switch);
    randomise_block(random, record.block_12);
}

void fill_random_session_states(random_source &random, tum_nal_data_rec_sess_req &record)
{
    maybe(random, record.field_1);
    maybe(random, record.field_2);
    record.field_3_count = TUM_NAL_REC_SESSION_STATES;
    for (tum_nal_data_session_state &state : record.field_3) {
        maybe(random, state.field_1);
        maybe(random, state.field_2);
        maybe(random, state.field_3);
    }
    maybe_text(random, record.field_4);
    maybe_text(random, record.field_5);
}

} // namespace bench
