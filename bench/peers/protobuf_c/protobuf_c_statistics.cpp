#include "peers/protobuf_c/protobuf_c_fields.h"
#include "peers/protobuf_c/protobuf_c_records.h"

namespace bench
{
namespace
{

void fill_block(const tum_nal_data_stats_block &block, Bench__Peer__Stats &message)
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

void read_block(const Bench__Peer__Stats &message, tum_nal_data_stats_block &block)
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

void fill_peer(
    const tum_nal_data_subscriber_stats &record, Bench__Peer__SubscriberStats &message, statistics_parts &parts)
{
    put_nonzero(message.has_field_1, message.field_1, record.value_1);
    put_nonzero(message.has_field_2, message.field_2, record.value_2);
    put_nonzero(message.has_field_3, message.field_3, record.value_3);
    put_nonzero(message.has_field_4, message.field_4, record.value_4);
    put_nonzero(message.has_field_5, message.field_5, record.value_5);
    put_nonzero(message.has_field_6, message.field_6, record.value_6);
    if (record.value_6 != 0)
        fill_block(record.block_7, attach(message.field_7, parts.blocks[0], bench__peer__stats__init));
    message.n_services = record.service_count;
    message.services = parts.services.pointers;
    for (unsigned i = 0; i < record.service_count; ++i) {
        Bench__Peer__ServiceStats &service =
            attach(message.services[i], parts.services.messages[i], bench__peer__service_stats__init);
        put_text_always(service.field_1, record.services[i].name);
        fill_block(
            record.services[i].stats, attach(service.field_2, parts.service_blocks[i], bench__peer__stats__init));
    }
    if (record.block_10_switch != 0)
        fill_block(record.block_10, attach(message.field_10, parts.blocks[1], bench__peer__stats__init));
    if (record.block_12_switch != 0)
        fill_block(record.block_12, attach(message.field_12, parts.blocks[2], bench__peer__stats__init));
}

void read_peer(const Bench__Peer__SubscriberStats &message, tum_nal_data_subscriber_stats &record)
{
    std::memset(&record, 0, sizeof record);
    record.value_1 = message.field_1;
    record.value_2 = message.field_2;
    record.value_3 = message.field_3;
    record.value_4 = message.field_4;
    record.value_5 = message.field_5;
    record.value_6 = message.field_6;
    if (message.field_7 != nullptr)
        read_block(*message.field_7, record.block_7);
    record.service_count = slots_taken<uint8_t>(message.n_services, record.services);
    for (unsigned i = 0; i < record.service_count; ++i) {
        take_text(record.services[i].name, message.services[i]->field_1);
        if (message.services[i]->field_2 != nullptr)
            read_block(*message.services[i]->field_2, record.services[i].stats);
    }
    record.block_10_switch = message.field_9;
    if (message.field_10 != nullptr)
        read_block(*message.field_10, record.block_10);
    record.block_12_switch = message.field_11;
    if (message.field_12 != nullptr)
        read_block(*message.field_12, record.block_12);
}

} // namespace bench
