// Calls the functions of every message with the same parameters.
#include "catalogue.h"
#include "mava_tum/cpp/codec_calls.hpp"

namespace mava_tum_catalogue
{

using mava_tum::cpp::call_codec;

template <class Record>
int32_t message_calls<Record>::decode(void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    void *alloc_ctx, uint32_t flags)
{
    return call_codec(
        message_row<Record>::decode, static_cast<Record *>(record), data, length, alloc_fn, alloc_ctx, flags);
}

template <class Record>
uint64_t message_calls<Record>::encode(const void *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return call_codec(message_row<Record>::encode, static_cast<const Record *>(record), buffer, length, segments,
        segment_count, flags);
}

template <class Record>
int32_t message_calls<Record>::duplicate(
    void *destination, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return call_codec(message_row<Record>::duplicate, static_cast<Record *>(destination),
        static_cast<const Record *>(source), alloc_fn, alloc_ctx);
}

template <class Record>
void message_calls<Record>::free(void *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    call_codec(message_row<Record>::release, static_cast<Record *>(record), release_fn, release_ctx, flags);
}

// Instantiates the functions of all messages in this object.
[[gnu::used]] static const message *const every_message = tables::messages;

} // namespace mava_tum_catalogue
