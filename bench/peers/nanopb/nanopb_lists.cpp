// The messages that are lists: routes, statistics and session states.
#include "peers/nanopb/nanopb_records.h"

namespace bench
{
namespace
{

// The members that routes of both families have.
template <class Route, class Message>
void fill_common(const Route &route, Message &message)
{
    put(message.has_field_1, message.field_1, route.field_1);
    put_text(message.has_field_2, message.field_2, route.field_2);
    put_nonzero(message.has_field_4, message.field_4, route.field_4);
    put_text(message.has_field_6, message.field_6, route.field_6);
    put_nonzero(message.has_field_7, message.field_7, route.field_7);
    put_text(message.has_field_9, message.field_9, route.field_9);
}

template <class Message, class Route>
void read_common(const Message &message, Route &route)
{
    route.field_1 = message.field_1;
    take_text(route.field_2, message.field_2, short_route_text_limit);
    route.field_4 = static_cast<uint8_t>(message.field_4);
    take_text(route.field_6, message.field_6, short_route_text_limit);
    route.field_7 = message.field_7;
    route.field_8 = message.field_8;
    take_text(route.field_9, message.field_9, long_route_text_limit);
}

} // namespace

void fill_peer(const tum_nal_data_ipv4_route &route, bench_peer_SubscriberRouteIpv4 &message)
{
    fill_common(route, message);
    put_nonzero(message.has_field_3, message.field_3, swap_ipv4(route.field_3));
    put_nonzero(message.has_field_5, message.field_5, swap_ipv4(route.field_5));
    put_nonzero(message.has_field_7, message.field_7, route.field_8);
}

void fill_peer(const tum_nal_data_ipv6_route &route, bench_peer_SubscriberRouteIpv6 &message)
{
    fill_common(route, message);
    if (any_byte_set(route.field_3))
        put_bytes(message.has_field_3, message.field_3, route.field_3);
    if (any_byte_set(route.field_5))
        put_bytes(message.has_field_5, message.field_5, route.field_5);
    put_nonzero(message.has_field_8, message.field_8, route.field_8);
}

void read_peer(const bench_peer_SubscriberRouteIpv4 &message, tum_nal_data_ipv4_route &route)
{
    read_common(message, route);
    route.field_3 = swap_ipv4(message.field_3);
    route.field_5 = swap_ipv4(message.field_5);
}

void read_peer(const bench_peer_SubscriberRouteIpv6 &message, tum_nal_data_ipv6_route &route)
{
    read_common(message, route);
    take_bytes(route.field_3, message.field_3);
    take_bytes(route.field_5, message.field_5);
}

void fill_peer(const tum_nal_data_sub_route &record, bench_peer_SubRoute &message)
{
    put(message.has_field_1, message.field_1, record.field_1);
    put(message.has_field_2, message.field_2, record.field_2);
    put(message.has_field_3, message.field_3, record.field_3);
    message.ipv4_routes_count = record.ipv4_route_count;
    for (unsigned i = 0; i < record.ipv4_route_count; ++i)
        fill_peer(record.ipv4_routes[i], message.ipv4_routes[i]);
    message.ipv6_routes_count = record.ipv6_route_count;
    for (unsigned i = 0; i < record.ipv6_route_count; ++i)
        fill_peer(record.ipv6_routes[i], message.ipv6_routes[i]);
    put(message.has_field_6, message.field_6, record.field_6);
}

void read_peer(const bench_peer_SubRoute &message, tum_nal_data_sub_route &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1;
    record.field_2 = static_cast<uint16_t>(message.field_2);
    record.field_3 = message.field_3;
    record.ipv4_route_count = static_cast<uint8_t>(message.ipv4_routes_count);
    for (unsigned i = 0; i < record.ipv4_route_count; ++i)
        read_peer(message.ipv4_routes[i], record.ipv4_routes[i]);
    record.ipv6_route_count = static_cast<uint8_t>(message.ipv6_routes_count);
    for (unsigned i = 0; i < record.ipv6_route_count; ++i)
        read_peer(message.ipv6_routes[i], record.ipv6_routes[i]);
    record.field_6 = message.field_6;
}

namespace
{

void fill_block(const tum_nal_data_stats_block &block, bench_peer_Stats &message)
{
    put_nonzero(message.has_field_1, message.field_1, block.counter[0]);
    put_nonzero(message.has_field_2, message.field_2, block.counter[1]);
    put_nonzero(message.has_field_3, message.field_3, block.counter[2]);
    put_nonzero(message.has_field_4, message.field_4, block.counter[3]);
    put_nonzero(message.has_field_5, message.field_5, block.counter[4]);
    put_nonzero(message.has_field_6, message.field_6, block.counter[5]);
    put_nonzero(message.has_field_7, message.field_7, block.counter[6]);
    put_nonzero(message.has_field_8, message.field_8, block.counter[7]);
    put_nonzero(message.has_field_9, message.field_9, block.counter[8]);
    put_nonzero(message.has_field_10, message.field_10, block.counter[9]);
    put_nonzero(message.has_field_11, message.field_11, block.counter[10]);
    put_nonzero(message.has_field_12, message.field_12, block.counter[11]);
    put_nonzero(message.has_field_13, message.field_13, block.counter[12]);
    put_nonzero(message.has_field_14, message.field_14, block.counter[13]);
    put_nonzero(message.has_field_15, message.field_15, block.counter[14]);
    put_nonzero(message.has_field_16, message.field_16, block.counter[15]);
    put_nonzero(message.has_field_17, message.field_17, block.counter[16]);
    put_nonzero(message.has_field_18, message.field_18, block.counter[17]);
}

void read_block(const bench_peer_Stats &message, tum_nal_data_stats_block &block)
{
    block.counter[0] = message.field_1;
    block.counter[1] = message.field_2;
    block.counter[2] = message.field_3;
    block.counter[3] = message.field_4;
    block.counter[4] = message.field_5;
    block.counter[5] = message.field_6;
    block.counter[6] = message.field_7;
    block.counter[7] = message.field_8;
    block.counter[8] = message.field_9;
    block.counter[9] = message.field_10;
    block.counter[10] = message.field_11;
    block.counter[11] = message.field_12;
    block.counter[12] = message.field_13;
    block.counter[13] = message.field_14;
    block.counter[14] = message.field_15;
    block.counter[15] = message.field_16;
    block.counter[16] = message.field_17;
    block.counter[17] = message.field_18;
}

} // namespace

void fill_peer(const tum_nal_data_subscriber_stats &record, bench_peer_SubscriberStats &message)
{
    put_nonzero(message.has_field_1, message.field_1, record.value_1);
    put_nonzero(message.has_field_2, message.field_2, record.value_2);
    put_nonzero(message.has_field_3, message.field_3, record.value_3);
    put_nonzero(message.has_field_4, message.field_4, record.value_4);
    put_nonzero(message.has_field_5, message.field_5, record.value_5);
    put_nonzero(message.has_field_6, message.field_6, record.value_6);
    message.has_field_7 = record.value_6 != 0;
    if (message.has_field_7)
        fill_block(record.block_7, message.field_7);
    message.services_count = record.service_count;
    for (unsigned i = 0; i < record.service_count; ++i) {
        bench_peer_ServiceStats &service = message.services[i];
        put_text_always(service.has_field_1, service.field_1, record.services[i].name);
        service.has_field_2 = true;
        fill_block(record.services[i].stats, service.field_2);
    }
    message.has_field_10 = record.block_10_switch != 0;
    if (message.has_field_10)
        fill_block(record.block_10, message.field_10);
    message.has_field_12 = record.block_12_switch != 0;
    if (message.has_field_12)
        fill_block(record.block_12, message.field_12);
}

void read_peer(const bench_peer_SubscriberStats &message, tum_nal_data_subscriber_stats &record)
{
    std::memset(&record, 0, sizeof record);
    record.value_1 = message.field_1;
    record.value_2 = message.field_2;
    record.value_3 = message.field_3;
    record.value_4 = message.field_4;
    record.value_5 = message.field_5;
    record.value_6 = message.field_6;
    read_block(message.field_7, record.block_7);
    record.service_count = static_cast<uint8_t>(message.services_count);
    for (unsigned i = 0; i < record.service_count; ++i) {
        take_text(record.services[i].name, message.services[i].field_1);
        read_block(message.services[i].field_2, record.services[i].stats);
    }
    record.block_10_switch = message.field_9;
    read_block(message.field_10, record.block_10);
    record.block_12_switch = message.field_11;
    read_block(message.field_12, record.block_12);
}

void fill_peer(const tum_nal_data_rec_sess_req &record, bench_peer_RecSessReq &message)
{
    put(message.has_field_1, message.field_1, record.field_1);
    put(message.has_field_2, message.field_2, record.field_2);
    message.states_count = static_cast<pb_size_t>(record.field_3_count);
    for (uint32_t i = 0; i < record.field_3_count; ++i) {
        bench_peer_RecSessionState &state = message.states[i];
        put(state.has_field_1, state.field_1, record.field_3[i].field_1);
        put(state.has_field_2, state.field_2, record.field_3[i].field_2);
        put(state.has_field_3, state.field_3, record.field_3[i].field_3);
    }
    put_text(message.has_field_4, message.field_4, record.field_4);
    put_text(message.has_field_5, message.field_5, record.field_5);
}

void read_peer(const bench_peer_RecSessReq &message, tum_nal_data_rec_sess_req &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1;
    record.field_2 = static_cast<uint16_t>(message.field_2);
    record.field_3_count = message.states_count;
    for (uint32_t i = 0; i < record.field_3_count; ++i) {
        record.field_3[i].field_1 = message.states[i].field_1;
        record.field_3[i].field_2 = message.states[i].field_2;
        record.field_3[i].field_3 = message.states[i].field_3;
    }
    take_text(record.field_4, message.field_4);
    take_text(record.field_5, message.field_5);
    record.field_6 = static_cast<uint8_t>(message.field_6);
}

void fill_peer(const tum_nal_data_srg_group_rec_start_req &record, bench_peer_SrgGroupRecStartReq &message)
{
    put(message.has_field_1, message.field_1, record.field_1);
    put(message.has_field_2, message.field_2, record.field_2);
    put(message.has_field_3, message.field_3, record.field_3);
}

void read_peer(const bench_peer_SrgGroupRecStartReq &message, tum_nal_data_srg_group_rec_start_req &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1;
    record.field_2 = static_cast<uint16_t>(message.field_2);
    record.field_3 = message.field_3;
}

} // namespace bench
