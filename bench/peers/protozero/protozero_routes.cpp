#include "peers/protozero/protozero_records.h"

namespace bench
{

void write_route(writer &message, const tum_nal_data_ipv4_route &route)
{
    message.add_uint32(1, route.field_1);
    write_text(message, 2, route.field_2);
    if (route.field_3 != 0)
        write_ipv4(message, 3, route.field_3);
    write_nonzero(message, 4, route.field_4);
    if (route.field_5 != 0)
        write_ipv4(message, 5, route.field_5);
    write_text(message, 6, route.field_6);
    write_nonzero(message, 7, route.field_8 != 0 ? route.field_8 : route.field_7);
    write_text(message, 9, route.field_9);
}

void write_route(writer &message, const tum_nal_data_ipv6_route &route)
{
    message.add_uint32(1, route.field_1);
    write_text(message, 2, route.field_2);
    if (any_byte_set(route.field_3))
        write_bytes(message, 3, route.field_3);
    write_nonzero(message, 4, route.field_4);
    if (any_byte_set(route.field_5))
        write_bytes(message, 5, route.field_5);
    write_text(message, 6, route.field_6);
    write_nonzero(message, 7, route.field_7);
    write_nonzero(message, 8, route.field_8);
    write_text(message, 9, route.field_9);
}

void read_route(pbf_reader message, tum_nal_data_ipv4_route &route)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            route.field_1 = message.get_uint32();
            break;
        case 2:
            read_text(message, route.field_2, short_route_text_limit);
            break;
        case 3:
            route.field_3 = read_ipv4(message);
            break;
        case 4:
            route.field_4 = static_cast<uint8_t>(message.get_uint32());
            break;
        case 5:
            route.field_5 = read_ipv4(message);
            break;
        case 6:
            read_text(message, route.field_6, short_route_text_limit);
            break;
        case 7:
            route.field_7 = message.get_uint32();
            break;
        case 8:
            route.field_8 = message.get_uint32();
            break;
        case 9:
            read_text(message, route.field_9, long_route_text_limit);
            break;
        default:
            message.skip();
        }
    }
}

void read_route(pbf_reader message, tum_nal_data_ipv6_route &route)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            route.field_1 = message.get_uint32();
            break;
        case 2:
            read_text(message, route.field_2, short_route_text_limit);
            break;
        case 3:
            read_bytes(message, route.field_3);
            break;
        case 4:
            route.field_4 = static_cast<uint8_t>(message.get_uint32());
            break;
        case 5:
            read_bytes(message, route.field_5);
            break;
        case 6:
            read_text(message, route.field_6, short_route_text_limit);
            break;
        case 7:
            route.field_7 = message.get_uint32();
            break;
        case 8:
            route.field_8 = message.get_uint32();
            break;
        case 9:
            read_text(message, route.field_9, long_route_text_limit);
            break;
        default:
            message.skip();
        }
    }
}

void write_record(output_buffer &buffer, const tum_nal_data_sub_route &record)
{
    writer message(buffer);
    message.add_uint32(1, record.field_1);
    message.add_uint32(2, record.field_2);
    message.add_uint32(3, record.field_3);
    for (unsigned i = 0; i < record.ipv4_route_count; ++i) {
        writer route(message, 4);
        write_route(route, record.ipv4_routes[i]);
    }
    for (unsigned i = 0; i < record.ipv6_route_count; ++i) {
        writer route(message, 5);
        write_route(route, record.ipv6_routes[i]);
    }
    message.add_uint32(6, record.field_6);
}

void read_record(pbf_reader message, tum_nal_data_sub_route &record)
{
    std::memset(&record, 0, sizeof record);
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            record.field_1 = message.get_uint32();
            break;
        case 2:
            record.field_2 = static_cast<uint16_t>(message.get_uint32());
            break;
        case 3:
            record.field_3 = message.get_uint32();
            break;
        case 4:
            if (record.ipv4_route_count < TUM_NAL_SUB_ROUTE_IPV4_ROUTES)
                read_route(message.get_message(), record.ipv4_routes[record.ipv4_route_count++]);
            else
                message.skip();
            break;
        case 5:
            if (record.ipv6_route_count < TUM_NAL_SUB_ROUTE_IPV6_ROUTES)
                read_route(message.get_message(), record.ipv6_routes[record.ipv6_route_count++]);
            else
                message.skip();
            break;
        case 6:
            record.field_6 = message.get_uint32();
            break;
        default:
            message.skip();
        }
    }
}

} // namespace bench
