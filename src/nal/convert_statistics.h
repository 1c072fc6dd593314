// A subscriber's statistics, as they stand in a message of their own, in the answer to an operation and in a replay
// failure: their way to the wire, and their way back into a cleared application record.
#pragma once

#include "mava_tum/statistics.h"
#include "nal/convert_rows.h"
#include "tum_nal/nal_statistics.h"

namespace mava_tum
{

// ---- a block of counters ----

struct stats_block_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_stats_block &block)
    {
        put_nonzero<1>(fields, block.counter[0]);
        put_nonzero<2>(fields, block.counter[1]);
        put_nonzero<3>(fields, block.counter[2]);
        put_nonzero<4>(fields, block.counter[3]);
        put_nonzero<5>(fields, block.counter[4]);
        put_nonzero<6>(fields, block.counter[5]);
        put_nonzero<7>(fields, block.counter[6]);
        put_nonzero<8>(fields, block.counter[7]);
        put_nonzero<9>(fields, block.counter[8]);
        put_nonzero<10>(fields, block.counter[9]);
        put_nonzero<11>(fields, block.counter[10]);
        put_nonzero<12>(fields, block.counter[11]);
        put_nonzero<13>(fields, block.counter[12]);
        put_nonzero<14>(fields, block.counter[13]);
        put_nonzero<15>(fields, block.counter[14]);
        put_nonzero<16>(fields, block.counter[15]);
        put_nonzero<17>(fields, block.counter[16]);
        put_nonzero<18>(fields, block.counter[17]);
    }
};

inline void stats_block_from_codec(tum_nal_data_stats_block &block, const mava_tum_stats &stats)
{
    take(block.counter[0], stats.field_1);
    take(block.counter[1], stats.field_2);
    take(block.counter[2], stats.field_3);
    take(block.counter[3], stats.field_4);
    take(block.counter[4], stats.field_5);
    take(block.counter[5], stats.field_6);
    take(block.counter[6], stats.field_7);
    take(block.counter[7], stats.field_8);
    take(block.counter[8], stats.field_9);
    take(block.counter[9], stats.field_10);
    take(block.counter[10], stats.field_11);
    take(block.counter[11], stats.field_12);
    take(block.counter[12], stats.field_13);
    take(block.counter[13], stats.field_14);
    take(block.counter[14], stats.field_15);
    take(block.counter[15], stats.field_16);
    take(block.counter[16], stats.field_17);
    take(block.counter[17], stats.field_18);
}

// ---- a service ----

struct service_entry_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_service_entry &entry)
    {
        put_text_always<1>(fields, entry.name);
        put_record<2, stats_block_fields>(fields, entry.stats); // L36: also when it is empty
    }
};

inline void service_entry_from_codec(tum_nal_data_service_entry &entry, const mava_tum_service_stats &service)
{
    take_text<1>(entry.name, service, service.field_1);
    stats_block_from_codec(entry.stats, service.field_2);
}

// ---- a subscriber ----

// L30: a block travels by the value before it. Not a slip but the message format: that value is itself sent in front of
// block 7 only; before blocks 10 and 12 it is a switch, and fields 9 and 11 are never sent.
struct subscriber_stats_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_subscriber_stats &record)
    {
        put_nonzero<1>(fields, record.value_1);
        put_nonzero<2>(fields, record.value_2);
        put_nonzero<3>(fields, record.value_3);
        put_nonzero<4>(fields, record.value_4);
        put_nonzero<5>(fields, record.value_5);
        put_nonzero<6>(fields, record.value_6);
        if (record.value_6 != 0)
            put_record<7, stats_block_fields>(fields, record.block_7);
        put_list<8, service_entry_fields>(fields, record.services, record.service_count);
        if (record.block_10_switch != 0)
            put_record<10, stats_block_fields>(fields, record.block_10);
        if (record.block_12_switch != 0)
            put_record<12, stats_block_fields>(fields, record.block_12);
    }
};

// L16: no bit of `stats` guards a block: one whose decode failed part-way is not marked present, yet its
// counters before the fault are delivered. Fields 9 and 11, which we never send, arrive in the two switches.
inline void subscriber_stats_from_codec(tum_nal_data_subscriber_stats &record, const mava_tum_subscriber_stats &stats)
{
    take(record.value_1, stats.field_1);
    take(record.value_2, stats.field_2);
    take(record.value_3, stats.field_3);
    take(record.value_4, stats.field_4);
    take(record.value_5, stats.field_5);
    take(record.value_6, stats.field_6);
    stats_block_from_codec(record.block_7, stats.field_7);
    take_list<8>(
        record.services, record.service_count, stats, stats.field_8, stats.field_8_count, service_entry_from_codec);
    take(record.block_10_switch, stats.field_9);
    stats_block_from_codec(record.block_10, stats.field_10);
    take(record.block_12_switch, stats.field_11);
    stats_block_from_codec(record.block_12, stats.field_12);
}

} // namespace mava_tum
