// The subscriber records: exported functions.
#include "messages/subscriber_records_schema.h"

using namespace mava_tum;

int32_t mava_tum_subscriber_v4_decode_ext(mava_tum_subscriber_v4 *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_subscriber_v4_encode_ext(const mava_tum_subscriber_v4 *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_v4_duplicate(mava_tum_subscriber_v4 *destination, const mava_tum_subscriber_v4 *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_subscriber_v4_free_ext(mava_tum_subscriber_v4 *) {}

int32_t mava_tum_subscriber_v6_decode_ext(mava_tum_subscriber_v6 *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_subscriber_v6_encode_ext(const mava_tum_subscriber_v6 *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_subscriber_v6_duplicate(mava_tum_subscriber_v6 *destination, const mava_tum_subscriber_v6 *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_subscriber_v6_free_ext(
    mava_tum_subscriber_v6 *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_ppp_data_decode_ext(mava_tum_ppp_data *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_ppp_data_encode_ext(const mava_tum_ppp_data *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_ppp_data_duplicate(
    mava_tum_ppp_data *destination, const mava_tum_ppp_data *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_ppp_data_free_ext(
    mava_tum_ppp_data *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_l2tp_data_decode_ext(mava_tum_l2tp_data *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_l2tp_data_encode_ext(const mava_tum_l2tp_data *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_l2tp_data_duplicate(
    mava_tum_l2tp_data *destination, const mava_tum_l2tp_data *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_l2tp_data_free_ext(
    mava_tum_l2tp_data *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_vlan_info_decode_ext(mava_tum_vlan_info *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_vlan_info_encode_ext(const mava_tum_vlan_info *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_vlan_info_duplicate(mava_tum_vlan_info *destination, const mava_tum_vlan_info *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_vlan_info_free_ext(mava_tum_vlan_info *) {}

int32_t mava_tum_session_data_decode_ext(mava_tum_session_data *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_session_data_encode_ext(const mava_tum_session_data *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_session_data_duplicate(mava_tum_session_data *destination, const mava_tum_session_data *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_session_data_free_ext(
    mava_tum_session_data *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}
