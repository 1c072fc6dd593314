#include "nal/convert_statistics.h"

#include "nal/convert_rows.h"

namespace mava_tum
{

// ---- a block of counters ----

static void stats_block_to_codec(mava_tum_stats &stats, const tum_nal_data_stats_block &block)
{
    put_nonzero<1>(stats, stats.field_1, block.counter[0]);
    put_nonzero<2>(stats, stats.field_2, block.counter[1]);
    put_nonzero<3>(stats, stats.field_3, block.counter[2]);
    put_nonzero<4>(stats, stats.field_4, block.counter[3]);
    put_nonzero<5>(stats, stats.field_5, block.counter[4]);
    put_nonzero<6>(stats, stats.field_6, block.counter[5]);
    put_nonzero<7>(stats, stats.field_7, block.counter[6]);
    put_nonzero<8>(stats, stats.field_8, block.counter[7]);
    put_nonzero<9>(stats, stats.field_9, block.counter[8]);
    put_nonzero<10>(stats, stats.field_10, block.counter[9]);
    put_nonzero<11>(stats, stats.field_11, block.counter[10]);
    put_nonzero<12>(stats, stats.field_12, block.counter[11]);
    put_nonzero<13>(stats, stats.field_13, block.counter[12]);
    put_nonzero<14>(stats, stats.field_14, block.counter[13]);
    put_nonzero<15>(stats, stats.field_15, block.counter[14]);
    put_nonzero<16>(stats, stats.field_16, block.counter[15]);
    put_nonzero<17>(stats, stats.field_17, block.counter[16]);
    put_nonzero<18>(stats, stats.field_18, block.counter[17]);
}

static void stats_block_from_codec(tum_nal_data_stats_block &block, const mava_tum_stats &stats)
{
    take<1>(block.counter[0], stats, stats.field_1);
    take<2>(block.counter[1], stats, stats.field_2);
    take<3>(block.counter[2], stats, stats.field_3);
    take<4>(block.counter[3], stats, stats.field_4);
    take<5>(block.counter[4], stats, stats.field_5);
    take<6>(block.counter[5], stats, stats.field_6);
    take<7>(block.counter[6], stats, stats.field_7);
    take<8>(block.counter[7], stats, stats.field_8);
    take<9>(block.counter[8], stats, stats.field_9);
    take<10>(block.counter[9], stats, stats.field_10);
    take<11>(block.counter[10], stats, stats.field_11);
    take<12>(block.counter[11], stats, stats.field_12);
    take<13>(block.counter[12], stats, stats.field_13);
    take<14>(block.counter[13], stats, stats.field_14);
    take<15>(block.counter[14], stats, stats.field_15);
    take<16>(block.counter[15], stats, stats.field_16);
    take<17>(block.counter[16], stats, stats.field_17);
    take<18>(block.counter[17], stats, stats.field_18);
}

// ---- a service ----

static void service_entry_to_codec(mava_tum_service_stats &service, const tum_nal_data_service_entry &entry)
{
    put_text_always<1>(service, service.field_1, entry.name);
    stats_block_to_codec(service.field_2, entry.stats);
    mark_present<2>(service); // L36: also when it is empty
}

static void service_entry_from_codec(tum_nal_data_service_entry &entry, const mava_tum_service_stats &service)
{
    take_text<1>(entry.name, service, service.field_1);
    stats_block_from_codec(entry.stats, service.field_2);
}

// ---- a subscriber ----

static void scalars_to_codec(mava_tum_subscriber_stats &stats, const tum_nal_data_subscriber_stats &record)
{
    put_nonzero<1>(stats, stats.field_1, record.value_1);
    put_nonzero<2>(stats, stats.field_2, record.value_2);
    put_nonzero<3>(stats, stats.field_3, record.value_3);
    put_nonzero<4>(stats, stats.field_4, record.value_4);
    put_nonzero<5>(stats, stats.field_5, record.value_5);
    put_nonzero<6>(stats, stats.field_6, record.value_6);
}

// L30: a block travels by the value before it. Not a slip but the message format: that value is itself sent in front of
// block 7 only; before blocks 10 and 12 it is a switch, and fields 9 and 11 are never sent.
static void blocks_to_codec(mava_tum_subscriber_stats &stats, const tum_nal_data_subscriber_stats &record)
{
    if (record.value_6 != 0) {
        stats_block_to_codec(stats.field_7, record.block_7);
        mark_present<7>(stats);
    }
    if (record.block_10_switch != 0) {
        stats_block_to_codec(stats.field_10, record.block_10);
        mark_present<10>(stats);
    }
    if (record.block_12_switch != 0) {
        stats_block_to_codec(stats.field_12, record.block_12);
        mark_present<12>(stats);
    }
}

void subscriber_stats_to_codec(
    mava_tum_subscriber_stats &stats, statistics_slots &slots, const tum_nal_data_subscriber_stats &record)
{
    scalars_to_codec(stats, record);
    blocks_to_codec(stats, record);
    put_list<8>(stats, stats.field_8, stats.field_8_count, slots.services, record.services, record.service_count,
        service_entry_to_codec);
}

// L16: no bit of `stats` guards a block: one whose decode failed part-way is not marked present, yet its
// counters before the fault are delivered. Fields 9 and 11, which we never send, arrive in the two switches.
void subscriber_stats_from_codec(tum_nal_data_subscriber_stats &record, const mava_tum_subscriber_stats &stats)
{
    take<1>(record.value_1, stats, stats.field_1);
    take<2>(record.value_2, stats, stats.field_2);
    take<3>(record.value_3, stats, stats.field_3);
    take<4>(record.value_4, stats, stats.field_4);
    take<5>(record.value_5, stats, stats.field_5);
    take<6>(record.value_6, stats, stats.field_6);
    stats_block_from_codec(record.block_7, stats.field_7);
    take_list<8>(
        record.services, record.service_count, stats, stats.field_8, stats.field_8_count, service_entry_from_codec);
    take<9>(record.block_10_switch, stats, stats.field_9);
    stats_block_from_codec(record.block_10, stats.field_10);
    take<11>(record.block_12_switch, stats, stats.field_11);
    stats_block_from_codec(record.block_12, stats.field_12);
}

} // namespace mava_tum
