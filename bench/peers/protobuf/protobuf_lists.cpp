// The messages that are lists: routes, statistics and session states.
#include "peers/protobuf/protobuf_records.h"

namespace bench
{
namespace
{

// The members that routes of both families have.
template <class Route, class Message>
void fill_common(const Route &route, Message &message)
{
    message.set_field_1(route.field_1);
    if (route.field_2[0] != 0)
        assign_text(message.mutable_field_2(), route.field_2);
    if (route.field_4 != 0)
        message.set_field_4(route.field_4);
    if (route.field_6[0] != 0)
        assign_text(message.mutable_field_6(), route.field_6);
    if (route.field_7 != 0)
        message.set_field_7(route.field_7);
    if (route.field_9[0] != 0)
        assign_text(message.mutable_field_9(), route.field_9);
}

template <class Message, class Route>
void read_common(const Message &message, Route &route)
{
    route.field_1 = message.field_1();
    copy_text(route.field_2, short_route_text_limit, message.field_2());
    route.field_4 = static_cast<uint8_t>(message.field_4());
    copy_text(route.field_6, short_route_text_limit, message.field_6());
    route.field_7 = message.field_7();
    route.field_8 = message.field_8();
    copy_text(route.field_9, long_route_text_limit, message.field_9());
}

} // namespace

void fill_peer(const tum_nal_data_ipv4_route &route, peer::SubscriberRouteIpv4 &message)
{
    fill_common(route, message);
    if (route.field_3 != 0)
        message.set_field_3(swap_ipv4(route.field_3));
    if (route.field_5 != 0)
        message.set_field_5(swap_ipv4(route.field_5));
    if (route.field_8 != 0)
        message.set_field_7(route.field_8);
}

void read_peer(const peer::SubscriberRouteIpv4 &message, tum_nal_data_ipv4_route &route)
{
    read_common(message, route);
    route.field_3 = swap_ipv4(message.field_3());
    route.field_5 = swap_ipv4(message.field_5());
}

void fill_peer(const tum_nal_data_ipv6_route &route, peer::SubscriberRouteIpv6 &message)
{
    fill_common(route, message);
    if (any_byte_set(route.field_3))
        assign_bytes(message.mutable_field_3(), route.field_3);
    if (any_byte_set(route.field_5))
        assign_bytes(message.mutable_field_5(), route.field_5);
    if (route.field_8 != 0)
        message.set_field_8(route.field_8);
}

void read_peer(const peer::SubscriberRouteIpv6 &message, tum_nal_data_ipv6_route &route)
{
    read_common(message, route);
    copy_bytes(route.field_3, message.field_3());
    copy_bytes(route.field_5, message.field_5());
}

void fill_peer(const tum_nal_data_sub_route &record, peer::SubRoute &message)
{
    message.set_field_1(record.field_1);
    message.set_field_2(record.field_2);
    message.set_field_3(record.field_3);
    for (int i = 0; i < record.ipv4_route_count; ++i)
        fill_peer(record.ipv4_routes[i], *message.add_ipv4_routes());
    for (int i = 0; i < record.ipv6_route_count; ++i)
        fill_peer(record.ipv6_routes[i], *message.add_ipv6_routes());
    message.set_field_6(record.field_6);
}

void read_peer(const peer::SubRoute &message, tum_nal_data_sub_route &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1();
    record.field_2 = static_cast<uint16_t>(message.field_2());
    record.field_3 = message.field_3();
    const int ipv4_routes = std::min<int>(message.ipv4_routes_size(), TUM_NAL_SUB_ROUTE_IPV4_ROUTES);
    record.ipv4_route_count = static_cast<uint8_t>(ipv4_routes);
    for (int i = 0; i < ipv4_routes; ++i)
        read_peer(message.ipv4_routes(i), record.ipv4_routes[i]);
    const int ipv6_routes = std::min<int>(message.ipv6_routes_size(), TUM_NAL_SUB_ROUTE_IPV6_ROUTES);
    record.ipv6_route_count = static_cast<uint8_t>(ipv6_routes);
    for (int i = 0; i < ipv6_routes; ++i)
        read_peer(message.ipv6_routes(i), record.ipv6_routes[i]);
    record.field_6 = message.field_6();
}

namespace
{

void fill_block(const tum_nal_data_stats_block &block, peer::Stats &message)
{
    if (block.counter[0] != 0)
        message.set_field_1(block.counter[0]);
    if (block.counter[1] != 0)
        message.set_field_2(block.counter[1]);
    if (block.counter[2] != 0)
        message.set_field_3(block.counter[2]);
    if (block.counter[3] != 0)
        message.set_field_4(block.counter[3]);
    if (block.counter[4] != 0)
        message.set_field_5(block.counter[4]);
    if (block.counter[5] != 0)
        message.set_field_6(block.counter[5]);
    if (block.counter[6] != 0)
        message.set_field_7(block.counter[6]);
    if (block.counter[7] != 0)
        message.set_field_8(block.counter[7]);
    if (block.counter[8] != 0)
        message.set_field_9(block.counter[8]);
    if (block.counter[9] != 0)
        message.set_field_10(block.counter[9]);
    if (block.counter[10] != 0)
        message.set_field_11(block.counter[10]);
    if (block.counter[11] != 0)
        message.set_field_12(block.counter[11]);
    if (block.counter[12] != 0)
        message.set_field_13(block.counter[12]);
    if (block.counter[13] != 0)
        message.set_field_14(block.counter[13]);
    if (block.counter[14] != 0)
        message.set_field_15(block.counter[14]);
    if (block.counter[15] != 0)
        message.set_field_16(block.counter[15]);
    if (block.counter[16] != 0)
        message.set_field_17(block.counter[16]);
    if (block.counter[17] != 0)
        message.set_field_18(block.counter[17]);
}

void read_block(const peer::Stats &message, tum_nal_data_stats_block &block)
{
    block.counter[0] = message.field_1();
    block.counter[1] = message.field_2();
    block.counter[2] = message.field_3();
    block.counter[3] = message.field_4();
    block.counter[4] = message.field_5();
    block.counter[5] = message.field_6();
    block.counter[6] = message.field_7();
    block.counter[7] = message.field_8();
    block.counter[8] = message.field_9();
    block.counter[9] = message.field_10();
    block.counter[10] = message.field_11();
    block.counter[11] = message.field_12();
    block.counter[12] = message.field_13();
    block.counter[13] = message.field_14();
    block.counter[14] = message.field_15();
    block.counter[15] = message.field_16();
    block.counter[16] = message.field_17();
    block.counter[17] = message.field_18();
}

void fill_scalars(const tum_nal_data_subscriber_stats &record, peer::SubscriberStats &message)
{
    if (record.value_1 != 0)
        message.set_field_1(record.value_1);
    if (record.value_2 != 0)
        message.set_field_2(record.value_2);
    if (record.value_3 != 0)
        message.set_field_3(record.value_3);
    if (record.value_4 != 0)
        message.set_field_4(record.value_4);
    if (record.value_5 != 0)
        message.set_field_5(record.value_5);
    if (record.value_6 != 0)
        message.set_field_6(record.value_6);
}

} // namespace

void fill_peer(const tum_nal_data_subscriber_stats &record, peer::SubscriberStats &message)
{
    fill_scalars(record, message);
    if (record.value_6 != 0)
        fill_block(record.block_7, *message.mutable_field_7());
    for (unsigned i = 0; i < record.service_count; ++i) {
        peer::ServiceStats &service = *message.add_services();
        assign_text(service.mutable_field_1(), record.services[i].name);
        fill_block(record.services[i].stats, *service.mutable_field_2());
    }
    if (record.block_10_switch != 0)
        fill_block(record.block_10, *message.mutable_field_10());
    if (record.block_12_switch != 0)
        fill_block(record.block_12, *message.mutable_field_12());
}

void read_peer(const peer::SubscriberStats &message, tum_nal_data_subscriber_stats &record)
{
    std::memset(&record, 0, sizeof record);
    record.value_1 = message.field_1();
    record.value_2 = message.field_2();
    record.value_3 = message.field_3();
    record.value_4 = message.field_4();
    record.value_5 = message.field_5();
    record.value_6 = message.field_6();
    if (message.has_field_7())
        read_block(message.field_7(), record.block_7);
    const int services = std::min<int>(message.services_size(), TUM_NAL_STATS_SERVICES);
    record.service_count = static_cast<uint8_t>(services);
    for (int i = 0; i < services; ++i) {
        copy_text(record.services[i].name, message.services(i).field_1());
        read_block(message.services(i).field_2(), record.services[i].stats);
    }
    record.block_10_switch = message.field_9();
    if (message.has_field_10())
        read_block(message.field_10(), record.block_10);
    record.block_12_switch = message.field_11();
    if (message.has_field_12())
        read_block(message.field_12(), record.block_12);
}

void fill_peer(const tum_nal_data_rec_sess_req &record, peer::RecSessReq &message)
{
    message.set_field_1(record.field_1);
    message.set_field_2(record.field_2);
    for (uint32_t i = 0; i < record.field_3_count; ++i) {
        peer::RecSessionState &state = *message.add_states();
        state.set_field_1(record.field_3[i].field_1);
        state.set_field_2(record.field_3[i].field_2);
        state.set_field_3(record.field_3[i].field_3);
    }
    if (record.field_4[0] != 0)
        assign_text(message.mutable_field_4(), record.field_4);
    if (record.field_5[0] != 0)
        assign_text(message.mutable_field_5(), record.field_5);
}

void read_peer(const peer::RecSessReq &message, tum_nal_data_rec_sess_req &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1();
    record.field_2 = static_cast<uint16_t>(message.field_2());
    const int states = std::min<int>(message.states_size(), TUM_NAL_REC_SESSION_STATES);
    record.field_3_count = static_cast<uint32_t>(states);
    for (int i = 0; i < states; ++i) {
        record.field_3[i].field_1 = message.states(i).field_1();
        record.field_3[i].field_2 = message.states(i).field_2();
        record.field_3[i].field_3 = message.states(i).field_3();
    }
    copy_text(record.field_4, message.field_4());
    copy_text(record.field_5, message.field_5());
    record.field_6 = static_cast<uint8_t>(message.field_6());
}

void fill_peer(const tum_nal_data_srg_group_rec_start_req &record, peer::SrgGroupRecStartReq &message)
{
    message.set_field_1(record.field_1);
    message.set_field_2(record.field_2);
    message.set_field_3(record.field_3);
}

void read_peer(const peer::SrgGroupRecStartReq &message, tum_nal_data_srg_group_rec_start_req &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1();
    record.field_2 = static_cast<uint16_t>(message.field_2());
    record.field_3 = message.field_3();
}

} // namespace bench
