#include "tum_nal/nal_session.h"

#include "nal/adapter_frame.h"
#include "nal/convert_rows.h"
#include "nal/convert_statistics.h"

#include <cstddef>

namespace mava_tum
{

namespace
{

// ---- session_delete ----

struct session_delete_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_delete &record)
    {
        // L27: sent up to its largest known value, 0 included; a larger one is left out, and the receiver reads 0.
        if (record.field_1 <= TUM_NAL_SESSION_DELETE_MAX_FIELD_1)
            put<1>(fields, record.field_1);
        put_nonzero<2>(fields, record.field_2);
        put_nonzero<3>(fields, record.field_3);
        put_nonzero<4>(fields, record.field_4);
        put_nonzero<5>(fields, record.field_5);
    }
};

void session_delete_from_codec(tum_nal_data_session_delete &record, const mava_tum_session_delete &request)
{
    take(record.field_1, request.field_1);
    take(record.field_2, request.field_2);
    take(record.field_3, request.field_3);
    take(record.field_4, request.field_4);
    take(record.field_5, request.field_5);
}

// ---- sess_oper_resp; L26: field 10 has no member ----

struct sess_oper_resp_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_sess_oper_resp &record)
    {
        put<1>(fields, record.field_1);
        put_nonzero<2>(fields, record.field_2);
        put_nonzero<3>(fields, record.field_3);
        put_nonzero<4>(fields, record.field_4);
        put_nonzero<5>(fields, record.field_5);
        put_text<6>(fields, record.field_6);
        put_text<7>(fields, record.field_7);
        put_text<8>(fields, record.field_8);
        put_record<9, subscriber_stats_fields>(fields, record.field_9); // L36: also when they are empty
    }
};

// L16: no bit of `response` guards the statistics: when their decode failed part-way they are not marked
// present, yet what they held before the fault is delivered.
void sess_oper_resp_from_codec(tum_nal_data_sess_oper_resp &record, const mava_tum_sess_oper_resp &response)
{
    take(record.field_1, response.field_1);
    take(record.field_2, response.field_2);
    take(record.field_3, response.field_3);
    take(record.field_4, response.field_4);
    take(record.field_5, response.field_5);
    take_text<6>(record.field_6, response, response.field_6);
    take_text<7>(record.field_7, response, response.field_7);
    take_text<8>(record.field_8, response, response.field_8);
    subscriber_stats_from_codec(record.field_9, response.field_9);
}

} // namespace

} // namespace mava_tum

extern "C" uint64_t tum_nal_data_gpb_encode_tum_session_delete(
    const tum_nal_data_session_delete *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_session_delete, mava_tum::session_delete_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_session_delete(
    const uint8_t *data, uint32_t length, tum_nal_data_session_delete *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::session_delete_from_codec, mava_tum_session_delete_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_sess_oper_resp(
    const tum_nal_data_sess_oper_resp *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_sess_oper_resp, mava_tum::sess_oper_resp_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_sess_oper_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_sess_oper_resp *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::sess_oper_resp_from_codec, mava_tum_sess_oper_resp_free_ext);
}

// ---- layout: programs built against the header rely on it ----

#if UINTPTR_MAX == UINT64_MAX // elsewhere a uint64_t may be aligned otherwise
static_assert(sizeof(tum_nal_data_session_delete) == 32 && alignof(tum_nal_data_session_delete) == 8);
static_assert(offsetof(tum_nal_data_session_delete, field_2) == 4);
static_assert(offsetof(tum_nal_data_session_delete, field_3) == 8);
static_assert(offsetof(tum_nal_data_session_delete, field_4) == 16);
static_assert(offsetof(tum_nal_data_session_delete, field_5) == 24);

static_assert(sizeof(tum_nal_data_sess_oper_resp) == 1600 && alignof(tum_nal_data_sess_oper_resp) == 8);
static_assert(offsetof(tum_nal_data_sess_oper_resp, field_2) == 4);
static_assert(offsetof(tum_nal_data_sess_oper_resp, field_3) == 8);
static_assert(offsetof(tum_nal_data_sess_oper_resp, field_4) == 16);
static_assert(offsetof(tum_nal_data_sess_oper_resp, field_5) == 24);
static_assert(offsetof(tum_nal_data_sess_oper_resp, field_6) == 28);
static_assert(offsetof(tum_nal_data_sess_oper_resp, field_7) == 93);
static_assert(offsetof(tum_nal_data_sess_oper_resp, field_8) == 158);
static_assert(offsetof(tum_nal_data_sess_oper_resp, field_9) == 224);
#endif
