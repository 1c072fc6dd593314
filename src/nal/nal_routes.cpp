#include "tum_nal/nal_routes.h"

#include "nal/adapter_frame.h"
#include "nal/convert_routes.h"
#include "nal/convert_rows.h"

#include <cstddef>

namespace mava_tum
{

namespace
{

struct sub_route_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_sub_route &record)
    {
        put<1>(fields, record.field_1);
        put<2>(fields, record.field_2);
        put<3>(fields, record.field_3);
        put_list<4, ipv4_route_fields>(fields, record.ipv4_routes, record.ipv4_route_count);
        put_list<5, ipv6_route_fields>(fields, record.ipv6_routes, record.ipv6_route_count);
        put<6>(fields, record.field_6);
    }
};

void sub_route_from_codec(tum_nal_data_sub_route &record, const mava_tum_sub_route &batch)
{
    take(record.field_1, batch.field_1);
    take(record.field_2, batch.field_2);
    take(record.field_3, batch.field_3);
    take_list<4>(record.ipv4_routes, record.ipv4_route_count, batch, batch.ipv4_routes, batch.ipv4_route_count,
        ipv4_route_from_codec);
    take_list<5>(record.ipv6_routes, record.ipv6_route_count, batch, batch.ipv6_routes, batch.ipv6_route_count,
        ipv6_route_from_codec);
    take(record.field_6, batch.field_6);
}

struct subscriber_route_resp_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_subscriber_route_resp &record)
    {
        put<1>(fields, record.field_1);
        put<2>(fields, record.field_2);
        put_text<3>(fields, record.field_3);
        put_text<4>(fields, record.field_4);
    }
};

void subscriber_route_resp_from_codec(
    tum_nal_data_subscriber_route_resp &record, const mava_tum_subscriber_route_resp &response)
{
    take(record.field_1, response.field_1);
    take(record.field_2, response.field_2);
    take_text<3>(record.field_3, response, response.field_3);
    take_text<4>(record.field_4, response, response.field_4);
}

} // namespace

} // namespace mava_tum

extern "C" uint64_t tum_nal_data_gpb_encode_tum_sub_route(
    const tum_nal_data_sub_route *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_sub_route, mava_tum::sub_route_fields>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_sub_route(
    const uint8_t *data, uint32_t length, tum_nal_data_sub_route *record)
{
    mava_tum::decode_frame(data, length, record, mava_tum::sub_route_from_codec, mava_tum_sub_route_free_ext);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_subscriber_route_resp(
    const tum_nal_data_subscriber_route_resp *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_subscriber_route_resp, mava_tum::subscriber_route_resp_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_subscriber_route_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_subscriber_route_resp *record)
{
    mava_tum::decode_frame(
        data, length, record, mava_tum::subscriber_route_resp_from_codec, mava_tum_subscriber_route_resp_free_ext);
}

// ---- layout: programs built against the header rely on it ----

static_assert(sizeof(tum_nal_data_ipv4_route) == 164 && alignof(tum_nal_data_ipv4_route) == 4);
static_assert(offsetof(tum_nal_data_ipv4_route, field_2) == 4);
static_assert(offsetof(tum_nal_data_ipv4_route, field_3) == 40);
static_assert(offsetof(tum_nal_data_ipv4_route, field_4) == 44);
static_assert(offsetof(tum_nal_data_ipv4_route, field_5) == 48);
static_assert(offsetof(tum_nal_data_ipv4_route, field_6) == 52);
static_assert(offsetof(tum_nal_data_ipv4_route, field_7) == 88);
static_assert(offsetof(tum_nal_data_ipv4_route, field_8) == 92);
static_assert(offsetof(tum_nal_data_ipv4_route, field_9) == 96);

static_assert(sizeof(tum_nal_data_ipv6_route) == 188 && alignof(tum_nal_data_ipv6_route) == 4);
static_assert(offsetof(tum_nal_data_ipv6_route, field_2) == 4);
static_assert(offsetof(tum_nal_data_ipv6_route, field_3) == 40);
static_assert(offsetof(tum_nal_data_ipv6_route, field_4) == 56);
static_assert(offsetof(tum_nal_data_ipv6_route, field_5) == 57);
static_assert(offsetof(tum_nal_data_ipv6_route, field_6) == 73);
static_assert(offsetof(tum_nal_data_ipv6_route, field_7) == 112);
static_assert(offsetof(tum_nal_data_ipv6_route, field_8) == 116);
static_assert(offsetof(tum_nal_data_ipv6_route, field_9) == 120);

static_assert(sizeof(tum_nal_data_sub_route) == 17620 && alignof(tum_nal_data_sub_route) == 4);
static_assert(offsetof(tum_nal_data_sub_route, field_2) == 4);
static_assert(offsetof(tum_nal_data_sub_route, field_3) == 8);
static_assert(offsetof(tum_nal_data_sub_route, ipv4_route_count) == 12);
static_assert(offsetof(tum_nal_data_sub_route, ipv6_route_count) == 13);
static_assert(offsetof(tum_nal_data_sub_route, ipv4_routes) == 16);
static_assert(offsetof(tum_nal_data_sub_route, ipv6_routes) == 8216);
static_assert(offsetof(tum_nal_data_sub_route, field_6) == 17616);

static_assert(sizeof(tum_nal_data_subscriber_route_resp) == 140 && alignof(tum_nal_data_subscriber_route_resp) == 4);
static_assert(offsetof(tum_nal_data_subscriber_route_resp, field_2) == 4);
static_assert(offsetof(tum_nal_data_subscriber_route_resp, field_3) == 8);
static_assert(offsetof(tum_nal_data_subscriber_route_resp, field_4) == 73);
