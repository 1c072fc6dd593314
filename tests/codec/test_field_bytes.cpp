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

// ---- freed: the pointer is null, length and bit are still there ----

TEST(field_bytes, encode_leaves_the_place_of_a_freed_field_untouched)
{
    mava_tum_subscriber_v6 record{};
    record.field_2 = {nullptr, 3};
    record.field_7 = 7;
    mark_present(record, 2, 7);
    EXPECT_EQ(hex_of(encode_trace(record, 7, 7)), "12 03 -- -- -- 38 07");
    EXPECT_EQ(hex_of(encode_trace(record, 6, 7)), "12 03 -- -- -- 38");
    record.field_2.length = 1;
    EXPECT_EQ(hex_of(encode_trace(record, 5, 5)), "12 01 -- 38 07");
}

// No block has this length: no byte is read, and the position does not change.
TEST(field_bytes, encode_reads_nothing_of_a_length_that_wraps_the_position)
{
    uint8_t byte = 0xAA;
    mava_tum_subscriber_v6 record{};
    record.field_2 = {&byte, 0xFFFFFFFFFFFFFFFF};
    record.field_7 = 7;
    mark_present(record, 2, 7);
    EXPECT_EQ(call_encode(record, nullptr, 0), 8u);
    EXPECT_EQ(hex_of(encode_trace(record, 8, 8)), "12 FF FF FF FF 0F 38 07");
}

// ---- a whole record after its free ----

TEST(field_bytes, a_freed_record_encodes_without_its_texts_and_arrays_and_with_untouched_places_for_its_bytes)
{
    // A number, a text, statistics with a list of one service, a bytes field.
    decoded<mava_tum_sess_oper_resp> got("08 07 32 01 61 4A 05 42 03 0A 01 62 52 03 AA BB CC");
    got.free_now();
    EXPECT_EQ(hex_of(encode_trace(got.record, 9, 9)), "08 07 4A 00 52 03 -- -- --");
    EXPECT_EQ(call_encode(got.record, nullptr, 0), 9u);
}

TEST(field_bytes, in_gather_mode_a_freed_field_is_a_segment_without_an_address)
{
    decoded<mava_tum_subscriber_v6> got("12 03 AA BB CC 38 07");
    got.free_now();
    uint8_t buffer[4];
    mava_tum_segment segments[3] = {};
    uint32_t count = 3;
    EXPECT_EQ(call_encode(got.record, buffer, sizeof buffer, segments, &count, MAVA_TUM_ALIAS), 4u);
    EXPECT_EQ(hex_of(buffer, sizeof buffer), "12 03 38 07");
    ASSERT_EQ(count, 3u);
    EXPECT_EQ(segments[1].data, nullptr);
    EXPECT_EQ(segments[1].length, 3u);
}

// ---- the size request ----

struct sized_bytes {
    uint64_t length;
    uint64_t length_prefix_bytes;
};

// Around the size of a short block, and larger than the scratch buffer.
constexpr sized_bytes sizes[] = {{1, 1}, {16, 1}, {64, 1}, {65, 1}, {9000, 2}};

template <class record_type>
void expect_sizes(const record_type &record, uint64_t copied, uint64_t gathered)
{
    EXPECT_EQ(call_encode(record, nullptr, 0), copied);
    EXPECT_EQ(call_encode(record, nullptr, 0, nullptr, nullptr, MAVA_TUM_ALIAS), gathered);
    uint32_t count = 0;
    EXPECT_EQ(call_encode(record, nullptr, 0, nullptr, &count, MAVA_TUM_ALIAS), gathered);
}

TEST(field_bytes, the_size_of_a_record_counts_a_length_without_a_pointer)
{
    for (const sized_bytes &tested : sizes) {
        mava_tum_subscriber_v6 record{};
        record.field_2 = {nullptr, tested.length};
        record.field_7 = 7;
        mark_present(record, 2, 7);
        const uint64_t own = 1 + tested.length_prefix_bytes + 2;
        expect_sizes(record, own + tested.length, own);
    }
}

TEST(field_bytes, the_size_of_a_record_counts_a_length_without_a_pointer_in_a_nested_record)
{
    for (const sized_bytes &tested : sizes) {
        mava_tum_session_context record{};
        record.field_1 = 7;
        record.subscriber_v6.field_2 = {nullptr, tested.length};
        mark_present(record.subscriber_v6, 2);
        mark_present(record, 1, 9);
        const uint64_t own = 1 + tested.length_prefix_bytes;
        const uint64_t nested_prefix_bytes = own + tested.length < 128 ? 1 : 2;
        // In gather mode, the length of the nested record counts its bytes in the buffer.
        expect_sizes(record, 2 + 1 + nested_prefix_bytes + own + tested.length, 2 + 1 + 1 + own);
    }
}

// ---- a length that never had a pointer ----

TEST(field_bytes, a_duplicate_of_a_length_without_a_pointer_owns_a_block_of_that_length_and_reads_nothing)
{
    mava_tum_subscriber_v6 source{};
    source.field_2 = {nullptr, 3};
    mark_present(source, 2);
    duplicated<mava_tum_subscriber_v6> copy(source);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{3}));
    ASSERT_NE(copy.record.field_2.data, nullptr);
    EXPECT_EQ(copy.record.field_2.length, 3u);
    EXPECT_EQ(copy.record.field_2.data[0], recording_allocator::fill_pattern)
        << "the block is as the allocator gave it";
    EXPECT_EQ(copy.present(), fields(2));
}

} // namespace
} // namespace mava_tum_test
