#include "peers/protobuf_c/protobuf_c_fields.h"
#include "peers/protobuf_c/protobuf_c_records.h"

namespace bench
{
namespace
{

// What both families hold alike.
template <class Route, class Message>
void fill_common(const Route &route, Message &message)
{
    put(message.has_field_1, message.field_1, route.field_1);
    put_text(message.field_2, route.field_2);
    put_nonzero(message.has_field_4, message.field_4, route.field_4);
    put_text(message.field_6, route.field_6);
    put_nonzero(message.has_field_7, message.field_7, route.field_7);
    put_text(message.field_9, route.field_9);
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

void fill_peer(const tum_nal_data_ipv4_route &route, Bench__Peer__SubscriberRouteIpv4 &message)
{
    fill_common(route, message);
    put_nonzero(message.has_field_3, message.field_3, swap_ipv4(route.field_3));
    put_nonzero(message.has_field_5, message.field_5, swap_ipv4(route.field_5));
    put_nonzero(message.has_field_7, message.field_7, route.field_8);
}

void fill_peer(const tum_nal_data_ipv6_route &route, Bench__Peer__SubscriberRouteIpv6 &message)
{
    fill_common(route, message);
    if (any_byte_set(route.field_3))
        put_bytes(message.has_field_3, message.field_3, route.field_3);
    if (any_byte_set(route.field_5))
        put_bytes(message.has_field_5, message.field_5, route.field_5);
    put_nonzero(message.has_field_8, message.field_8, route.field_8);
}

void read_peer(const Bench__Peer__SubscriberRouteIpv4 &message, tum_nal_data_ipv4_route &route)
{
    read_common(message, route);
    route.field_3 = swap_ipv4(message.field_3);
    route.field_5 = swap_ipv4(message.field_5);
}

void read_peer(const Bench__Peer__SubscriberRouteIpv6 &message, tum_nal_data_ipv6_route &route)
{
    read_common(message, route);
    take_bytes(route.field_3, message.field_3);
    take_bytes(route.field_5, message.field_5);
}

void fill_peer(const tum_nal_data_sub_route &record, Bench__Peer__SubRoute &message, routes_parts &parts)
{
    put(message.has_field_1, message.field_1, record.field_1);
    put(message.has_field_2, message.field_2, record.field_2);
    put(message.has_field_3, message.field_3, record.field_3);
    message.n_ipv4_routes = record.ipv4_route_count;
    message.ipv4_routes = parts.ipv4_routes.pointers;
    for (unsigned i = 0; i < record.ipv4_route_count; ++i) {
        fill_peer(record.ipv4_routes[i],
            attach(message.ipv4_routes[i], parts.ipv4_routes.messages[i], bench__peer__subscriber_route_ipv4__init));
    }
    message.n_ipv6_routes = record.ipv6_route_count;
    message.ipv6_routes = parts.ipv6_routes.pointers;
    for (unsigned i = 0; i < record.ipv6_route_count; ++i) {
        fill_peer(record.ipv6_routes[i],
            attach(message.ipv6_routes[i], parts.ipv6_routes.messages[i], bench__peer__subscriber_route_ipv6__init));
    }
    put(message.has_field_6, message.field_6, record.field_6);
}

void read_peer(const Bench__Peer__SubRoute &message, tum_nal_data_sub_route &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1;
    record.field_2 = static_cast<uint16_t>(message.field_2);
    record.field_3 = message.field_3;
    record.ipv4_route_count = slots_taken<uint8_t>(message.n_ipv4_routes, record.ipv4_routes);
    for (unsigned i = 0; i < record.ipv4_route_count; ++i)
        read_peer(*message.ipv4_routes[i], record.ipv4_routes[i]);
    record.ipv6_route_count = slots_taken<uint8_t>(message.n_ipv6_routes, record.ipv6_routes);
    for (unsigned i = 0; i < record.ipv6_route_count; ++i)
        read_peer(*message.ipv6_routes[i], record.ipv6_routes[i]);
    record.field_6 = message.field_6;
}

} // namespace bench
