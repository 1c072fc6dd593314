#include "peers/protozero/protozero_records.h"

namespace bench
{
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
