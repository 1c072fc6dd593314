#include "peers/protobuf/statistics_peer.h"

#include "peers/protobuf/peer_fields.h"

namespace bench
{
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

} // namespace bench
