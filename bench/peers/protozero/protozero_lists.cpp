// The messages that are lists: routes, statistics and session states.
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

namespace
{

void write_block(output_buffer &buffer, writer &parent, uint32_t tag, const tum_nal_data_stats_block &block)
{
    write_even_if_empty(buffer, parent, tag, [&block](writer &message) {
        for (uint32_t i = 0; i < TUM_NAL_STATS_COUNTERS; ++i)
            write_nonzero(message, i + 1, block.counter[i]);
    });
}

void read_block(pbf_reader message, tum_nal_data_stats_block &block)
{
    while (message.next()) {
        const uint32_t tag = message.tag();
        if (tag <= TUM_NAL_STATS_COUNTERS)
            block.counter[tag - 1] = message.get_uint32();
        else
            message.skip();
    }
}

void read_service(pbf_reader message, tum_nal_data_service_entry &service)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_text(message, service.name);
            break;
        case 2:
            read_block(message.get_message(), service.stats);
            break;
        default:
            message.skip();
        }
    }
}

} // namespace

void write_record(output_buffer &buffer, const tum_nal_data_subscriber_stats &record)
{
    writer message(buffer);
    if (record.value_1 != 0)
        message.add_uint64(1, record.value_1);
    write_nonzero(message, 2, record.value_2);
    write_nonzero(message, 3, record.value_3);
    write_nonzero(message, 4, record.value_4);
    write_nonzero(message, 5, record.value_5);
    write_nonzero(message, 6, record.value_6);
    if (record.value_6 != 0)
        write_block(buffer, message, 7, record.block_7);
    for (unsigned i = 0; i < record.service_count; ++i) {
        writer service(message, 8);
        service.add_string(1, record.services[i].name, std::strlen(record.services[i].name));
        write_block(buffer, service, 2, record.services[i].stats);
    }
    if (record.block_10_switch != 0)
        write_block(buffer, message, 10, record.block_10);
    if (record.block_12_switch != 0)
        write_block(buffer, message, 12, record.block_12);
}

void read_record(pbf_reader message, tum_nal_data_subscriber_stats &record)
{
    std::memset(&record, 0, sizeof record);
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            record.value_1 = message.get_uint64();
            break;
        case 2:
            record.value_2 = message.get_uint32();
            break;
        case 3:
            record.value_3 = message.get_uint32();
            break;
        case 4:
            record.value_4 = message.get_uint32();
            break;
        case 5:
            record.value_5 = message.get_uint32();
            break;
        case 6:
            record.value_6 = message.get_uint32();
            break;
        case 7:
            read_block(message.get_message(), record.block_7);
            break;
        case 8:
            if (record.service_count < TUM_NAL_STATS_SERVICES)
                read_service(message.get_message(), record.services[record.service_count++]);
            else
                message.skip();
            break;
        case 9:
            record.block_10_switch = message.get_uint32();
            break;
        case 10:
            read_block(message.get_message(), record.block_10);
            break;
        case 11:
            record.block_12_switch = message.get_uint32();
            break;
        case 12:
            read_block(message.get_message(), record.block_12);
            break;
        default:
            message.skip();
        }
    }
}

namespace
{

void read_state(pbf_reader message, tum_nal_data_session_state &state)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            state.field_1 = message.get_uint32();
            break;
        case 2:
            state.field_2 = message.get_uint64();
            break;
        case 3:
            state.field_3 = message.get_uint32();
            break;
        default:
            message.skip();
        }
    }
}

} // namespace

void write_record(output_buffer &buffer, const tum_nal_data_rec_sess_req &record)
{
    writer message(buffer);
    message.add_uint32(1, record.field_1);
    message.add_uint32(2, record.field_2);
    for (uint32_t i = 0; i < record.field_3_count; ++i) {
        writer state(message, 3);
        state.add_uint32(1, record.field_3[i].field_1);
        state.add_uint64(2, record.field_3[i].field_2);
        state.add_uint32(3, record.field_3[i].field_3);
    }
    write_text(message, 4, record.field_4);
    write_text(message, 5, record.field_5);
}

void read_record(pbf_reader message, tum_nal_data_rec_sess_req &record)
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
            if (record.field_3_count < TUM_NAL_REC_SESSION_STATES)
                read_state(message.get_message(), record.field_3[record.field_3_count++]);
            else
                message.skip();
            break;
        case 4:
            read_text(message, record.field_4);
            break;
        case 5:
            read_text(message, record.field_5);
            break;
        case 6:
            record.field_6 = static_cast<uint8_t>(message.get_uint32());
            break;
        default:
            message.skip();
        }
    }
}

void write_record(output_buffer &buffer, const tum_nal_data_srg_group_rec_start_req &record)
{
    writer message(buffer);
    message.add_uint32(1, record.field_1);
    message.add_uint32(2, record.field_2);
    message.add_uint32(3, record.field_3);
}

void read_record(pbf_reader message, tum_nal_data_srg_group_rec_start_req &record)
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
        default:
            message.skip();
        }
    }
}

} // namespace bench
