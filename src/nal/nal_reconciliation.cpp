// The adapters that open and close a reconciliation and compare its sessions. Replay: nal_reconciliation_replay.cpp.
#include "tum_nal/nal_reconciliation.h"

#include "nal/session_state_rows.h"

namespace mava_tum
{

namespace
{

// L31: as the other messages here, it sends its zeros. L28: not a slip but what receivers rely on: what was sent third
// arrives first, and fields 1 and 2 are dropped.
struct rec_start_req_rows {
    using message = mava_tum_rec_start_req;
    using record = tum_nal_data_rec_start_req;
    using rows = row_list<sent<number<1, &record::field_1>>, sent<number<2, &record::field_2>>,
        sent<number<3, &record::field_3>>, received<number<3, &record::field_1>>, text<4, &record::field_4>>;
};

struct rec_complete_req_rows {
    using message = mava_tum_rec_complete_req;
    using record = tum_nal_data_rec_complete_req;
    using rows = row_list<number<1, &record::field_1>, number<2, &record::field_2>, number<3, &record::field_3>,
        text<4, &record::field_4>>;
};

// L34: the answers to both are one message.
struct rec_res_rows {
    using message = mava_tum_rec_resp;
    using record = tum_nal_data_rec_res;
    using rows = row_list<number<1, &record::field_1>, text<2, &record::field_2>, number<3, &record::field_3>>;
};

// L32: field 6 goes one way: it is received, never sent.
struct rec_sess_req_rows {
    using message = mava_tum_rec_sess_req;
    using record = tum_nal_data_rec_sess_req;
    using rows = row_list<number<1, &record::field_1>, number<2, &record::field_2>,
        list<3, &record::field_3, &record::field_3_count, session_state_rows>, text<4, &record::field_4>,
        text<5, &record::field_5>, received<number<6, &record::field_6>>>;
};

struct rec_sess_res_rows {
    using message = mava_tum_rec_sess_resp;
    using record = tum_nal_data_rec_sess_res;
    using rows =
        row_list<number<1, &record::field_1>, list<2, &record::field_2, &record::field_2_count, session_state_rows>,
            number<3, &record::field_3>, number<4, &record::field_4>>;
};

} // namespace

} // namespace mava_tum

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_start_req(
    const tum_nal_data_rec_start_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::rec_start_req_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_start_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_start_req *record)
{
    mava_tum::decode_mapped<mava_tum::rec_start_req_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_start_res(
    const tum_nal_data_rec_res *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::rec_res_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_start_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_res *record)
{
    mava_tum::decode_mapped<mava_tum::rec_res_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_complete_req(
    const tum_nal_data_rec_complete_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::rec_complete_req_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_complete_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_complete_req *record)
{
    mava_tum::decode_mapped<mava_tum::rec_complete_req_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_complete_res(
    const tum_nal_data_rec_res *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::rec_res_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_complete_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_res *record)
{
    mava_tum::decode_mapped<mava_tum::rec_res_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_sess_req(
    const tum_nal_data_rec_sess_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::rec_sess_req_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_sess_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_req *record)
{
    mava_tum::decode_mapped<mava_tum::rec_sess_req_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_sess_res(
    const tum_nal_data_rec_sess_res *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::rec_sess_res_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_sess_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_res *record)
{
    mava_tum::decode_mapped<mava_tum::rec_sess_res_rows>(*record, data, length);
}
