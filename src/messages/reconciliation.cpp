// The reconciliation messages: exported functions.
#include "mava_tum/reconciliation.h"
#include "messages/reconciliation_schema.h"

using namespace mava_tum;

int32_t mava_tum_rec_start_req_decode_ext(mava_tum_rec_start_req *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_rec_start_req_encode_ext(const mava_tum_rec_start_req *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_rec_start_req_duplicate(mava_tum_rec_start_req *destination, const mava_tum_rec_start_req *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_rec_start_req_free_ext(
    mava_tum_rec_start_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_rec_complete_req_decode_ext(mava_tum_rec_complete_req *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_rec_complete_req_encode_ext(const mava_tum_rec_complete_req *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_rec_complete_req_duplicate(mava_tum_rec_complete_req *destination,
    const mava_tum_rec_complete_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_rec_complete_req_free_ext(
    mava_tum_rec_complete_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_rec_resp_decode_ext(mava_tum_rec_resp *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_rec_resp_encode_ext(const mava_tum_rec_resp *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_rec_resp_duplicate(
    mava_tum_rec_resp *destination, const mava_tum_rec_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_rec_resp_free_ext(
    mava_tum_rec_resp *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_rec_session_state_decode_ext(mava_tum_rec_session_state *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_rec_session_state_encode_ext(const mava_tum_rec_session_state *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_rec_session_state_duplicate(
    mava_tum_rec_session_state *destination, const mava_tum_rec_session_state *source, mava_tum_alloc_fn, void *)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_rec_session_state_free_ext(mava_tum_rec_session_state *, mava_tum_release_fn, void *, uint32_t) {}

int32_t mava_tum_rec_sess_req_decode_ext(mava_tum_rec_sess_req *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_rec_sess_req_encode_ext(const mava_tum_rec_sess_req *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_rec_sess_req_duplicate(mava_tum_rec_sess_req *destination, const mava_tum_rec_sess_req *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_rec_sess_req_free_ext(
    mava_tum_rec_sess_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_rec_sess_resp_decode_ext(mava_tum_rec_sess_resp *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_rec_sess_resp_encode_ext(const mava_tum_rec_sess_resp *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_rec_sess_resp_duplicate(mava_tum_rec_sess_resp *destination, const mava_tum_rec_sess_resp *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_rec_sess_resp_free_ext(
    mava_tum_rec_sess_resp *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_rec_sess_replay_req_decode_ext(mava_tum_rec_sess_replay_req *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_rec_sess_replay_req_encode_ext(const mava_tum_rec_sess_replay_req *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_rec_sess_replay_req_duplicate(mava_tum_rec_sess_replay_req *destination,
    const mava_tum_rec_sess_replay_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_rec_sess_replay_req_free_ext(
    mava_tum_rec_sess_replay_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_rec_sess_replay_fail_decode_ext(mava_tum_rec_sess_replay_fail *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_rec_sess_replay_fail_encode_ext(const mava_tum_rec_sess_replay_fail *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_rec_sess_replay_fail_duplicate(mava_tum_rec_sess_replay_fail *destination,
    const mava_tum_rec_sess_replay_fail *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_rec_sess_replay_fail_free_ext(
    mava_tum_rec_sess_replay_fail *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}

int32_t mava_tum_sess_svc_start_decode_ext(mava_tum_sess_svc_start *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_sess_svc_start_encode_ext(const mava_tum_sess_svc_start *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_sess_svc_start_duplicate(mava_tum_sess_svc_start *destination, const mava_tum_sess_svc_start *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_sess_svc_start_free_ext(
    mava_tum_sess_svc_start *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}

int32_t mava_tum_rec_sess_replay_resp_decode_ext(mava_tum_rec_sess_replay_resp *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_rec_sess_replay_resp_encode_ext(const mava_tum_rec_sess_replay_resp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_rec_sess_replay_resp_duplicate(mava_tum_rec_sess_replay_resp *destination,
    const mava_tum_rec_sess_replay_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_rec_sess_replay_resp_free_ext(
    mava_tum_rec_sess_replay_resp *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}
