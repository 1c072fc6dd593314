#include "tum_nal/nal_redundancy_group.h"

#include "nal/adapter_frame.h"
#include "nal/convert_group_data.h"
#include "nal/convert_rows.h"

#include <cstddef>

namespace mava_tum
{

namespace
{

// ---- srg_group_rec_start_req; L31, L35: the only one of these messages that sends its zeros ----

struct srg_group_rec_start_req_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_srg_group_rec_start_req &record)
    {
        put<1>(fields, record.field_1);
        put<2>(fields, record.field_2);
        put<3>(fields, record.field_3);
    }
};

void srg_group_rec_start_req_from_codec(
    tum_nal_data_srg_group_rec_start_req &record, const mava_tum_srg_group_rec_start_req &request)
{
    take(record.field_1, request.field_1);
    take(record.field_2, request.field_2);
    take(record.field_3, request.field_3);
}

// ---- srg_group_rec_resp ----

struct srg_group_rec_resp_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_srg_group_rec_resp &record)
    {
        put_nonzero<1>(fields, record.field_1);
        put_nonzero<2>(fields, record.field_2);
    }
};

void srg_group_rec_resp_from_codec(tum_nal_data_srg_group_rec_resp &record, const mava_tum_srg_group_rec_resp &response)
{
    take(record.field_1, response.field_1);
    take(record.field_2, response.field_2);
}

// ---- srg_group_rec_complete_req ----

struct srg_group_rec_complete_req_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_srg_group_rec_complete_req &record)
    {
        put_nonzero<1>(fields, record.field_1);
        put_nonzero<2>(fields, record.field_2);
        put_nonzero<3>(fields, record.field_3);
    }
};

void srg_group_rec_complete_req_from_codec(
    tum_nal_data_srg_group_rec_complete_req &record, const mava_tum_srg_group_rec_complete_req &request)
{
    take(record.field_1, request.field_1);
    take(record.field_2, request.field_2);
    take(record.field_3, request.field_3);
}

// ---- srg_group_rec_replay_req ----

struct srg_group_rec_replay_req_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_srg_group_rec_replay_req &record)
    {
        put_nonzero<1>(fields, record.field_1);
        put_nonzero<2>(fields, record.field_2);
        put_list<3, group_data_fields>(fields, record.field_3, record.field_3_count);
        put_nonzero<4>(fields, record.field_4);
    }
};

void srg_group_rec_replay_req_from_codec(
    tum_nal_data_srg_group_rec_replay_req &record, const mava_tum_srg_group_rec_replay_req &request)
{
    take(record.field_1, request.field_1);
    take(record.field_2, request.field_2);
    take_list<3>(
        record.field_3, record.field_3_count, request, request.field_3, request.field_3_count, group_data_from_codec);
    take(record.field_4, request.field_4);
}

// ---- srg_group_rec_replay_resp ----

struct srg_group_rec_replay_resp_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_srg_group_rec_replay_resp &record)
    {
        put_nonzero<1>(fields, record.field_1);
        put_list<2, group_data_fields>(fields, record.field_2, record.field_2_count);
        put_list<3, group_data_fields>(fields, record.field_3, record.field_3_count);
        put_nonzero<4>(fields, record.field_4);
    }
};

void srg_group_rec_replay_resp_from_codec(
    tum_nal_data_srg_group_rec_replay_resp &record, const mava_tum_srg_group_rec_replay_resp &response)
{
    take(record.field_1, response.field_1);
    take_list<2>(record.field_2, record.field_2_count, response, response.field_2, response.field_2_count,
        group_data_from_codec);
    take_list<3>(record.field_3, record.field_3_count, response, response.field_3, response.field_3_count,
        group_data_from_codec);
    take(record.field_4, response.field_4);
}

} // namespace

} // namespace mava_tum

extern "C" uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_start_req(
    const tum_nal_data_srg_group_rec_start_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_srg_group_rec_start_req, mava_tum::srg_group_rec_start_req_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_srg_group_rec_start_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_start_req *record)
{
    mava_tum::decode_frame(
        data, length, record, mava_tum::srg_group_rec_start_req_from_codec, mava_tum_srg_group_rec_start_req_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_resp(
    const tum_nal_data_srg_group_rec_resp *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_srg_group_rec_resp, mava_tum::srg_group_rec_resp_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_srg_group_rec_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_resp *record)
{
    mava_tum::decode_frame(
        data, length, record, mava_tum::srg_group_rec_resp_from_codec, mava_tum_srg_group_rec_resp_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_complete_req(
    const tum_nal_data_srg_group_rec_complete_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_srg_group_rec_complete_req, mava_tum::srg_group_rec_complete_req_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_srg_group_rec_complete_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_complete_req *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::srg_group_rec_complete_req_from_codec,
        mava_tum_srg_group_rec_complete_req_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_replay_req(
    const tum_nal_data_srg_group_rec_replay_req *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_srg_group_rec_replay_req, mava_tum::srg_group_rec_replay_req_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_replay_req *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::srg_group_rec_replay_req_from_codec,
        mava_tum_srg_group_rec_replay_req_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_replay_resp(
    const tum_nal_data_srg_group_rec_replay_resp *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_srg_group_rec_replay_resp, mava_tum::srg_group_rec_replay_resp_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_srg_group_rec_replay_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_replay_resp *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::srg_group_rec_replay_resp_from_codec,
        mava_tum_srg_group_rec_replay_resp_free_ext);
}

// ---- layout: programs built against the header rely on it ----

static_assert(sizeof(tum_nal_data_srg_group_rec_start_req) == 12 && alignof(tum_nal_data_srg_group_rec_start_req) == 4);
static_assert(offsetof(tum_nal_data_srg_group_rec_start_req, field_2) == 4);
static_assert(offsetof(tum_nal_data_srg_group_rec_start_req, field_3) == 8);

static_assert(sizeof(tum_nal_data_srg_group_rec_resp) == 8 && alignof(tum_nal_data_srg_group_rec_resp) == 4);
static_assert(offsetof(tum_nal_data_srg_group_rec_resp, field_2) == 4);

static_assert(
    sizeof(tum_nal_data_srg_group_rec_complete_req) == 12 && alignof(tum_nal_data_srg_group_rec_complete_req) == 4);
static_assert(offsetof(tum_nal_data_srg_group_rec_complete_req, field_2) == 4);
static_assert(offsetof(tum_nal_data_srg_group_rec_complete_req, field_3) == 8);

static_assert(sizeof(tum_nal_data_group_data) == 84 && alignof(tum_nal_data_group_data) == 4);
static_assert(offsetof(tum_nal_data_group_data, field_2) == 4);
static_assert(offsetof(tum_nal_data_group_data, field_3) == 8);
static_assert(offsetof(tum_nal_data_group_data, field_4) == 12);
static_assert(offsetof(tum_nal_data_group_data, field_5) == 16);

static_assert(
    sizeof(tum_nal_data_srg_group_rec_replay_req) == 1276 && alignof(tum_nal_data_srg_group_rec_replay_req) == 4);
static_assert(offsetof(tum_nal_data_srg_group_rec_replay_req, field_2) == 4);
static_assert(offsetof(tum_nal_data_srg_group_rec_replay_req, field_3_count) == 8);
static_assert(offsetof(tum_nal_data_srg_group_rec_replay_req, field_3) == 12);
static_assert(offsetof(tum_nal_data_srg_group_rec_replay_req, field_4) == 1272);

static_assert(
    sizeof(tum_nal_data_srg_group_rec_replay_resp) == 2536 && alignof(tum_nal_data_srg_group_rec_replay_resp) == 4);
static_assert(offsetof(tum_nal_data_srg_group_rec_replay_resp, field_2_count) == 4);
static_assert(offsetof(tum_nal_data_srg_group_rec_replay_resp, field_2) == 8);
static_assert(offsetof(tum_nal_data_srg_group_rec_replay_resp, field_3_count) == 1268);
static_assert(offsetof(tum_nal_data_srg_group_rec_replay_resp, field_3) == 1272);
static_assert(offsetof(tum_nal_data_srg_group_rec_replay_resp, field_4) == 2532);
