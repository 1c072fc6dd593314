// The statistics messages: exported functions.
#include "messages/statistics_schema.h"

using namespace mava_tum;

int32_t mava_tum_stats_decode_ext(mava_tum_stats *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_stats_encode_ext(
    const mava_tum_stats *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_stats_duplicate(mava_tum_stats *destination, const mava_tum_stats *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_stats_free_ext(mava_tum_stats *) {}

int32_t mava_tum_service_stats_decode_ext(
    mava_tum_service_stats *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx));
}

uint64_t mava_tum_service_stats_encode_ext(const mava_tum_service_stats *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_service_stats_duplicate(mava_tum_service_stats *destination, const mava_tum_service_stats *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_service_stats_free_ext(mava_tum_service_stats *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}

int32_t mava_tum_subscriber_stats_decode_ext(mava_tum_subscriber_stats *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx));
}

uint64_t mava_tum_subscriber_stats_encode_ext(const mava_tum_subscriber_stats *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_stats_duplicate(mava_tum_subscriber_stats *destination,
    const mava_tum_subscriber_stats *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_subscriber_stats_free_ext(
    mava_tum_subscriber_stats *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}
