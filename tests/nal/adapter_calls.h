// Calls the adapters for the tests: records and inputs end before an inaccessible page, the receiver's record is filled
// with ones, and no adapter may call an allocator.
#pragma once

#include "catalogue.h"
#include "support/guarded_buffer.h"
#include "support/heap_count.h"
#include "support/hex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

namespace mava_tum_test
{

// ---- the adapter of an application record, so that a test can be written once for several ----

// The first adapter that sends or receives the record.
template <class record_type>
const mava_tum_catalogue::adapter &adapter_of()
{
    const auto *layout = &mava_tum_catalogue::layout_of<record_type>();
    const mava_tum_catalogue::adapter *adapter = mava_tum_catalogue::all_adapters().data();
    while (adapter->sent != layout && adapter->received != layout)
        ++adapter;
    return *adapter;
}

// Two adapters have the same record. This type without a member names the second one.
struct rec_complete_res : tum_nal_data_rec_res {
};

template <>
inline const mava_tum_catalogue::adapter &adapter_of<rec_complete_res>()
{
    return *mava_tum_catalogue::find_adapter("rec_complete_res");
}

template <class record_type>
uint64_t call_encode_adapter(const record_type &record, uint8_t *buffer, uint32_t capacity)
{
    const std::size_t before = heap_calls();
    const uint64_t size = adapter_of<record_type>().encode(&record, buffer, capacity);
    EXPECT_EQ(heap_calls(), before) << "an encode adapter called an allocator";
    return size;
}

template <class record_type>
void call_decode_adapter(const uint8_t *data, uint32_t length, record_type &record)
{
    const std::size_t before = heap_calls();
    adapter_of<record_type>().decode(data, length, &record);
    EXPECT_EQ(heap_calls(), before) << "a decode adapter called an allocator";
}

// All bytes zero, also padding, so that records can be compared as bytes.
template <class record_type>
record_type zero_record()
{
    record_type record;
    std::memset(static_cast<void *>(&record), 0, sizeof record);
    return record;
}

// The complete message of `record`.
template <class record_type>
byte_vector sent(const record_type &record)
{
    page_end_buffer memory(sizeof record);
    std::memcpy(memory.data(), &record, sizeof record);
    const record_type &placed = *reinterpret_cast<const record_type *>(memory.data());
    const uint64_t size = call_encode_adapter(placed, nullptr, 0);
    guarded_buffer buffer(size);
    EXPECT_EQ(call_encode_adapter(placed, buffer.data(), static_cast<uint32_t>(size)), size);
    EXPECT_TRUE(buffer.guards_intact());
    EXPECT_EQ(std::memcmp(&placed, &record, sizeof record), 0) << "an encode adapter wrote into its record";
    return buffer.content();
}

template <class record_type>
std::string sent_hex(const record_type &record)
{
    return hex_of(sent(record));
}

// The bytes that an encode into `capacity` bytes writes: it runs on two buffers with opposite fills, and a byte was
// written if both agree. Margins on both sides show writes outside.
template <class record_type>
write_trace trace_encode_adapter(const record_type &record, std::size_t capacity, uint64_t expected_size)
{
    constexpr std::size_t margin = 64;
    byte_vector zeros(capacity + 2 * margin, 0x00);
    byte_vector ones(capacity + 2 * margin, 0xFF);
    for (byte_vector *buffer : {&zeros, &ones})
        EXPECT_EQ(call_encode_adapter(record, buffer->data() + margin, static_cast<uint32_t>(capacity)), expected_size);
    write_trace trace;
    trace.guards_intact = true;
    for (std::size_t i = 0; i < zeros.size(); ++i) {
        const bool written = zeros[i] == ones[i];
        if (i < margin || i >= margin + capacity) {
            trace.guards_intact = trace.guards_intact && !written;
        } else {
            trace.bytes.push_back(zeros[i]);
            trace.written.push_back(written);
        }
    }
    return trace;
}

// Sends `record` into every capacity from 0 to one above its size: the result is the size, and the output is a prefix
// of the message, without at most one text or bytes value (of up to `longest_value` bytes) that did not fit completely.
template <class record_type>
void expect_every_capacity_gives_a_prefix(const record_type &record, std::size_t longest_value)
{
    const byte_vector whole = sent(record);
    const std::size_t size = whole.size();
    for (std::size_t capacity = 0; capacity <= size + 1; ++capacity) {
        const write_trace trace = trace_encode_adapter(record, capacity, size);
        ASSERT_TRUE(trace.guards_intact) << capacity;
        const auto first_hole = std::find(trace.written.begin(), trace.written.end(), false);
        const std::size_t prefix = static_cast<std::size_t>(first_hole - trace.written.begin());
        ASSERT_LE(prefix, size) << capacity;
        ASSERT_LT(std::min(capacity, size) - prefix, longest_value) << capacity;
        ASSERT_EQ(std::count(first_hole, trace.written.end(), true), 0) << capacity;
        ASSERT_TRUE(
            std::equal(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(prefix), trace.bytes.begin()));
        ASSERT_EQ(prefix == size, capacity >= size) << capacity;
    }
}

// One decode and its result.
template <class record_type>
class received
{
public:
    explicit received(const byte_vector &wire) : memory_(sizeof(record_type))
    {
        page_end_buffer input(wire);
        std::memset(memory_.data(), 0xFF, sizeof(record_type));
        call_decode_adapter(input.data(), static_cast<uint32_t>(wire.size()), record());
    }

    explicit received(std::string_view hex) : received(bytes_of(hex)) {}

    const record_type &operator*()
    {
        return record();
    }

    const record_type *operator->()
    {
        return &record();
    }

private:
    record_type &record()
    {
        return *reinterpret_cast<record_type *>(memory_.data());
    }

    page_end_buffer memory_;
};

using received_session = received<tum_nal_data_session_context>;
using received_routes = received<tum_nal_data_sub_route>;

// The offset of the first byte that differs, or -1.
template <class record_type>
std::ptrdiff_t first_difference(const record_type &actual, const record_type &expected)
{
    const uint8_t *left = reinterpret_cast<const uint8_t *>(&actual);
    const uint8_t *right = reinterpret_cast<const uint8_t *>(&expected);
    const auto found = std::mismatch(left, left + sizeof(record_type), right).first;
    return found == left + sizeof(record_type) ? -1 : found - left;
}

// The offset of the first byte that is neither that of `whole` nor zero, or -1. For truncated messages.
template <class record_type>
std::ptrdiff_t first_foreign_byte(const record_type &actual, const record_type &whole)
{
    const uint8_t *left = reinterpret_cast<const uint8_t *>(&actual);
    const uint8_t *right = reinterpret_cast<const uint8_t *>(&whole);
    for (std::size_t i = 0; i < sizeof(record_type); ++i) {
        if (left[i] != 0 && left[i] != right[i])
            return static_cast<std::ptrdiff_t>(i);
    }
    return -1;
}

template <std::size_t size>
void set_text(char (&array)[size], std::string_view text)
{
    ASSERT_LT(text.size(), size) << "no room for the NUL";
    std::fill(std::copy(text.begin(), text.end(), array), array + size, '\0');
}

template <std::size_t size>
void set_bytes(uint8_t (&array)[size], std::string_view hex)
{
    const byte_vector bytes = bytes_of(hex);
    ASSERT_LE(bytes.size(), size);
    std::fill(std::copy(bytes.begin(), bytes.end(), array), array + size, uint8_t{0});
}

// A character repeated to `length`, by default as long as the array allows.
template <std::size_t size>
void fill_text(char (&array)[size], char character, std::size_t length = size - 1)
{
    set_text(array, std::string(length, character));
}

} // namespace mava_tum_test
