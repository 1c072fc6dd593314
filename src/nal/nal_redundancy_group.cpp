// The adapters of redundancy groups.
#include "tum_nal/nal_redundancy_group.h"

#include "nal/group_data_rows.h"

namespace mava_tum
{

namespace
{

// L31, L35: the only one of these messages that sends its zeros.
struct srg_group_rec_start_req_rows {
    using message = mava_tum_srg_group_rec_start_req;
    using record = tum_nal_data_srg_group_rec_start_req;
    using rows = row_list<number<1, &record::field_1>, number<2, &record::field_2>, number<3, &record::field_3>>;
};

struct srg_group_rec_resp_rows {
    using message = mava_tum_srg_group_rec_resp;
    using record = tum_nal_data_srg_group_rec_resp;
    using rows = row_list<number<1, &record::field_1, if_nonzero>, number<2, &record::field_2, if_nonzero>>;
};

struct srg_group_rec_complete_req_rows {
    using message = mava_tum_srg_group_rec_complete_req;
    using record = tum_nal_data_srg_group_rec_complete_req;
    using rows = row_list<number<1, &record::field_1, if_nonzero>, number<2, &record::field_2, if_nonzero>,
        number<3, &record::field_3, if_nonzero>>;
};

struct srg_group_rec_replay_req_rows {
    using message = mava_tum_srg_group_rec_replay_req;
    using record = tum_nal_data_srg_group_rec_replay_req;
    using rows = row_list<number<1, &record::field_1, if_nonzero>, number<2, &record::field_2, if_nonzero>,
        list<3, &record::field_3, &record::field_3_count, group_data_rows>, number<4, &record::field_4, if_nonzero>>;
};

struct srg_group_rec_replay_resp_rows {
    using message = mava_tum_srg_group_rec_replay_resp;
    using record = tum_nal_data_srg_group_rec_replay_resp;
    using rows = row_list<number<1, &record::field_1, if_nonzero>,
        list<2, &record::field_2, &record::field_2_count, group_data_rows>,
        list<3, &record::field_3, &record::field_3_count, group_data_rows>, number<4, &record::field_4, if_nonzero>>;
};

} // namespace

} // namespace mava_tum

extern "C" uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_start_req(
    const tum_nal_data_srg_group_rec_start_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::srg_group_rec_start_req_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_srg_group_rec_start_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_start_req *record)
{
    mava_tum::decode_mapped<mava_tum::srg_group_rec_start_req_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_resp(
    const tum_nal_data_srg_group_rec_resp *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::srg_group_rec_resp_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_srg_group_rec_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_resp *record)
{
    mava_tum::decode_mapped<mava_tum::srg_group_rec_resp_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_complete_req(
    const tum_nal_data_srg_group_rec_complete_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::srg_group_rec_complete_req_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_srg_group_rec_complete_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_complete_req *record)
{
    mava_tum::decode_mapped<mava_tum::srg_group_rec_complete_req_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_replay_req(
    const tum_nal_data_srg_group_rec_replay_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::srg_group_rec_replay_req_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_replay_req *record)
{
    mava_tum::decode_mapped<mava_tum::srg_group_rec_replay_req_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_replay_resp(
    const tum_nal_data_srg_group_rec_replay_resp *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::srg_group_rec_replay_resp_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_srg_group_rec_replay_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_replay_resp *record)
{
    mava_tum::decode_mapped<mava_tum::srg_group_rec_replay_resp_rows>(*record, data, length);
}
