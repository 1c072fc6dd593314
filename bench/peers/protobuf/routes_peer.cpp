#include "peers/protobuf/routes_peer.h"

#include "peers/protobuf/peer_fields.h"

namespace bench
{
namespace
{

// What both families hold alike.
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

} // namespace bench
