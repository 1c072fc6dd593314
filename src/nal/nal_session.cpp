// The adapters that delete a session and answer an operation.
#include "tum_nal/nal_session.h"

#include "messages/session_messages_schema.h"
#include "nal/statistics_rows.h"

namespace mava_tum
{

namespace
{

// L27: sent up to its largest known value, 0 included; a larger one is left out, and the receiver reads 0.
template <uint32_t Largest>
struct if_up_to {
    static bool sends(const auto &, uint32_t value)
    {
        return value <= Largest;
    }
};

struct session_delete_rows {
    using message = mava_tum_session_delete;
    using record = tum_nal_data_session_delete;
    using rows = row_list<number<1, &record::field_1, if_up_to<TUM_NAL_SESSION_DELETE_MAX_FIELD_1>>,
        number<2, &record::field_2, if_nonzero>, number<3, &record::field_3, if_nonzero>,
        number<4, &record::field_4, if_nonzero>, number<5, &record::field_5, if_nonzero>>;
};

// L26: field 10 has no member.
struct sess_oper_resp_rows {
    using message = mava_tum_sess_oper_resp;
    using record = tum_nal_data_sess_oper_resp;
    using rows = row_list<number<1, &record::field_1>, number<2, &record::field_2, if_nonzero>,
        number<3, &record::field_3, if_nonzero>, number<4, &record::field_4, if_nonzero>,
        number<5, &record::field_5, if_nonzero>, text<6, &record::field_6>, text<7, &record::field_7>,
        text<8, &record::field_8>, nested_in<9, &record::field_9, subscriber_stats_rows>>;
};

} // namespace

} // namespace mava_tum

extern "C" uint64_t tum_nal_data_gpb_encode_tum_session_delete(
    const tum_nal_data_session_delete *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::session_delete_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_session_delete(
    const uint8_t *data, uint32_t length, tum_nal_data_session_delete *record)
{
    mava_tum::decode_mapped<mava_tum::session_delete_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_sess_oper_resp(
    const tum_nal_data_sess_oper_resp *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::sess_oper_resp_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_sess_oper_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_sess_oper_resp *record)
{
    mava_tum::decode_mapped<mava_tum::sess_oper_resp_rows>(*record, data, length);
}
