// The adapters that open and close a reconciliation and compare its sessions. Replay: nal_reconciliation_replay.cpp.
#include "tum_nal/nal_reconciliation.h"

#include "nal/adapter_frame.h"
#include "nal/convert_rows.h"
#include "nal/convert_session_state.h"

#include <cstddef>

namespace mava_tum
{

namespace
{

// ---- rec_start_req; L31: as the other messages here, it sends its zeros ----

struct rec_start_req_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_rec_start_req &record)
    {
        put<1>(fields, record.field_1);
        put<2>(fields, record.field_2);
        put<3>(fields, record.field_3);
        put_text<4>(fields, record.field_4);
    }
};

// L28: not a slip but what receivers rely on: what was sent third arrives first, and fields 1 and 2 are dropped.
void rec_start_req_from_codec(tum_nal_data_rec_start_req &record, const mava_tum_rec_start_req &request)
{
    take(record.field_1, request.field_3);
    take_text<4>(record.field_4, request, request.field_4);
}

// ---- rec_complete_req ----

struct rec_complete_req_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_rec_complete_req &record)
    {
        put<1>(fields, record.field_1);
        put<2>(fields, record.field_2);
        put<3>(fields, record.field_3);
        put_text<4>(fields, record.field_4);
    }
};

void rec_complete_req_from_codec(tum_nal_data_rec_complete_req &record, const mava_tum_rec_complete_req &request)
{
    take(record.field_1, request.field_1);
    take(record.field_2, request.field_2);
    take(record.field_3, request.field_3);
    take_text<4>(record.field_4, request, request.field_4);
}

// ---- rec_start_res and rec_complete_res; L34: one message, rec_resp ----

struct rec_res_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_rec_res &record)
    {
        put<1>(fields, record.field_1);
        put_text<2>(fields, record.field_2);
        put<3>(fields, record.field_3);
    }
};

void rec_res_from_codec(tum_nal_data_rec_res &record, const mava_tum_rec_resp &response)
{
    take(record.field_1, response.field_1);
    take_text<2>(record.field_2, response, response.field_2);
    take(record.field_3, response.field_3);
}

// ---- rec_sess_req ----

// L32: field 6 goes one way: it is received, never sent.
struct rec_sess_req_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_rec_sess_req &record)
    {
        put<1>(fields, record.field_1);
        put<2>(fields, record.field_2);
        put_list<3, session_state_fields>(fields, record.field_3, record.field_3_count);
        put_text<4>(fields, record.field_4);
        put_text<5>(fields, record.field_5);
    }
};

void rec_sess_req_from_codec(tum_nal_data_rec_sess_req &record, const mava_tum_rec_sess_req &request)
{
    take(record.field_1, request.field_1);
    take(record.field_2, request.field_2);
    take_list<3>(record.field_3, record.field_3_count, request, request.field_3, request.field_3_count,
        session_state_from_codec);
    take_text<4>(record.field_4, request, request.field_4);
    take_text<5>(record.field_5, request, request.field_5);
    take(record.field_6, request.field_6);
}

// ---- rec_sess_res: the message rec_sess_resp ----

struct rec_sess_res_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_rec_sess_res &record)
    {
        put<1>(fields, record.field_1);
        put_list<2, session_state_fields>(fields, record.field_2, record.field_2_count);
        put<3>(fields, record.field_3);
        put<4>(fields, record.field_4);
    }
};

void rec_sess_res_from_codec(tum_nal_data_rec_sess_res &record, const mava_tum_rec_sess_resp &response)
{
    take(record.field_1, response.field_1);
    take_list<2>(record.field_2, record.field_2_count, response, response.field_2, response.field_2_count,
        session_state_from_codec);
    take(record.field_3, response.field_3);
    take(record.field_4, response.field_4);
}

} // namespace

} // namespace mava_tum

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_start_req(
    const tum_nal_data_rec_start_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_rec_start_req, mava_tum::rec_start_req_fields>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_start_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_start_req *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::rec_start_req_from_codec, mava_tum_rec_start_req_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_start_res(
    const tum_nal_data_rec_res *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_rec_resp, mava_tum::rec_res_fields>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_start_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_res *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::rec_res_from_codec, mava_tum_rec_resp_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_complete_req(
    const tum_nal_data_rec_complete_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_rec_complete_req, mava_tum::rec_complete_req_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_complete_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_complete_req *record)
{
    mava_tum::decode_frame(
        data, length, record, mava_tum::rec_complete_req_from_codec, mava_tum_rec_complete_req_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_complete_res(
    const tum_nal_data_rec_res *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_rec_resp, mava_tum::rec_res_fields>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_complete_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_res *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::rec_res_from_codec, mava_tum_rec_resp_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_sess_req(
    const tum_nal_data_rec_sess_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_rec_sess_req, mava_tum::rec_sess_req_fields>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_sess_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_req *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::rec_sess_req_from_codec, mava_tum_rec_sess_req_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_rec_sess_res(
    const tum_nal_data_rec_sess_res *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_rec_sess_resp, mava_tum::rec_sess_res_fields>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_rec_sess_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_res *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::rec_sess_res_from_codec, mava_tum_rec_sess_resp_free_ext);
}

// ---- layout: programs built against the header rely on it ----

#if UINTPTR_MAX == UINT64_MAX // elsewhere a uint64_t may be aligned otherwise
static_assert(sizeof(tum_nal_data_rec_start_req) == 80 && alignof(tum_nal_data_rec_start_req) == 4);
static_assert(offsetof(tum_nal_data_rec_start_req, field_2) == 4);
static_assert(offsetof(tum_nal_data_rec_start_req, field_3) == 8);
static_assert(offsetof(tum_nal_data_rec_start_req, field_4) == 12);

static_assert(sizeof(tum_nal_data_rec_complete_req) == 76 && alignof(tum_nal_data_rec_complete_req) == 4);
static_assert(offsetof(tum_nal_data_rec_complete_req, field_2) == 4);
static_assert(offsetof(tum_nal_data_rec_complete_req, field_3) == 8);
static_assert(offsetof(tum_nal_data_rec_complete_req, field_4) == 10);

static_assert(sizeof(tum_nal_data_rec_res) == 76 && alignof(tum_nal_data_rec_res) == 4);
static_assert(offsetof(tum_nal_data_rec_res, field_2) == 4);
static_assert(offsetof(tum_nal_data_rec_res, field_3) == 72);

static_assert(sizeof(tum_nal_data_session_state) == 24 && alignof(tum_nal_data_session_state) == 8);
static_assert(offsetof(tum_nal_data_session_state, field_2) == 8);
static_assert(offsetof(tum_nal_data_session_state, field_3) == 16);

static_assert(sizeof(tum_nal_data_rec_sess_req) == 872 && alignof(tum_nal_data_rec_sess_req) == 8);
static_assert(offsetof(tum_nal_data_rec_sess_req, field_2) == 4);
static_assert(offsetof(tum_nal_data_rec_sess_req, field_3_count) == 8);
static_assert(offsetof(tum_nal_data_rec_sess_req, field_3) == 16);
static_assert(offsetof(tum_nal_data_rec_sess_req, field_4) == 736);
static_assert(offsetof(tum_nal_data_rec_sess_req, field_5) == 801);
static_assert(offsetof(tum_nal_data_rec_sess_req, field_6) == 866);

static_assert(sizeof(tum_nal_data_rec_sess_res) == 736 && alignof(tum_nal_data_rec_sess_res) == 8);
static_assert(offsetof(tum_nal_data_rec_sess_res, field_2_count) == 4);
static_assert(offsetof(tum_nal_data_rec_sess_res, field_2) == 8);
static_assert(offsetof(tum_nal_data_rec_sess_res, field_3) == 728);
static_assert(offsetof(tum_nal_data_rec_sess_res, field_4) == 732);
#endif
