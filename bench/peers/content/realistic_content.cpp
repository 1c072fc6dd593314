#include "peers/content/content.h"

#include <cstdio>
#include <cstring>

namespace bench
{
namespace
{

// Texts keep their form and change their numbers, as names in a network do.
template <size_t Bytes, class... Numbers>
void print_text(char (&array)[Bytes], const char *format, Numbers... numbers)
{
    std::snprintf(array, Bytes, format, static_cast<unsigned>(numbers)...);
}

uint32_t small(random_source &random, uint32_t last)
{
    return static_cast<uint32_t>(random.between(1, last));
}

uint32_t counter(random_source &random)
{
    return static_cast<uint32_t>(random.of_any_width(32));
}

uint16_t vlan(random_source &random)
{
    return static_cast<uint16_t>(random.between(2, 4094));
}

// The last four bytes: the site's prefix stays.
void vary_ipv6(random_source &random, uint8_t (&address)[16])
{
    const uint64_t bits = random.bits();
    std::memcpy(address + 12, &bits, 4);
}

void vary_identity(random_source &random, tum_nal_data_session_context &record)
{
    record.session_value_2 = static_cast<uint32_t>(random.between(0x2000, 0x2FFF));
    record.session_value_3 = static_cast<uint32_t>(random.between(1000, 60000));
    record.session_value_4 = small(random, 3);
    record.session_value_7 = counter(random);
    record.ipv4_address = static_cast<uint32_t>(0xC6120000 + random.between(1, 0x1FFFF)); // 198.18.0.0/15
    vary_ipv6(random, record.ipv6_part_3);
    if (random.in_percent(12))
        record.feature_mask &= ~static_cast<uint32_t>(TUM_NAL_FEATURE_IPV6_PART_3);
}

void vary_ppp_session(random_source &random, tum_nal_data_session_context &record)
{
    const uint64_t line = random.between(1, 9999);
    record.session_data_value_1 = small(random, 9);
    record.session_data_value_2 = 0x0000001000000000 + random.between(0, 0xFFFFFFFF);
    record.ppp_value_2 = 0x50000000 + static_cast<uint32_t>(random.between(0, 0xFFFFFFF));
    record.ppp_value_3 = 0x10000000 + static_cast<uint32_t>(random.between(0, 0xFFFFFFF));
    record.ppp_value_4 = small(random, 2);
    print_text(record.session_name, "line-%04u@access.example.net", line);
    print_text(record.session_label, "olt-%02u/%u/%u/%02u", random.between(1, 40), random.between(1, 8),
        random.between(1, 8), random.between(1, 64));
    if (random.in_percent(25))
        record.session_text[0] = 0;
    record.session_value_9 = static_cast<uint16_t>(random.between(60, 3600));
    record.vlan_value_1 = vlan(random);
    record.vlan_value_2 = vlan(random);
    record.session_data_value_11 = counter(random);
}

void vary_features(random_source &random, tum_nal_data_session_context &record)
{
    for (unsigned i = 0; i < record.qos_count; ++i) {
        record.qos[i].value_2 = static_cast<uint32_t>(random.between(1, 1000) * 1000);
        record.qos[i].value_8 = static_cast<uint32_t>(random.between(1, 200) * 500);
    }
    record.acl_value_1 = small(random, 5);
    record.accounting_value_2 = static_cast<uint32_t>(random.between(60, 3600));
    record.accounting_value_3 = counter(random);
}

void vary_l2tp(random_source &random, tum_nal_data_session_context &record)
{
    record.l2tp_value_6 = static_cast<uint16_t>(counter(random));
    record.l2tp_value_7 = static_cast<uint16_t>(counter(random));
    record.l2tp_value_11 = counter(random);
    record.l2tp_value_13 = counter(random);
    record.l2tp_value_14 = counter(random);
    print_text(record.l2tp_name, "lac-north-%02u.example.net", random.between(0, 99));
}

template <class Route>
void vary_route(random_source &random, Route &route)
{
    route.field_1 = small(random, 4);
    print_text(route.field_2, "vrf-residential-%02u", random.between(0, 99));
    print_text(route.field_6, "vrf-wholesale-%02u", random.between(0, 99));
    route.field_7 = static_cast<uint32_t>(random.between(1, 255));
    print_text(route.field_9, "route to the customer's own network-%02u", random.between(0, 99));
}

void vary_ipv4_route(random_source &random, tum_nal_data_ipv4_route &route)
{
    vary_route(random, route);
    route.field_3 = static_cast<uint32_t>(0xC6120000 + random.between(1, 0x1FFFF));
    route.field_4 = static_cast<uint8_t>(random.between(24, 32));
}

void vary_ipv6_route(random_source &random, tum_nal_data_ipv6_route &route)
{
    vary_route(random, route);
    vary_ipv6(random, route.field_3);
    route.field_4 = static_cast<uint8_t>(random.between(48, 64));
    route.field_8 = counter(random);
}

void vary_block(random_source &random, tum_nal_data_stats_block &block)
{
    for (uint32_t &value : block.counter)
        value = counter(random);
}

} // namespace

void fill_realistic_typical_session(random_source &random, tum_nal_data_session_context &record)
{
    fill_typical_session(record);
    vary_identity(random, record);
    vary_ppp_session(random, record);
    vary_features(random, record);
}

void fill_realistic_full_session(random_source &random, tum_nal_data_session_context &record)
{
    fill_full_session(record);
    vary_identity(random, record);
    vary_ppp_session(random, record);
    vary_features(random, record);
    vary_l2tp(random, record);
    for (tum_nal_data_ipv4_route &route : record.ipv4_routes)
        vary_ipv4_route(random, route);
    for (tum_nal_data_ipv6_route &route : record.ipv6_routes)
        vary_ipv6_route(random, route);
}

void fill_realistic_route_batch(random_source &random, tum_nal_data_sub_route &record)
{
    fill_route_batch(record);
    record.field_3 = counter(random);
    for (tum_nal_data_ipv4_route &route : record.ipv4_routes)
        vary_ipv4_route(random, route);
    for (tum_nal_data_ipv6_route &route : record.ipv6_routes)
        vary_ipv6_route(random, route);
}

void fill_realistic_subscriber_stats(random_source &random, tum_nal_data_subscriber_stats &record)
{
    fill_subscriber_stats(record);
    record.value_1 = 0x0000001000000000 + random.between(0, 0xFFFFFFFF);
    record.value_2 = static_cast<uint32_t>(random.between(1000, 60000));
    record.value_3 = counter(random);
    record.value_4 = small(random, 5);
    vary_block(random, record.block_7);
    vary_block(random, record.block_10);
    vary_block(random, record.block_12);
    for (tum_nal_data_service_entry &service : record.services) {
        print_text(service.name, "service-triple-play-%02u", random.between(0, 99));
        vary_block(random, service.stats);
    }
}

void fill_realistic_session_states(random_source &random, tum_nal_data_rec_sess_req &record)
{
    fill_session_states(record);
    record.field_1 = static_cast<uint32_t>(random.between(1, 100));
    for (tum_nal_data_session_state &state : record.field_3) {
        state.field_1 = small(random, 5);
        state.field_2 = 0x0000001000000000 + random.between(0, 0xFFFFFFFF);
        state.field_3 = counter(random);
    }
}

} // namespace bench
