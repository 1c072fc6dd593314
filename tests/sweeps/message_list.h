// The one list of all messages, each behind one interface whatever parameters its four functions take.
#pragma once

#include "mava_tum.h"
#include "support/record_calls.h"
#include "sweeps/record_access.h"
#include "sweeps/record_value.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mava_tum_test
{

struct message {
    const char *name;
    std::size_t record_bytes;
    const record_value *skeleton;

    // The exported functions. Arguments that the message's own function does not take are dropped.
    int32_t (*decode)(void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx,
        uint32_t flags);
    uint64_t (*encode)(const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments,
        uint32_t *segment_count, uint32_t flags);
    int32_t (*duplicate)(void *destination, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
    void (*free)(void *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

    // See record_access.h.
    record_value (*read)(const void *record);
    record_value (*blank)(const void *record);
    void (*fill)(void *record, const record_value &value, record_memory &memory);
    std::vector<mava_tum_bytes> (*collect_bytes)(const void *record);
};

const std::vector<message> &all_messages();

// Those for which a test has something to do.
std::vector<message> messages_where(bool (*applies)(const message &tested));

// Names one test per message after it.
inline std::string name_of_message(const testing::TestParamInfo<message> &info)
{
    return info.param.name;
}

inline void PrintTo(const message &value, std::ostream *stream)
{
    *stream << value.name;
}

template <class record_type>
message message_of(const char *name)
{
    message result;
    result.name = name;
    result.record_bytes = sizeof(record_type);
    result.skeleton = &skeleton_of<record_type>();
    result.decode = [](void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx,
                        uint32_t flags) {
        return call_decode(*static_cast<record_type *>(record), data, length, alloc_fn, alloc_ctx, flags);
    };
    result.encode = [](const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments,
                        uint32_t *segment_count, uint32_t flags) {
        return call_encode(*static_cast<const record_type *>(record), buffer, length, segments, segment_count, flags);
    };
    result.duplicate = [](void *destination, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx) {
        return call_duplicate(
            *static_cast<record_type *>(destination), *static_cast<const record_type *>(source), alloc_fn, alloc_ctx);
    };
    result.free = [](void *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags) {
        call_free(*static_cast<record_type *>(record), release_fn, release_ctx, flags);
    };
    result.read = [](const void *record) { return read_record(*static_cast<const record_type *>(record)); };
    result.blank = [](const void *record) { return blank_of(*static_cast<const record_type *>(record)); };
    result.fill = [](void *record, const record_value &value, record_memory &memory) {
        fill_record(*static_cast<record_type *>(record), value, memory);
    };
    result.collect_bytes = [](const void *record) {
        return mava_tum_test::collect_bytes(*static_cast<const record_type *>(record));
    };
    return result;
}

} // namespace mava_tum_test
