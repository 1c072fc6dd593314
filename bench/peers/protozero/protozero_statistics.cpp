#include "peers/protozero/protozero_records.h"

namespace bench
{
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

} // namespace bench
