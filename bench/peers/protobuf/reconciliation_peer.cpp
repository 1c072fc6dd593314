#include "peers/protobuf/reconciliation_peer.h"

#include "peers/protobuf/peer_fields.h"

namespace bench
{

void fill_peer(const tum_nal_data_rec_sess_req &record, peer::RecSessReq &message)
{
    message.set_field_1(record.field_1);
    message.set_field_2(record.field_2);
    for (uint32_t i = 0; i < record.field_3_count; ++i) {
        peer::RecSessionState &state = *message.add_states();
        state.set_field_1(record.field_3[i].field_1);
        state.set_field_2(record.field_3[i].field_2);
        state.set_field_3(record.field_3[i].field_3);
    }
    if (record.field_4[0] != 0)
        assign_text(message.mutable_field_4(), record.field_4);
    if (record.field_5[0] != 0)
        assign_text(message.mutable_field_5(), record.field_5);
}

void read_peer(const peer::RecSessReq &message, tum_nal_data_rec_sess_req &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1();
    record.field_2 = static_cast<uint16_t>(message.field_2());
    const int states = std::min<int>(message.states_size(), TUM_NAL_REC_SESSION_STATES);
    record.field_3_count = static_cast<uint32_t>(states);
    for (int i = 0; i < states; ++i) {
        record.field_3[i].field_1 = message.states(i).field_1();
        record.field_3[i].field_2 = message.states(i).field_2();
        record.field_3[i].field_3 = message.states(i).field_3();
    }
    copy_text(record.field_4, message.field_4());
    copy_text(record.field_5, message.field_5());
    record.field_6 = static_cast<uint8_t>(message.field_6());
}

void fill_peer(const tum_nal_data_srg_group_rec_start_req &record, peer::SrgGroupRecStartReq &message)
{
    message.set_field_1(record.field_1);
    message.set_field_2(record.field_2);
    message.set_field_3(record.field_3);
}

void read_peer(const peer::SrgGroupRecStartReq &message, tum_nal_data_srg_group_rec_start_req &record)
{
    std::memset(&record, 0, sizeof record);
    record.field_1 = message.field_1();
    record.field_2 = static_cast<uint16_t>(message.field_2());
    record.field_3 = message.field_3();
}

} // namespace bench
