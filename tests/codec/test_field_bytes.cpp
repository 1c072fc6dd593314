// Bytes fields: copied through the allocator, or pointing into the input with the alias bit.
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using v6_decode = decoded<mava_tum_subscriber_v6>;


TEST(field_bytes, decode_copies_into_a_block_of_exactly_the_length)
{
    v6_decode got("12 03 AA 00 CC 22 01 DD");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{3, 1}));
    EXPECT_EQ(got.record.field_2.data, got.allocator.calls()[0].block);
    EXPECT_EQ(hex_of(content_of(got.record.field_2)), "AA 00 CC");
    EXPECT_EQ(hex_of(content_of(got.record.field_4)), "DD");
    EXPECT_EQ(got.present(), fields(2, 4));
}

TEST(field_bytes, decode_passes_the_allocator_context_unchanged)
{
    v6_decode got("12 01 AA 1A 01 BB");
    for (const recording_allocator::call &call : got.allocator.calls())
        EXPECT_EQ(call.context, got.allocator.context());
    EXPECT_EQ(got.allocator.calls().size(), 2u);
}

TEST(field_bytes, decode_with_the_alias_bit_points_into_the_input_and_calls_no_allocator)
{
    v6_decode got("08 01 12 03 AA BB CC 32 01 DD", {.flags = alias});
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_2.data, got.wire.data() + 4);
    EXPECT_EQ(got.record.field_2.length, 3u);
    EXPECT_EQ(got.record.field_6.data, got.wire.data() + 9);
    EXPECT_TRUE(got.allocator.calls().empty());
}

TEST(field_bytes, decode_looks_at_bit_0_of_the_flags_only)
{
    v6_decode aliased("12 01 AA", {.flags = 0xFFFFFFFF});
    EXPECT_EQ(aliased.record.field_2.data, aliased.wire.data() + 2);
    v6_decode copied("12 01 AA", {.flags = 0xFFFFFFFE});
    EXPECT_EQ(copied.allocator.requested_sizes(), (std::vector<uint64_t>{1}));
}

TEST(field_bytes, an_empty_value_is_present)
{
    v6_decode copied("12 00");
    EXPECT_EQ(copied.result, MAVA_TUM_OK);
    EXPECT_EQ(copied.allocator.requested_sizes(), (std::vector<uint64_t>{0})) << "asked for, although empty";
    EXPECT_NE(copied.record.field_2.data, nullptr);
    EXPECT_EQ(copied.record.field_2.length, 0u);
    EXPECT_EQ(copied.present(), fields(2));

    v6_decode aliased("12 00", {.flags = alias, .allocator_given = false});
    EXPECT_EQ(aliased.result, MAVA_TUM_OK);
    EXPECT_EQ(aliased.record.field_2.data, aliased.wire.data() + 2) << "the address behind the last byte";
    EXPECT_EQ(aliased.present(), fields(2));
}

TEST(field_bytes, an_empty_value_fails_when_its_block_of_size_0_cannot_be_obtained)
{
    v6_decode got("12 00", {.failing_call = 1});
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{0}));
    EXPECT_EQ(got.present(), 0u);
}

TEST(field_bytes, a_second_occurrence_is_refused_even_after_an_empty_first_one)
{
    for (uint32_t flags : {0u, alias}) {
        v6_decode got("12 00 08 07 12 01 AA", {.flags = flags});
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
        EXPECT_EQ(got.record.field_1, 7u);
        EXPECT_EQ(got.record.field_2.length, 0u) << "the first occurrence stays";
        EXPECT_EQ(got.present(), fields(1, 2));
        EXPECT_EQ(got.allocator.calls().size(), flags == 0 ? 1u : 0u);
    }
}

TEST(field_bytes, decode_tests_wire_type_then_repetition_then_allocator_then_bounds)
{
    EXPECT_EQ(v6_decode("12 01 AA 10 00").result, MAVA_TUM_WRONG_WIRE_TYPE) << "a second one of wrong wire type";
    EXPECT_EQ(v6_decode("10 00", {.allocator_given = false}).result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(v6_decode("12 01 AA 12").result, MAVA_TUM_TRUNCATED) << "a second one, cut";
    EXPECT_EQ(v6_decode("12", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY) << "the length is not read";
    EXPECT_EQ(v6_decode("12 7F", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(v6_decode("12 7F", {.failing_call = 1}).result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(v6_decode("12 01 AA", {.failing_call = 1}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(v6_decode("12 7F", {.flags = alias, .allocator_given = false}).result, MAVA_TUM_TRUNCATED);
}

TEST(field_bytes, a_failed_allocation_stores_nothing_and_keeps_the_fields_before_it)
{
    v6_decode got("08 07 12 01 AA 1A 02 BB CC 22 01 DD", {.failing_call = 2});
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(got.record.field_1, 7u);
    EXPECT_EQ(hex_of(content_of(got.record.field_2)), "AA");
    EXPECT_EQ(got.record.field_3.data, nullptr);
    EXPECT_EQ(got.record.field_3.length, 0u);
    EXPECT_EQ(got.record.field_4.data, nullptr) << "decoding stopped";
    EXPECT_EQ(got.present(), fields(1, 2));
    EXPECT_EQ(got.allocator.calls().size(), 2u);
}

TEST(field_bytes, encode_writes_a_present_field_of_length_0)
{
    mava_tum_subscriber_v6 record{};
    mark_present(record, 2, 6);
    EXPECT_EQ(encoded_hex(record), "12 00 32 00");
}

TEST(field_bytes, encode_omits_a_field_with_a_clear_bit)
{
    byte_vector content = bytes_of("AA BB");
    mava_tum_subscriber_v6 record{};
    record.field_2 = bytes_field(content);
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u);
}

TEST(field_bytes, encode_writes_the_low_32_bits_of_a_length_and_counts_all_of_it)
{
    mava_tum_subscriber_v6 record{};
    record.field_2.length = 0x100000005;
    mark_present(record, 2);
    // Tag and one length byte, then the content, for which no buffer is large enough.
    EXPECT_EQ(call_encode(record, nullptr, 0), 2 + 0x100000005u);
    EXPECT_EQ(hex_of(encode_trace(record, 4, 2 + 0x100000005u)), "12 05 -- --");
}

TEST(field_bytes, encode_does_not_count_a_length_that_wraps_the_position)
{
    mava_tum_subscriber_v6 record{};
    record.field_2.length = 0xFFFFFFFFFFFFFFFF;
    record.field_7 = 7;
    mark_present(record, 2, 7);
    EXPECT_EQ(hex_of(encode_trace(record, 8, 8)), "12 FF FF FF FF 0F 38 07");
}

TEST(field_bytes, duplicate_copies_by_length_alone)
{
    byte_vector content = bytes_of("AA BB CC");
    mava_tum_subscriber_v6 source{};
    source.field_2 = bytes_field(content);
    source.field_3 = {content.data(), 0};
    mark_present(source, 3, 4);
    duplicated<mava_tum_subscriber_v6> copy(source);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{3}));
    EXPECT_EQ(hex_of(content_of(copy.record.field_2)), "AA BB CC") << "although its bit is clear";
    EXPECT_NE(copy.record.field_2.data, content.data());
    EXPECT_EQ(copy.record.field_3.data, nullptr) << "empty, although the source has a pointer";
    EXPECT_EQ(copy.record.field_3.length, 0u);
    EXPECT_EQ(copy.present(), fields(3, 4));
}

TEST(field_bytes, a_failed_duplicate_is_empty_and_absent_and_the_rest_goes_on)
{
    byte_vector content = bytes_of("AA BB CC");
    mava_tum_subscriber_v6 source{};
    source.field_1 = 1;
    source.field_2 = bytes_field(content);
    source.field_3 = bytes_field(content);
    source.field_4 = bytes_field(content);
    source.field_7 = 7;
    mark_present(source, 1, 2, 3, 4, 7);
    duplicated<mava_tum_subscriber_v6> copy(source, {.failing_call = 2});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{3, 3, 3}));
    EXPECT_EQ(copy.record.field_3.data, nullptr);
    EXPECT_EQ(copy.record.field_3.length, 0u);
    EXPECT_EQ(hex_of(content_of(copy.record.field_4)), "AA BB CC");
    EXPECT_EQ(copy.record.field_7, 7u);
    EXPECT_EQ(copy.present(), fields(1, 2, 4, 7));
}

TEST(field_bytes, duplicate_of_empty_fields_needs_no_allocator)
{
    mava_tum_subscriber_v6 source{};
    mark_present(source, 2, 3, 4, 6);
    duplicated<mava_tum_subscriber_v6> copy(source, {.allocator_given = false});
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.present(), fields(2, 3, 4, 6));
}

TEST(field_bytes, a_duplicate_of_an_aliasing_record_owns_its_bytes)
{
    v6_decode source("12 02 AA BB", {.flags = alias});
    duplicated<mava_tum_subscriber_v6> copy(source.record);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_NE(copy.record.field_2.data, source.record.field_2.data);
    EXPECT_TRUE(copy.allocator.is_outstanding(copy.record.field_2.data));
    EXPECT_EQ(copy.allocator.size_of(copy.record.field_2.data), 2u);
}

TEST(field_bytes, free_nulls_the_pointer_and_leaves_length_and_bit)
{
    v6_decode got("12 02 AA BB 1A 00 32 01 CC");
    const std::vector<recording_allocator::call> calls = got.allocator.calls();
    got.free_now();
    EXPECT_EQ(got.allocator.released(), (std::vector<const void *>{calls[0].block, calls[1].block, calls[2].block}));
    EXPECT_EQ(got.record.field_2.data, nullptr);
    EXPECT_EQ(got.record.field_2.length, 2u);
    EXPECT_EQ(got.present(), fields(2, 3, 6));
    got.free_now();
    EXPECT_EQ(got.allocator.released().size(), 3u) << "freed twice, released once";
}

TEST(field_bytes, free_with_the_alias_bit_leaves_the_pointer)
{
    v6_decode got("12 02 AA BB", {.flags = alias});
    got.free_now();
    EXPECT_TRUE(got.allocator.released().empty());
    EXPECT_EQ(got.record.field_2.data, got.wire.data() + 2);
}

} // namespace
} // namespace mava_tum_test
