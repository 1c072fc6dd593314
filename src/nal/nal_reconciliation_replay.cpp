// The adapters that replay sessions in a reconciliation and answer that.
#include "tum_nal/nal_reconciliation.h"

#include "nal/adapter_frame.h"
#include "nal/convert_rows.h"
#include "nal/convert_session_context.h"
#include "nal/convert_statistics.h"

#include <cstddef>

namespace mava_tum
{

namespace
{

// ---- rec_sess_replay_req ----

// L29: two layouts: the one that is sent from is not the one that is received into. Callers hold one buffer for both.
using replay_request_to_send = tum_nal_data_rec_sess_replay_req_encode;
using replay_request_received = tum_nal_data_rec_sess_replay_req_decode;

struct rec_sess_replay_req_fields {
    template <class Fields>
    static void describe(Fields &fields, const replay_request_to_send &record)
    {
        put<1>(fields, record.field_1);
        put<2>(fields, record.field_2);
        put<3>(fields, record.field_3);
        put_list<4, session_context_fields>(fields, record.field_4, record.field_4_count);
        put<5>(fields, record.field_5);
        put_text<6>(fields, record.field_6);
    }
};

void rec_sess_replay_req_from_codec(replay_request_received &record, const mava_tum_rec_sess_replay_req &request)
{
    take(record.field_1, request.field_1);
    take(record.field_2, request.field_2);
    take(record.field_3, request.field_3);
    take_list<4>(record.field_4, record.field_4_count, request, request.field_4, request.field_4_count,
        session_context_from_codec);
    take(record.field_5, request.field_5);
    take_text<6>(record.field_6, request, request.field_6);
}

// ---- a session that could not be replayed ----

struct replay_failure_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_replay_failure &entry)
    {
        put<1>(fields, entry.field_1);
        put<2>(fields, entry.field_2);
        put_record<3, subscriber_stats_fields>(fields, entry.field_3); // L36: also when they are empty
    }
};

// L16: the bit of field 3 is not asked: what is in the statistics is delivered.
void replay_failure_from_codec(tum_nal_data_replay_failure &entry, const mava_tum_rec_sess_replay_fail &failure)
{
    take(entry.field_1, failure.field_1);
    take(entry.field_2, failure.field_2);
    subscriber_stats_from_codec(entry.field_3, failure.field_3);
}

// ---- the services started for a session ----

using service_name = char[65];

void service_name_from_codec(service_name &entry, char *const &name)
{
    copy_bounded_text(&entry[0], sizeof(entry), name);
}

struct service_start_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_service_start &entry)
    {
        put<1>(fields, entry.field_1);
        put<2>(fields, entry.field_2);
        put<3>(fields, entry.field_3);
        put<4>(fields, entry.field_4);
        put_texts<5>(fields, entry.field_5, entry.field_5_count);
    }
};

void service_start_from_codec(tum_nal_data_service_start &entry, const mava_tum_sess_svc_start &start)
{
    take(entry.field_1, start.field_1);
    take(entry.field_2, start.field_2);
    take(entry.field_3, start.field_3);
    take(entry.field_4, start.field_4);
    take_list<5>(
        entry.field_5, entry.field_5_count, start, start.field_5, start.field_5_count, service_name_from_codec);
}

// ---- rec_sess_replay_resp ----

struct rec_sess_replay_resp_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_rec_sess_replay_resp &record)
    {
        put<1>(fields, record.field_1);
        put_list<2, replay_failure_fields>(fields, record.field_2, record.field_2_count);
        put_list<3, service_start_fields>(fields, record.field_3, record.field_3_count);
        put_text<4>(fields, record.field_4);
        put<5>(fields, record.field_5);
    }
};

void rec_sess_replay_resp_from_codec(
    tum_nal_data_rec_sess_replay_resp &record, const mava_tum_rec_sess_replay_resp &response)
{
    take(record.field_1, response.field_1);
    take_list<2>(record.field_2, record.field_2_count, response, response.field_2, response.field_2_count,
        replay_failure_from_codec);
    take_list<3>(record.field_3, record.field_3_count, response, response.field_3, response.field_3_count,
        service_start_from_codec);
    take_text<4>(record.field_4, response, response.field_4);
    take(record.field_5, response.field_5);
}

} // namespace

} // namespace mava_tum

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_sess_replay_req(
    const tum_nal_data_rec_sess_replay_req_encode *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_rec_sess_replay_req, mava_tum::rec_sess_replay_req_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_sess_replay_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_replay_req_decode *record)
{
    mava_tum::decode_frame(
        data, length, record, mava_tum::rec_sess_replay_req_from_codec, mava_tum_rec_sess_replay_req_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_sess_replay_resp(
    const tum_nal_data_rec_sess_replay_resp *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_rec_sess_replay_resp, mava_tum::rec_sess_replay_resp_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_sess_replay_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_replay_resp *record)
{
    mava_tum::decode_frame(
        data, length, record, mava_tum::rec_sess_replay_resp_from_codec, mava_tum_rec_sess_replay_resp_free_ext);
}

// ---- layout: programs built against the header rely on it ----

#if UINTPTR_MAX == UINT64_MAX // elsewhere a uint64_t may be aligned otherwise
static_assert(
    sizeof(tum_nal_data_rec_sess_replay_req_encode) == 8936 && alignof(tum_nal_data_rec_sess_replay_req_encode) == 8);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_encode, field_3) == 68);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_encode, field_4_count) == 72);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_encode, field_1) == 76);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_encode, field_2) == 80);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_encode, field_5) == 82);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_encode, field_4) == 88);

static_assert(
    sizeof(tum_nal_data_rec_sess_replay_req_decode) == 8936 && alignof(tum_nal_data_rec_sess_replay_req_decode) == 8);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_decode, field_2) == 4);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_decode, field_4_count) == 8);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_decode, field_3) == 12);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_decode, field_4) == 16);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_decode, field_5) == 8864);
static_assert(offsetof(tum_nal_data_rec_sess_replay_req_decode, field_6) == 8865);
static_assert(sizeof(tum_nal_data_rec_sess_replay_req_encode) == sizeof(tum_nal_data_rec_sess_replay_req_decode));

static_assert(sizeof(tum_nal_data_replay_failure) == 1392 && alignof(tum_nal_data_replay_failure) == 8);
static_assert(offsetof(tum_nal_data_replay_failure, field_2) == 8);
static_assert(offsetof(tum_nal_data_replay_failure, field_3) == 16);

static_assert(sizeof(tum_nal_data_service_start) == 544 && alignof(tum_nal_data_service_start) == 8);
static_assert(offsetof(tum_nal_data_service_start, field_2) == 8);
static_assert(offsetof(tum_nal_data_service_start, field_3) == 12);
static_assert(offsetof(tum_nal_data_service_start, field_4) == 16);
static_assert(offsetof(tum_nal_data_service_start, field_5_count) == 20);
static_assert(offsetof(tum_nal_data_service_start, field_5) == 21);

static_assert(sizeof(tum_nal_data_rec_sess_replay_resp) == 2024 && alignof(tum_nal_data_rec_sess_replay_resp) == 8);
static_assert(offsetof(tum_nal_data_rec_sess_replay_resp, field_2_count) == 4);
static_assert(offsetof(tum_nal_data_rec_sess_replay_resp, field_3_count) == 8);
static_assert(offsetof(tum_nal_data_rec_sess_replay_resp, field_2) == 16);
static_assert(offsetof(tum_nal_data_rec_sess_replay_resp, field_3) == 1408);
static_assert(offsetof(tum_nal_data_rec_sess_replay_resp, field_4) == 1952);
static_assert(offsetof(tum_nal_data_rec_sess_replay_resp, field_5) == 2020);
#endif
