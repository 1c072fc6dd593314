// The adapters of a batch of routes and its answer.
#include "tum_nal/nal_routes.h"

#include "messages/routes_schema.h"
#include "nal/route_rows.h"

namespace mava_tum
{

namespace
{

struct sub_route_rows {
    using message = mava_tum_sub_route;
    using record = tum_nal_data_sub_route;
    using rows = row_list<number<1, &record::field_1>, number<2, &record::field_2>, number<3, &record::field_3>,
        list<4, &record::ipv4_routes, &record::ipv4_route_count, ipv4_route_rows>,
        list<5, &record::ipv6_routes, &record::ipv6_route_count, ipv6_route_rows>, number<6, &record::field_6>>;
};

struct subscriber_route_resp_rows {
    using message = mava_tum_subscriber_route_resp;
    using record = tum_nal_data_subscriber_route_resp;
    using rows = row_list<number<1, &record::field_1>, number<2, &record::field_2>, text<3, &record::field_3>,
        text<4, &record::field_4>>;
};

} // namespace

} // namespace mava_tum

extern "C" uint64_t tum_nal_data_gpb_encode_tum_sub_route(
    const tum_nal_data_sub_route *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::sub_route_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_sub_route(
    const uint8_t *data, uint32_t length, tum_nal_data_sub_route *record)
{
    mava_tum::decode_mapped<mava_tum::sub_route_rows>(*record, data, length);
}

extern "C" uint64_t tum_nal_data_gpb_encode_tum_subscriber_route_resp(
    const tum_nal_data_subscriber_route_resp *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::subscriber_route_resp_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_subscriber_route_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_subscriber_route_resp *record)
{
    mava_tum::decode_mapped<mava_tum::subscriber_route_resp_rows>(*record, data, length);
}
