#include "peers/protobuf_c/protobuf_c_fields.h"
#include "peers/protobuf_c/protobuf_c_records.h"

namespace bench
{

void fill_peer(const tum_nal_data_rec_sess_req &record, Bench__Peer__RecSessReq &message, states_parts &parts)
{
    put(message.has_field_1, message.field_1, record.field_1);
    put(message.has_field_2, message.field_2, record.field_2);
    message.n_states = record.field_3_count;
    message.states = parts.states.pointers;
    for (uint32_t i = 0; i < record.field_3_count; ++i) {
        Bench__Peer__RecSessionState &state =
            attach(message.states[i], parts.states.messages[i], bench__peer__rec_session_state__init);
        put(state.has_field_1, state.field_1, record.field_3[i].field_1);
        put(state.has_field_2, state.field_2, record.field_3[i].field_2);
        put(state.has_field_3, state.field_3, record.field_3[i].field_3);
    }
    put_text(message.field_4, record.field_4);
    put_text(message.field_5, record.field_5);
}

void read_peer(const Bench__Peer__RecSessReq &message, tum_nal_data_rec_sess_req &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1;
    record.field_2 = static_cast<uint16_t>(message.field_2);
    record.field_3_count = slots_taken<uint32_t>(message.n_states, record.field_3);
    for (uint32_t i = 0; i < record.field_3_count; ++i) {
        record.field_3[i].field_1 = message.states[i]->field_1;
        record.field_3[i].field_2 = message.states[i]->field_2;
        record.field_3[i].field_3 = message.states[i]->field_3;
    }
    take_text(record.field_4, message.field_4);
    take_text(record.field_5, message.field_5);
    record.field_6 = static_cast<uint8_t>(message.field_6);
}

void fill_peer(
    const tum_nal_data_srg_group_rec_start_req &record, Bench__Peer__SrgGroupRecStartReq &message, no_parts &)
{
    put(message.has_field_1, message.field_1, record.field_1);
    put(message.has_field_2, message.field_2, record.field_2);
    put(message.has_field_3, message.field_3, record.field_3);
}

void read_peer(const Bench__Peer__SrgGroupRecStartReq &message, tum_nal_data_srg_group_rec_start_req &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1;
    record.field_2 = static_cast<uint16_t>(message.field_2);
    record.field_3 = message.field_3;
}

} // namespace bench
