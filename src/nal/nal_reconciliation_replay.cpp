// The adapters that replay sessions in a reconciliation and answer that.
#include "tum_nal/nal_reconciliation.h"

#include "messages/reconciliation_schema.h"
#include "nal/session_context_rows.h"
#include "nal/statistics_rows.h"

namespace mava_tum
{

namespace
{

// L29: two layouts: the one that is sent from is not the one that is received into. Callers hold one buffer for both.
template <class Record>
struct rec_sess_replay_req_rows {
    using message = mava_tum_rec_sess_replay_req;
    using record = Record;
    using rows = row_list<number<1, &record::field_1>, number<2, &record::field_2>, number<3, &record::field_3>,
        list<4, &record::field_4, &record::field_4_count, session_context_rows>, number<5, &record::field_5>,
        text<6, &record::field_6>>;
};

using replay_rows_to_send = rec_sess_replay_req_rows<tum_nal_data_rec_sess_replay_req_encode>;
using replay_rows_to_receive = rec_sess_replay_req_rows<tum_nal_data_rec_sess_replay_req_decode>;

// A session that could not be replayed.
struct replay_failure_rows {
    using message = mava_tum_rec_sess_replay_fail;
    using record = tum_nal_data_replay_failure;
    using rows = row_list<number<1, &record::field_1>, number<2, &record::field_2>,
        nested_in<3, &record::field_3, subscriber_stats_rows>>;
};

// The services started for a session.
struct service_start_rows {
    using message = mava_tum_sess_svc_start;
    using record = tum_nal_data_service_start;
    using rows = row_list<number<1, &record::field_1>, number<2, &record::field_2>, number<3, &record::field_3>,
        number<4, &record::field_4>, text_list<5, &record::field_5, &record::field_5_count>>;
};

struct rec_sess_replay_resp_rows {
    using message = mava_tum_rec_sess_replay_resp;
    using record = tum_nal_data_rec_sess_replay_resp;
    using rows =
        row_list<number<1, &record::field_1>, list<2, &record::field_2, &record::field_2_count, replay_failure_rows>,
            list<3, &record::field_3, &record::field_3_count, service_start_rows>, text<4, &record::field_4>,
            number<5, &record::field_5>>;
};

} // namespace

} // namespace mava_tum

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_sess_replay_req(
    const tum_nal_data_rec_sess_replay_req_encode *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::replay_rows_to_send>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_sess_replay_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_replay_req_decode *record)
{
    mava_tum::decode_mapped<mava_tum::replay_rows_to_receive>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_sess_replay_resp(
    const tum_nal_data_rec_sess_replay_resp *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::rec_sess_replay_resp_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_sess_replay_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_replay_resp *record)
{
    mava_tum::decode_mapped<mava_tum::rec_sess_replay_resp_rows>(*record, data, length);
}
