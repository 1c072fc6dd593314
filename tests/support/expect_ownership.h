// Checks of ownership and segments for many messages.
#pragma once

#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>
#include <type_traits>

namespace mava_tum_test
{

template <class record_type>
void free_null_record()
{
    mava_tum_catalogue::message_of<record_type>().free(nullptr, nullptr, nullptr, ~0u);
}

// For messages of scalars only. `all_fields` is the wire of a record in which every field is present.
template <class record_type>
void expect_owns_no_memory(std::string_view all_fields)
{
    decoded<record_type> source(all_fields);
    EXPECT_EQ(source.result, MAVA_TUM_OK);
    EXPECT_EQ(source.present(), all_own_bits<record_type>);
    EXPECT_TRUE(source.allocator.calls().empty());
    EXPECT_EQ(decoded<record_type>(all_fields, {.allocator_given = false}).result, MAVA_TUM_OK);

    for (bool allocator_given : {true, false}) {
        duplicated<record_type> copy(source.record, {.allocator_given = allocator_given});
        EXPECT_EQ(copy.result, MAVA_TUM_OK);
        EXPECT_TRUE(copy.allocator.calls().empty());
        EXPECT_EQ(encoded_hex(copy.record), all_fields);
    }

    const record_type before = source.record;
    call_free<record_type>(source.record, nullptr, nullptr, ~0u);
    EXPECT_EQ(std::memcmp(&source.record, &before, sizeof before), 0) << "free changed a record that owns nothing";
    free_null_record<record_type>();
}

// A copy has the value and bit of each field, also of absent ones, and no reserved bit.
template <class record_type>
void expect_a_copy_takes_own_bits_only()
{
    record_type source{};
    record_type destination;
    fill_with_ones(destination);
    EXPECT_EQ(call_duplicate<record_type>(destination, source, nullptr, nullptr), MAVA_TUM_OK);
    EXPECT_EQ(destination.presence_mask, all_spare_bits<record_type>()) << "own bits cleared, reserved bits kept";

    fill_with_ones(source);
    std::memset(static_cast<void *>(&destination), 0, sizeof destination);
    EXPECT_EQ(call_duplicate<record_type>(destination, source, nullptr, nullptr), MAVA_TUM_OK);
    EXPECT_EQ(destination.presence_mask, all_own_bits<record_type>) << "no reserved bit of the source";
}

// For messages whose functions have flags although they have no bytes field.
template <class record_type>
void expect_flags_are_ignored(std::string_view wire)
{
    const decoded<record_type> plain(wire);
    EXPECT_FALSE(plain.allocator.calls().empty()) << "the sample owns something";
    for (uint32_t flags : {uint32_t{MAVA_TUM_ALIAS}, 0xFFFFFFFFu, 0xFFFFFFFEu, 0x80000000u}) {
        decoded<record_type> got(wire, {.flags = flags});
        EXPECT_EQ(got.result, MAVA_TUM_OK) << flags;
        EXPECT_EQ(got.allocator.requested_sizes(), plain.allocator.requested_sizes()) << flags;
        EXPECT_EQ(encoded_hex(got.record), wire) << flags;
        got.free_now();
        EXPECT_EQ(got.allocator.released().size(), got.allocator.calls().size()) << flags;
        EXPECT_EQ(got.allocator.outstanding_count(), 0u) << flags;
    }
}

// For messages whose encoder has no flags: for every capacity of segments, the output is one segment.
template <class record_type>
void expect_output_is_one_segment(const record_type &record)
{
    const byte_vector whole = encoded(record);
    ASSERT_FALSE(whole.empty());
    const mava_tum_segment untouched = {nullptr, 0xDEAD};
    for (uint32_t capacity : {0u, 1u, 3u}) {
        guarded_buffer buffer(whole.size());
        std::array<mava_tum_segment, 3> segments{untouched, untouched, untouched};
        uint32_t count = capacity;
        EXPECT_EQ(call_encode(record, buffer.data(), whole.size(), segments.data(), &count), whole.size());
        EXPECT_EQ(count, 1u) << "capacity " << capacity;
        EXPECT_EQ(buffer.content(), whole);
        EXPECT_EQ(segments[0].data, capacity == 0 ? nullptr : buffer.data()) << "capacity " << capacity;
        EXPECT_EQ(segments[0].length, capacity == 0 ? untouched.length : whole.size()) << "capacity " << capacity;
        EXPECT_EQ(segments[1].length, untouched.length) << "capacity " << capacity;
    }
    uint32_t count = 7;
    EXPECT_EQ(call_encode(record, nullptr, 0, nullptr, &count), whole.size());
    EXPECT_EQ(count, 1u) << "counted without a list";
    EXPECT_EQ(call_encode(record_type{}, nullptr, 0, nullptr, &count), 0u);
    EXPECT_EQ(count, 0u) << "an empty output is no segment";
}

// A varint is stored with the width of its member: a value with all 64 bits set arrives as all bits of the member.
template <class record_type, class value_type>
void expect_full_width(uint32_t number, value_type record_type::*member)
{
    constexpr value_type largest = std::numeric_limits<value_type>::max();
    decoded<record_type> got(wire_builder().varint(number, std::numeric_limits<uint64_t>::max()));
    EXPECT_EQ(got.result, MAVA_TUM_OK) << "field " << number;
    EXPECT_EQ(got.record.*member, largest) << "field " << number;
    EXPECT_EQ(hex_of(encoded(got.record)), hex_of(wire_builder().varint(number, largest))) << "field " << number;
    decoded<record_type> last_wins(wire_builder().varint(number, 1).varint(number, largest - 1));
    EXPECT_EQ(last_wins.record.*member, largest - 1) << "field " << number;
}

} // namespace mava_tum_test
