// The four functions of any message in one shape each. Arguments that the message's own function does not take are
// dropped, as its header says that they have no meaning there.
#pragma once

#include "mava_tum/codec_contract.h"

#include <cstdint>

namespace mava_tum_inspect
{

struct message_calls {
    int32_t (*decode)(void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx,
        uint32_t flags);
    uint64_t (*encode)(const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments,
        uint32_t *segment_count, uint32_t flags);
    int32_t (*duplicate)(void *destination, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
    void (*free)(void *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
};

// ---- decode: plain, allocating, allocating with bytes fields ----

template <class Record>
int32_t call_decode(int32_t (*function)(Record *, const uint8_t *, uint64_t), void *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn, void *, uint32_t)
{
    return function(static_cast<Record *>(record), data, length);
}

template <class Record>
int32_t call_decode(int32_t (*function)(Record *, const uint8_t *, uint64_t, mava_tum_alloc_fn, void *), void *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t)
{
    return function(static_cast<Record *>(record), data, length, alloc_fn, alloc_ctx);
}

template <class Record>
int32_t call_decode(int32_t (*function)(Record *, const uint8_t *, uint64_t, mava_tum_alloc_fn, void *, uint32_t),
    void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return function(static_cast<Record *>(record), data, length, alloc_fn, alloc_ctx, flags);
}

// ---- encode: without and with bytes fields ----

template <class Record>
uint64_t call_encode(uint64_t (*function)(const Record *, uint8_t *, uint64_t, mava_tum_segment *, uint32_t *),
    const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t)
{
    return function(static_cast<const Record *>(record), buffer, length, segments, segment_count);
}

template <class Record>
uint64_t call_encode(
    uint64_t (*function)(const Record *, uint8_t *, uint64_t, mava_tum_segment *, uint32_t *, uint32_t),
    const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count,
    uint32_t flags)
{
    return function(static_cast<const Record *>(record), buffer, length, segments, segment_count, flags);
}

// ---- duplicate: scalars only, and with memory of its own ----

template <class Record>
int32_t call_duplicate(
    int32_t (*function)(Record *, const Record *), void *destination, const void *source, mava_tum_alloc_fn, void *)
{
    return function(static_cast<Record *>(destination), static_cast<const Record *>(source));
}

template <class Record>
int32_t call_duplicate(int32_t (*function)(Record *, const Record *, mava_tum_alloc_fn, void *), void *destination,
    const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return function(static_cast<Record *>(destination), static_cast<const Record *>(source), alloc_fn, alloc_ctx);
}

// ---- free: nothing to release, texts and arrays, bytes fields too ----

template <class Record>
void call_free(void (*function)(Record *), void *record, mava_tum_release_fn, void *, uint32_t)
{
    function(static_cast<Record *>(record));
}

template <class Record>
void call_free(void (*function)(Record *, mava_tum_release_fn, void *), void *record, mava_tum_release_fn release_fn,
    void *release_ctx, uint32_t)
{
    function(static_cast<Record *>(record), release_fn, release_ctx);
}

template <class Record>
void call_free(void (*function)(Record *, mava_tum_release_fn, void *, uint32_t), void *record,
    mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    function(static_cast<Record *>(record), release_fn, release_ctx, flags);
}

// ---- all four ----

template <auto Decode, auto Encode, auto Duplicate, auto Free>
constexpr message_calls uniform_calls()
{
    return {
        [](void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx,
            uint32_t flags) { return call_decode(Decode, record, data, length, alloc_fn, alloc_ctx, flags); },
        [](const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count,
            uint32_t flags) { return call_encode(Encode, record, buffer, length, segments, segment_count, flags); },
        [](void *destination, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx) {
            return call_duplicate(Duplicate, destination, source, alloc_fn, alloc_ctx);
        },
        [](void *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags) {
            call_free(Free, record, release_fn, release_ctx, flags);
        },
    };
}

} // namespace mava_tum_inspect
