#include "peers/content/content.h"

#include <cstdio>

namespace bench
{
namespace
{

// Byte and packet counters of a busy line: some small, some that fill 32 bits.
void fill_block(tum_nal_data_stats_block &block, uint32_t first)
{
    for (uint32_t i = 0; i < TUM_NAL_STATS_COUNTERS; ++i)
        block.counter[i] = (first + i) * (i % 3 == 0 ? 7u : i % 3 == 1 ? 12345u : 98765431u);
}

} // namespace

void fill_subscriber_stats(tum_nal_data_subscriber_stats &record)
{
    record.value_1 = 0x0000001234ABCDEF;
    record.value_2 = 4711;
    record.value_3 = 86400;
    record.value_4 = 3;
    record.value_5 = 1;
    record.value_6 = 2;
    fill_block(record.block_7, 1);
    record.service_count = TUM_NAL_STATS_SERVICES;
    for (unsigned i = 0; i < record.service_count; ++i) {
        std::snprintf(record.services[i].name, sizeof record.services[i].name, "service-triple-play-%02u", i);
        fill_block(record.services[i].stats, 2 + i);
    }
    record.block_10_switch = 1;
    fill_block(record.block_10, 3);
    record.block_12_switch = 1;
    fill_block(record.block_12, 4);
}

void fill_session_states(tum_nal_data_rec_sess_req &record)
{
    record.field_1 = 17;
    record.field_2 = 3;
    record.field_3_count = TUM_NAL_REC_SESSION_STATES;
    for (uint32_t i = 0; i < record.field_3_count; ++i) {
        record.field_3[i].field_1 = 1 + i % 4;
        record.field_3[i].field_2 = 0x0000001234ABC000 + i;
        record.field_3[i].field_3 = 86400 + 977 * i;
    }
    std::snprintf(record.field_4, sizeof record.field_4, "bng-north-07.example.net");
    std::snprintf(record.field_5, sizeof record.field_5, "group-residential-north");
}

void fill_group_start(tum_nal_data_srg_group_rec_start_req &record)
{
    record.field_1 = 4711;
    record.field_2 = 3;
    record.field_3 = 86400;
}

} // namespace bench
