// Decode, encode, duplicate and free for tests: bytes as hex, records filled with 0xFF to detect a reset that misses a
// member or changes a reserved bit, inputs that end before an inaccessible page, and an allocator that must have no
// outstanding block at the end.
#pragma once

#include "catalogue.h"
#include "support/guarded_buffer.h"
#include "support/hex.h"
#include "support/recording_allocator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace mava_tum_test
{

// The flag, under the names of its effect for decoders and encoders.
inline constexpr uint32_t alias = MAVA_TUM_ALIAS;
inline constexpr uint32_t gather = MAVA_TUM_ALIAS;

inline constexpr uint64_t pointer_bytes = sizeof(char *);

// ---- one call each, for all parameters of the messages' functions ----

template <class record_type>
int32_t call_decode(record_type &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    void *alloc_ctx, uint32_t flags)
{
    return mava_tum_catalogue::message_of<record_type>().decode(&record, data, length, alloc_fn, alloc_ctx, flags);
}

template <class record_type>
uint64_t call_encode(const record_type &record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments = nullptr,
    uint32_t *segment_count = nullptr, uint32_t flags = 0)
{
    return mava_tum_catalogue::message_of<record_type>().encode(&record, buffer, length, segments, segment_count, flags);
}

template <class record_type>
int32_t call_duplicate(record_type &destination, const record_type &source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return mava_tum_catalogue::message_of<record_type>().duplicate(&destination, &source, alloc_fn, alloc_ctx);
}

template <class record_type>
void call_free(record_type &record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    mava_tum_catalogue::message_of<record_type>().free(&record, release_fn, release_ctx, flags);
}

template <class record_type>
void free_record(record_type &record, recording_allocator &allocator, uint32_t flags = 0)
{
    call_free(record, recording_allocator::release, allocator.context(), flags);
}

// ---- presence ----

// The mask with exactly the given fields.
template <class... number>
constexpr uint32_t fields(number... numbers)
{
    return (0u | ... | (1u << (numbers - 1)));
}

template <class record_type, class... number>
void mark_present(record_type &record, number... numbers)
{
    record.presence_mask = static_cast<decltype(record.presence_mask)>(record.presence_mask | fields(numbers...));
}

// The bits of the presence mask that belong to a field. All others are reserved.
template <class record_type>
inline constexpr uint32_t all_own_bits = (1u << mava_tum_catalogue::message_of<record_type>().fields.size()) - 1;

template <class record_type>
uint32_t own_bits(const record_type &record)
{
    return record.presence_mask & all_own_bits<record_type>;
}

template <class record_type>
constexpr uint32_t all_spare_bits()
{
    constexpr decltype(record_type::presence_mask) all_ones = static_cast<decltype(record_type::presence_mask)>(~0u);
    return all_ones & ~all_own_bits<record_type>;
}

template <class record_type>
uint32_t spare_bits(const record_type &record)
{
    return record.presence_mask & all_spare_bits<record_type>();
}

// ---- values ----

inline mava_tum_bytes bytes_field(byte_vector &content)
{
    return {content.data(), content.size()};
}

inline byte_vector content_of(const mava_tum_bytes &field)
{
    return field.data == nullptr ? byte_vector() : byte_vector(field.data, field.data + field.length);
}

template <class record_type>
void fill_with_ones(record_type &record)
{
    std::memset(static_cast<void *>(&record), 0xFF, sizeof record);
}

// ---- decode ----

struct decode_options {
    uint32_t flags = 0;
    bool allocator_given = true;
    std::size_t failing_call = 0; // this allocator call fails, once; 0 for none
};

// One decode and its results. The destructor frees the record; its allocator then reports outstanding blocks.
template <class record_type>
struct decoded {
    page_end_buffer wire;
    recording_allocator allocator;
    record_type record;
    int32_t result;
    uint32_t flags;

    explicit decoded(const byte_vector &bytes, decode_options options = {}) : wire(bytes), flags(options.flags)
    {
        fill_with_ones(record);
        if (options.failing_call != 0)
            allocator.fail_call(options.failing_call);
        result = call_decode(record, wire.data(), wire.size(),
            options.allocator_given ? recording_allocator::allocate : nullptr, allocator.context(), flags);
        EXPECT_EQ(spare_bits(record), all_spare_bits<record_type>()) << "the decode changed reserved bits";
    }

    explicit decoded(std::string_view hex, decode_options options = {}) : decoded(bytes_of(hex), options) {}

    decoded(const decoded &) = delete;
    decoded &operator=(const decoded &) = delete;

    ~decoded()
    {
        free_now();
    }

    void free_now()
    {
        free_record(record, allocator, flags);
    }

    uint32_t present() const
    {
        return own_bits(record);
    }
};

// ---- encode ----

// The complete output, in a buffer of exactly the requested size.
template <class record_type>
byte_vector encoded(const record_type &record)
{
    const uint64_t size = call_encode(record, nullptr, 0);
    guarded_buffer buffer(size);
    EXPECT_EQ(call_encode(record, buffer.data(), size), size) << "the size pass and the real pass differ";
    EXPECT_TRUE(buffer.guards_intact());
    return buffer.content();
}

template <class record_type>
std::string encoded_hex(const record_type &record)
{
    return hex_of(encoded(record));
}

// The bytes that an encode into `capacity` bytes writes; the result must also be `expected_size`.
template <class record_type>
write_trace encode_trace(const record_type &record, std::size_t capacity, uint64_t expected_size)
{
    return trace_writes(capacity, [&](uint8_t *buffer, std::size_t size) {
        EXPECT_EQ(call_encode(record, buffer, size), expected_size) << "capacity " << capacity;
    });
}

// Written bytes as hex, a byte that was not written as "--".
inline std::string hex_of(const write_trace &trace)
{
    std::string text;
    for (std::size_t i = 0; i < trace.bytes.size(); ++i) {
        text += i == 0 ? "" : " ";
        text += trace.written[i] ? hex_of(&trace.bytes[i], 1) : "--";
    }
    return text;
}

// The expected trace of an encode into `capacity` bytes: `whole`, truncated at the capacity.
inline std::string prefix_hex(const byte_vector &whole, std::size_t capacity)
{
    std::string text = hex_of(whole.data(), std::min(capacity, whole.size()));
    for (std::size_t i = whole.size(); i < capacity; ++i)
        text += i == 0 ? "--" : " --";
    return text;
}

// ---- duplicate ----

struct duplicate_options {
    bool allocator_given = true;
    std::size_t failing_call = 0;
};

template <class record_type>
struct duplicated {
    recording_allocator allocator;
    record_type record;
    int32_t result;

    explicit duplicated(const record_type &source, duplicate_options options = {})
    {
        fill_with_ones(record);
        if (options.failing_call != 0)
            allocator.fail_call(options.failing_call);
        result = call_duplicate(
            record, source, options.allocator_given ? recording_allocator::allocate : nullptr, allocator.context());
        EXPECT_EQ(spare_bits(record), all_spare_bits<record_type>()) << "the duplicate changed reserved bits";
    }

    duplicated(const duplicated &) = delete;
    duplicated &operator=(const duplicated &) = delete;

    ~duplicated()
    {
        free_record(record, allocator);
    }

    uint32_t present() const
    {
        return own_bits(record);
    }
};

} // namespace mava_tum_test
