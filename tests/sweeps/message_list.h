// The one list of all messages, each behind one interface whatever parameters its four functions take.
#pragma once

#include "mava_tum.h"
#include "sweeps/record_access.h"
#include "sweeps/record_value.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
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

// Names one test per message after it.
inline std::string name_of_message(const testing::TestParamInfo<message> &info)
{
    return info.param.name;
}

inline void PrintTo(const message &value, std::ostream *stream)
{
    *stream << value.name;
}

template <class function>
struct record_of_decode;

template <class record_type, class... rest>
struct record_of_decode<int32_t (*)(record_type *, rest...)> {
    using type = record_type;
};

template <auto decode_ext, auto encode_ext, auto duplicate, auto free_ext>
struct message_functions {
    using record = typename record_of_decode<decltype(decode_ext)>::type;

    static int32_t call_decode(
        void *target, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
    {
        record *typed = static_cast<record *>(target);
        if constexpr (std::is_invocable_v<decltype(decode_ext), record *, const uint8_t *, uint64_t>)
            return decode_ext(typed, data, length);
        else if constexpr (std::is_invocable_v<decltype(decode_ext), record *, const uint8_t *, uint64_t,
                               mava_tum_alloc_fn, void *>)
            return decode_ext(typed, data, length, alloc_fn, alloc_ctx);
        else
            return decode_ext(typed, data, length, alloc_fn, alloc_ctx, flags);
    }

    static uint64_t call_encode(const void *source, uint8_t *buffer, uint64_t length, mava_tum_segment *segments,
        uint32_t *segment_count, uint32_t flags)
    {
        const record *typed = static_cast<const record *>(source);
        if constexpr (std::is_invocable_v<decltype(encode_ext), const record *, uint8_t *, uint64_t, mava_tum_segment *,
                          uint32_t *>)
            return encode_ext(typed, buffer, length, segments, segment_count);
        else
            return encode_ext(typed, buffer, length, segments, segment_count, flags);
    }

    static int32_t call_duplicate(void *target, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
    {
        record *typed = static_cast<record *>(target);
        const record *typed_source = static_cast<const record *>(source);
        if constexpr (std::is_invocable_v<decltype(duplicate), record *, const record *>)
            return duplicate(typed, typed_source);
        else
            return duplicate(typed, typed_source, alloc_fn, alloc_ctx);
    }

    static void call_free(void *target, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
    {
        record *typed = static_cast<record *>(target);
        if constexpr (std::is_invocable_v<decltype(free_ext), record *>)
            free_ext(typed);
        else if constexpr (std::is_invocable_v<decltype(free_ext), record *, mava_tum_release_fn, void *>)
            free_ext(typed, release_fn, release_ctx);
        else
            free_ext(typed, release_fn, release_ctx, flags);
    }

    static message named(const char *name)
    {
        message result;
        result.name = name;
        result.record_bytes = sizeof(record);
        result.skeleton = &skeleton_of<record>();
        result.decode = call_decode;
        result.encode = call_encode;
        result.duplicate = call_duplicate;
        result.free = call_free;
        result.read = [](const void *source) { return read_record(*static_cast<const record *>(source)); };
        result.blank = [](const void *source) { return blank_of(*static_cast<const record *>(source)); };
        result.fill = [](void *target, const record_value &value, record_memory &memory) {
            fill_record(*static_cast<record *>(target), value, memory);
        };
        result.collect_bytes = [](const void *source) {
            return mava_tum_test::collect_bytes(*static_cast<const record *>(source));
        };
        return result;
    }
};

} // namespace mava_tum_test
