// The session messages: exported functions.
#include "messages/session_messages_schema.h"

using namespace mava_tum;

int32_t mava_tum_session_context_decode_ext(mava_tum_session_context *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_session_context_encode_ext(const mava_tum_session_context *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_session_context_duplicate(mava_tum_session_context *destination,
    const mava_tum_session_context *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_session_context_free_ext(
    mava_tum_session_context *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_session_delete_decode_ext(
    mava_tum_session_delete *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn, void *)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_session_delete_encode_ext(const mava_tum_session_delete *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_session_delete_duplicate(mava_tum_session_delete *destination, const mava_tum_session_delete *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_session_delete_free_ext(mava_tum_session_delete *) {}

int32_t mava_tum_sess_oper_resp_decode_ext(mava_tum_sess_oper_resp *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_sess_oper_resp_encode_ext(const mava_tum_sess_oper_resp *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_sess_oper_resp_duplicate(mava_tum_sess_oper_resp *destination, const mava_tum_sess_oper_resp *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_sess_oper_resp_free_ext(
    mava_tum_sess_oper_resp *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}
