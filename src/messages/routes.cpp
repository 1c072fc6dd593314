// The route messages: exported functions.
#include "mava_tum/routes.h"
#include "messages/routes_schema.h"

using namespace mava_tum;

int32_t mava_tum_sub_route_decode_ext(mava_tum_sub_route *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_sub_route_encode_ext(const mava_tum_sub_route *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_sub_route_duplicate(
    mava_tum_sub_route *destination, const mava_tum_sub_route *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_sub_route_free_ext(
    mava_tum_sub_route *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_subscriber_route_resp_decode_ext(mava_tum_subscriber_route_resp *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx));
}

uint64_t mava_tum_subscriber_route_resp_encode_ext(const mava_tum_subscriber_route_resp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_route_resp_duplicate(mava_tum_subscriber_route_resp *destination,
    const mava_tum_subscriber_route_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_subscriber_route_resp_free_ext(
    mava_tum_subscriber_route_resp *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}
