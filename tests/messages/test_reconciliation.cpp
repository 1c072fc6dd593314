// The messages that open and close a reconciliation, and the states of sessions.
// The replay of whole sessions: test_reconciliation_replay.cpp.
#include "support/expect_ownership.h"
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using start_decode = decoded<mava_tum_rec_start_req>;
using answer_decode = decoded<mava_tum_rec_resp>;

// Start and complete request: three varints and a text.
template <class record_type>
void expect_three_varints_and_a_text()
{
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 FF FF FF FF 0F"},
        {3, wire_type::varint, "18 00"},
        {4, wire_type::length_delimited, "22 02 61 62"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(2, &record_type::field_2);
    expect_full_width(3, &record_type::field_3);
    expect_flags_are_ignored<record_type>("08 01 10 02 18 03 22 02 61 62");
    expect_output_is_one_segment(decoded<record_type>("08 01 22 02 61 62").record);
}

TEST(rec_start_req, is_three_varints_and_a_text)
{
    expect_three_varints_and_a_text<mava_tum_rec_start_req>();
}

TEST(rec_complete_req, is_three_varints_and_a_text)
{
    expect_three_varints_and_a_text<mava_tum_rec_complete_req>();
}

TEST(rec_start_req, decode_stores_each_value_in_its_own_member)
{
    start_decode got("08 01 10 02 18 03 22 02 61 62");
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 2u);
    EXPECT_EQ(got.record.field_3, 3u);
    EXPECT_STREQ(got.record.field_4, "ab");
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{3}));
}

TEST(rec_start_req, decode_of_an_empty_span_resets_the_record_and_keeps_the_spare_bits)
{
    start_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1 | got.record.field_2 | got.record.field_3, 0u);
    EXPECT_EQ(got.record.field_4, nullptr);
    EXPECT_EQ(got.record.presence_mask, 0xF0u);
}

TEST(rec_start_req, the_text_is_written_when_present_and_not_null)
{
    std::string text = "ab";
    mava_tum_rec_start_req record{};
    record.field_4 = text.data();
    mark_present(record, 4);
    EXPECT_EQ(encoded_hex(record), "22 02 61 62");
    mark_present(record, 1, 2, 3);
    record.field_4 = nullptr;
    EXPECT_EQ(encoded_hex(record), "08 00 10 00 18 00");
    record.field_4 = text.data();
    record.presence_mask = 0xF0;
    EXPECT_EQ(encoded_hex(record), "") << "reserved bits write nothing";
}

TEST(rec_start_req, decode_refuses_field_2_as_a_text)
{
    start_decode got("08 01 12 02 61 62");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(got.present(), fields(1));
}

TEST(rec_start_req, decode_refuses_a_second_text_and_keeps_the_first)
{
    start_decode got("22 01 61 18 03 22 01 62 08 01");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_STREQ(got.record.field_4, "a");
    EXPECT_EQ(got.present(), fields(3, 4));
    EXPECT_EQ(got.allocator.calls().size(), 1u);
    got.free_now();
    EXPECT_EQ(got.allocator.outstanding_count(), 0u);
}

TEST(rec_start_req, decode_tests_wire_type_then_repetition_then_allocator_then_bounds)
{
    EXPECT_EQ(start_decode("20", {.allocator_given = false}).result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(start_decode("22 00 22 7F", {.failing_call = 2}).result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(start_decode("22", {.flags = MAVA_TUM_ALIAS, .allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(start_decode("22 03 61 62", {.failing_call = 1}).result, MAVA_TUM_TRUNCATED);
    start_decode got("10 02 22 00 08 01", {.failing_call = 1});
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(got.record.field_4, nullptr);
    EXPECT_EQ(got.present(), fields(2));
    EXPECT_EQ(start_decode("08 01 18 02", {.allocator_given = false}).result, MAVA_TUM_OK);
}

TEST(rec_start_req, duplicate_without_memory_loses_the_text_only)
{
    start_decode source("08 01 10 02 18 03 22 02 61 62");
    for (bool allocator_given : {true, false}) {
        duplicated<mava_tum_rec_start_req> copy(source.record, {.allocator_given = allocator_given, .failing_call = 1});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
        EXPECT_EQ(copy.record.field_4, nullptr);
        EXPECT_EQ(encoded_hex(copy.record), "08 01 10 02 18 03");
        EXPECT_EQ(copy.present(), fields(1, 2, 3));
    }
}

TEST(rec_resp, schema_has_its_text_between_two_varints)
{
    using record_type = mava_tum_rec_resp;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::length_delimited, "12 02 61 62"},
        {3, wire_type::varint, "18 FF FF FF FF 0F"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(3, &record_type::field_3);
    expect_flags_are_ignored<record_type>("12 02 61 62 18 03");
    expect_output_is_one_segment(answer_decode("08 01 12 02 61 62").record);
}

TEST(rec_resp, decode_refuses_a_text_of_length_10_of_which_5_bytes_are_there)
{
    answer_decode got("08 01 12 0A 61 62 63 64 65");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.record.field_2, nullptr);
    EXPECT_TRUE(got.allocator.calls().empty());
    EXPECT_EQ(got.present(), fields(1));
}

TEST(rec_resp, duplicate_copies_the_field_behind_a_text_that_fails)
{
    answer_decode source("08 01 12 02 61 62 18 03");
    duplicated<mava_tum_rec_resp> copy(source.record, {.failing_call = 1});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.record.field_2, nullptr);
    EXPECT_EQ(copy.record.field_3, 3u);
    EXPECT_EQ(copy.present(), fields(1, 3));
}

TEST(rec_resp, duplicate_of_a_null_text_copies_its_bit_as_it_stands)
{
    mava_tum_rec_resp source{};
    mark_present(source, 2);
    duplicated<mava_tum_rec_resp> copy(source, {.allocator_given = false});
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.present(), fields(2));
    mava_tum_rec_resp bare{};
    EXPECT_EQ(duplicated<mava_tum_rec_resp>(bare).present(), 0u);
}

TEST(rec_resp, free_leaves_bits_and_scalars)
{
    answer_decode got("08 01 12 02 61 62 18 03");
    const std::vector<const void *> expected = {got.record.field_2};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_2, nullptr);
    EXPECT_EQ(got.record.field_3, 3u);
    EXPECT_EQ(got.present(), fields(1, 2, 3));
}

TEST(rec_session_state, schema_is_three_varints_the_second_of_64_bits)
{
    using record_type = mava_tum_rec_session_state;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 FF FF FF FF FF FF FF FF FF 01"},
        {3, wire_type::varint, "18 FF FF FF FF 0F"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width<record_type, uint64_t>(2, &record_type::field_2);
    expect_full_width(3, &record_type::field_3);
    expect_output_is_one_segment(decoded<record_type>("08 01 10 80 80 80 80 10").record);
}

TEST(rec_session_state, duplicate_and_free_take_an_allocator_and_ignore_it)
{
    expect_owns_no_memory<mava_tum_rec_session_state>("08 01 10 80 80 80 80 10 18 03");
    expect_a_copy_takes_own_bits_only<mava_tum_rec_session_state>();
    mava_tum_rec_session_state record{};
    recording_allocator allocator;
    mava_tum_rec_session_state_free_ext(&record, recording_allocator::release, allocator.context(), MAVA_TUM_ALIAS);
    EXPECT_TRUE(allocator.released().empty());
}

} // namespace
} // namespace mava_tum_test
