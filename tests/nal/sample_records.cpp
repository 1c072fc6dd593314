#include "nal/sample_records.h"

#include "nal/adapter_calls.h"
#include "nal/sample_session.h"

namespace mava_tum_test
{

namespace
{

void fill_block(tum_nal_data_stats_block &block, uint32_t base)
{
    for (uint32_t i = 0; i < TUM_NAL_STATS_COUNTERS; ++i)
        block.counter[i] = base + i;
}

template <std::size_t size>
void fill_states(tum_nal_data_session_state (&states)[size])
{
    for (uint32_t i = 0; i < size; ++i) {
        states[i].field_1 = 0x10000000u + i;
        states[i].field_2 = 0x0102030405060700u + i;
        states[i].field_3 = 0x30000000u + i;
    }
}

template <std::size_t size>
void fill_groups(tum_nal_data_group_data (&groups)[size], char character)
{
    for (uint32_t i = 0; i < size; ++i) {
        groups[i].field_1 = 0x10000000u + i;
        groups[i].field_2 = 0x20000000u + i;
        groups[i].field_3 = 0x30000000u + i;
        groups[i].field_4 = 0x40000000u + i;
        fill_text(groups[i].field_5, character);
    }
}

} // namespace

// ---- statistics ----

tum_nal_data_subscriber_stats full_statistics()
{
    auto record = zero_record<tum_nal_data_subscriber_stats>();
    record.value_1 = 0x0102030405060708u;
    record.value_2 = 0x20000000;
    record.value_3 = 0x30000000;
    record.value_4 = 0x40000000;
    record.value_5 = 0x50000000;
    record.value_6 = 0x60000000;
    fill_block(record.block_7, 0x70000000);
    record.service_count = TUM_NAL_STATS_SERVICES;
    for (uint32_t i = 0; i < TUM_NAL_STATS_SERVICES; ++i) {
        fill_text(record.services[i].name, static_cast<char>('a' + i));
        fill_block(record.services[i].stats, 0x80000000u + 32 * i);
    }
    record.block_10_switch = 1;
    fill_block(record.block_10, 0xA0000000);
    record.block_12_switch = 1;
    fill_block(record.block_12, 0xC0000000);
    return record;
}

tum_nal_data_subscriber_stats without_switches(tum_nal_data_subscriber_stats record)
{
    record.block_10_switch = 0;
    record.block_12_switch = 0;
    return record;
}

// ---- sessions and routes ----

tum_nal_data_session_delete full_session_delete()
{
    auto record = zero_record<tum_nal_data_session_delete>();
    record.field_1 = 5;
    record.field_2 = 0x20000000;
    record.field_3 = 0x3000;
    record.field_4 = 0x4041424344454647u;
    record.field_5 = 0x50000000;
    return record;
}

tum_nal_data_sess_oper_resp full_sess_oper_resp()
{
    auto record = zero_record<tum_nal_data_sess_oper_resp>();
    record.field_1 = 0x10000000;
    record.field_2 = 0x20000000;
    record.field_3 = 0x30000000;
    record.field_4 = 0x4041424344454647u;
    record.field_5 = 0x50000000;
    fill_text(record.field_6, 'f');
    fill_text(record.field_7, 'g');
    fill_text(record.field_8, 'h');
    record.field_9 = full_statistics();
    return record;
}

tum_nal_data_subscriber_route_resp full_subscriber_route_resp()
{
    auto record = zero_record<tum_nal_data_subscriber_route_resp>();
    record.field_1 = 0x10000000;
    record.field_2 = 0x20000000;
    fill_text(record.field_3, 'c');
    fill_text(record.field_4, 'd');
    return record;
}

// ---- reconciliation ----

tum_nal_data_rec_start_req full_rec_start_req()
{
    auto record = zero_record<tum_nal_data_rec_start_req>();
    record.field_1 = 0x10000000;
    record.field_2 = 0x2000;
    record.field_3 = 0x30000000;
    fill_text(record.field_4, 'd');
    return record;
}

tum_nal_data_rec_complete_req full_rec_complete_req()
{
    auto record = zero_record<tum_nal_data_rec_complete_req>();
    record.field_1 = 0x10000000;
    record.field_2 = 0x20000000;
    record.field_3 = 0x3000;
    fill_text(record.field_4, 'd');
    return record;
}

tum_nal_data_rec_res full_rec_res()
{
    auto record = zero_record<tum_nal_data_rec_res>();
    record.field_1 = 0x10000000;
    fill_text(record.field_2, 'b');
    record.field_3 = 0x30000000;
    return record;
}

tum_nal_data_rec_sess_req full_rec_sess_req()
{
    auto record = zero_record<tum_nal_data_rec_sess_req>();
    record.field_1 = 0x10000000;
    record.field_2 = 0x2000;
    record.field_3_count = TUM_NAL_REC_SESSION_STATES;
    fill_states(record.field_3);
    fill_text(record.field_4, 'd');
    fill_text(record.field_5, 'e');
    record.field_6 = 0x60;
    return record;
}

tum_nal_data_rec_sess_res full_rec_sess_res()
{
    auto record = zero_record<tum_nal_data_rec_sess_res>();
    record.field_1 = 0x10000000;
    record.field_2_count = TUM_NAL_REC_SESSION_STATES;
    fill_states(record.field_2);
    record.field_3 = 0x30;
    record.field_4 = 0x40000000;
    return record;
}

tum_nal_data_rec_sess_replay_req_encode full_rec_sess_replay_req()
{
    auto record = zero_record<tum_nal_data_rec_sess_replay_req_encode>();
    record.field_1 = 0x10000000;
    record.field_2 = 0x2000;
    record.field_3 = 0x30000000;
    record.field_4_count = TUM_NAL_REC_REPLAY_SESSIONS;
    record.field_4[0] = full_session();
    record.field_5 = 0x50;
    fill_text(record.field_6, 'f');
    return record;
}

tum_nal_data_rec_sess_replay_req_decode as_received(const tum_nal_data_rec_sess_replay_req_encode &sent)
{
    auto record = zero_record<tum_nal_data_rec_sess_replay_req_decode>();
    record.field_1 = sent.field_1;
    record.field_2 = sent.field_2;
    record.field_3 = sent.field_3;
    record.field_4_count = sent.field_4_count;
    std::memcpy(record.field_4, sent.field_4, sizeof record.field_4);
    record.field_5 = sent.field_5;
    std::memcpy(record.field_6, sent.field_6, sizeof record.field_6);
    return record;
}

tum_nal_data_rec_sess_replay_resp full_rec_sess_replay_resp()
{
    auto record = zero_record<tum_nal_data_rec_sess_replay_resp>();
    record.field_1 = 0x10000000;
    record.field_2_count = TUM_NAL_REC_REPLAY_FAILURES;
    record.field_2[0].field_1 = 0x1112131415161718u;
    record.field_2[0].field_2 = 0x22000000;
    record.field_2[0].field_3 = full_statistics();
    record.field_3_count = TUM_NAL_REC_SERVICE_STARTS;
    record.field_3[0].field_1 = 0x3132333435363738u;
    record.field_3[0].field_2 = 0x32000000;
    record.field_3[0].field_3 = 0x33000000;
    record.field_3[0].field_4 = 0x34000000;
    record.field_3[0].field_5_count = TUM_NAL_REC_SERVICE_NAMES;
    for (uint32_t i = 0; i < TUM_NAL_REC_SERVICE_NAMES; ++i)
        fill_text(record.field_3[0].field_5[i], static_cast<char>('s' + i));
    fill_text(record.field_4, 'd');
    record.field_5 = 0x50000000;
    return record;
}

// ---- redundancy groups ----

tum_nal_data_srg_group_rec_replay_req full_srg_group_rec_replay_req()
{
    auto record = zero_record<tum_nal_data_srg_group_rec_replay_req>();
    record.field_1 = 0x10000000;
    record.field_2 = 0x2000;
    record.field_3_count = TUM_NAL_SRG_GROUPS;
    fill_groups(record.field_3, 'c');
    record.field_4 = 0x40;
    return record;
}

tum_nal_data_srg_group_rec_replay_resp full_srg_group_rec_replay_resp()
{
    auto record = zero_record<tum_nal_data_srg_group_rec_replay_resp>();
    record.field_1 = 0x10000000;
    record.field_2_count = TUM_NAL_SRG_GROUPS;
    fill_groups(record.field_2, 'b');
    record.field_3_count = TUM_NAL_SRG_GROUPS;
    fill_groups(record.field_3, 'c');
    record.field_4 = 0x40000000;
    return record;
}

} // namespace mava_tum_test
