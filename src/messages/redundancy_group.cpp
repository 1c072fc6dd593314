// The redundancy-group messages: exported functions.
#include "mava_tum/redundancy_group.h"
#include "messages/redundancy_group_schema.h"

using namespace mava_tum;

int32_t mava_tum_srg_group_rec_start_req_decode_ext(
    mava_tum_srg_group_rec_start_req *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_srg_group_rec_start_req_encode_ext(const mava_tum_srg_group_rec_start_req *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_srg_group_rec_start_req_duplicate(
    mava_tum_srg_group_rec_start_req *destination, const mava_tum_srg_group_rec_start_req *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_srg_group_rec_start_req_free_ext(mava_tum_srg_group_rec_start_req *) {}

int32_t mava_tum_srg_group_rec_resp_decode_ext(
    mava_tum_srg_group_rec_resp *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_srg_group_rec_resp_encode_ext(const mava_tum_srg_group_rec_resp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_srg_group_rec_resp_duplicate(
    mava_tum_srg_group_rec_resp *destination, const mava_tum_srg_group_rec_resp *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_srg_group_rec_resp_free_ext(mava_tum_srg_group_rec_resp *) {}

int32_t mava_tum_srg_group_rec_complete_req_decode_ext(
    mava_tum_srg_group_rec_complete_req *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_srg_group_rec_complete_req_encode_ext(const mava_tum_srg_group_rec_complete_req *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_srg_group_rec_complete_req_duplicate(
    mava_tum_srg_group_rec_complete_req *destination, const mava_tum_srg_group_rec_complete_req *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_srg_group_rec_complete_req_free_ext(mava_tum_srg_group_rec_complete_req *) {}

int32_t mava_tum_srg_group_data_decode_ext(mava_tum_srg_group_data *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_srg_group_data_encode_ext(const mava_tum_srg_group_data *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_srg_group_data_duplicate(mava_tum_srg_group_data *destination, const mava_tum_srg_group_data *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_srg_group_data_free_ext(
    mava_tum_srg_group_data *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}

int32_t mava_tum_srg_group_rec_replay_req_decode_ext(mava_tum_srg_group_rec_replay_req *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_srg_group_rec_replay_req_encode_ext(const mava_tum_srg_group_rec_replay_req *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_srg_group_rec_replay_req_duplicate(mava_tum_srg_group_rec_replay_req *destination,
    const mava_tum_srg_group_rec_replay_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_srg_group_rec_replay_req_free_ext(
    mava_tum_srg_group_rec_replay_req *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}

int32_t mava_tum_srg_group_rec_replay_resp_decode_ext(mava_tum_srg_group_rec_replay_resp *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_srg_group_rec_replay_resp_encode_ext(const mava_tum_srg_group_rec_replay_resp *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_srg_group_rec_replay_resp_duplicate(mava_tum_srg_group_rec_replay_resp *destination,
    const mava_tum_srg_group_rec_replay_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_srg_group_rec_replay_resp_free_ext(
    mava_tum_srg_group_rec_replay_resp *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}
