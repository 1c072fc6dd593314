// The messages of redundancy groups.
#include "support/expect_ownership.h"
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

#include <array>

namespace mava_tum_test
{
namespace
{

using group_request_decode = decoded<mava_tum_srg_group_rec_replay_req>;
using group_request_copy = duplicated<mava_tum_srg_group_rec_replay_req>;
using group_response_decode = decoded<mava_tum_srg_group_rec_replay_resp>;
using group_response_copy = duplicated<mava_tum_srg_group_rec_replay_resp>;
using data_decode = decoded<mava_tum_srg_group_data>;

constexpr uint64_t data_bytes = sizeof(mava_tum_srg_group_data);

// Start and complete request: three varints each.
template <class record_type>
void expect_three_varints()
{
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 FF FF FF FF 0F"},
        {3, wire_type::varint, "18 00"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(2, &record_type::field_2);
    expect_full_width(3, &record_type::field_3);
    expect_owns_no_memory<record_type>("08 01 10 02 18 AC 02");
    expect_a_copy_takes_own_bits_only<record_type>();
    expect_output_is_one_segment(decoded<record_type>("08 01 10 02 18 AC 02").record);
}

TEST(srg_group_rec_start_req, is_three_varints_and_owns_no_memory)
{
    expect_three_varints<mava_tum_srg_group_rec_start_req>();
}

TEST(srg_group_rec_complete_req, is_three_varints_and_owns_no_memory)
{
    expect_three_varints<mava_tum_srg_group_rec_complete_req>();
}

TEST(srg_group_rec_resp, is_two_varints_and_owns_no_memory)
{
    using record_type = mava_tum_srg_group_rec_resp;
    expect_schema<record_type>({{1, wire_type::varint, "08 01"}, {2, wire_type::varint, "10 00"}});
    expect_full_width(1, &record_type::field_1);
    expect_full_width(2, &record_type::field_2);
    expect_owns_no_memory<record_type>("08 01 10 AC 02");
    expect_a_copy_takes_own_bits_only<record_type>();
    expect_output_is_one_segment(decoded<record_type>("08 01 10 AC 02").record);
    EXPECT_EQ(decoded<record_type>("18 05 10 07").present(), fields(2)) << "field 3 is unknown here";
}

TEST(srg_group_rec_start_req, decode_resets_the_record_even_for_an_empty_span)
{
    decoded<mava_tum_srg_group_rec_start_req> got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1 | got.record.field_2 | got.record.field_3, 0u);
    EXPECT_EQ(got.record.presence_mask, 0xF8u);
}

TEST(srg_group_rec_start_req, decode_keeps_what_came_before_a_cut_value)
{
    decoded<mava_tum_srg_group_rec_start_req> got("10 05 18 80");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.record.field_2, 5u);
    EXPECT_EQ(got.present(), fields(2));
}

TEST(srg_group_data, schema_is_four_varints_and_a_text)
{
    using record_type = mava_tum_srg_group_data;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::varint, "18 03"},
        {4, wire_type::varint, "20 FF FF FF FF 0F"},
        {5, wire_type::length_delimited, "2A 02 61 62"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(2, &record_type::field_2);
    expect_full_width(3, &record_type::field_3);
    expect_full_width(4, &record_type::field_4);
}

TEST(srg_group_data, the_text_is_copied_and_released_whatever_the_flags)
{
    expect_flags_are_ignored<mava_tum_srg_group_data>("08 01 2A 02 61 62");
}

TEST(srg_group_data, a_second_text_is_refused_before_the_allocator_is_looked_at)
{
    data_decode got("2A 01 61 08 07 2A 01 62", {.failing_call = 2});
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_STREQ(got.record.field_5, "a");
    EXPECT_EQ(got.present(), fields(1, 5));
    EXPECT_EQ(data_decode("2A 7F", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(data_decode("2A 05 61 62", {.failing_call = 1}).result, MAVA_TUM_TRUNCATED);
}

TEST(srg_group_data, duplicate_without_memory_loses_the_text_only)
{
    data_decode source("08 01 20 04 2A 02 61 62");
    duplicated<mava_tum_srg_group_data> copy(source.record, {.failing_call = 1});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{3}));
    EXPECT_EQ(copy.record.field_5, nullptr);
    EXPECT_EQ(copy.record.field_4, 4u);
    EXPECT_EQ(copy.present(), fields(1, 4));
}

TEST(srg_group_data, output_is_one_segment)
{
    expect_output_is_one_segment(data_decode("08 01 2A 02 61 62").record);
}

TEST(srg_group_rec_replay_req, schema_is_three_varints_and_an_array)
{
    using record_type = mava_tum_srg_group_rec_replay_req;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::length_delimited, "1A 03 2A 01 61 1A 00"},
        {4, wire_type::varint, "20 04"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(2, &record_type::field_2);
    expect_full_width(4, &record_type::field_4);
}

TEST(srg_group_rec_replay_req, texts_and_array_are_allocated_and_released_whatever_the_flags)
{
    expect_flags_are_ignored<mava_tum_srg_group_rec_replay_req>("1A 03 2A 01 61 1A 04 2A 02 62 63 20 04");
}

TEST(srg_group_rec_replay_req, an_element_without_content_is_its_tag_and_00)
{
    std::array<mava_tum_srg_group_data, 2> groups{};
    mava_tum_srg_group_rec_replay_req record{};
    record.field_3 = groups.data();
    record.field_3_count = 2;
    mark_present(record, 3);
    EXPECT_EQ(encoded_hex(record), "1A 00 1A 00");
    record.field_3_count = 0;
    EXPECT_EQ(encoded_hex(record), "");
}

TEST(srg_group_rec_replay_req, a_run_that_is_interrupted_by_field_4_is_refused)
{
    group_request_decode got("1A 03 2A 01 61 1A 00 20 04 1A 00");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    ASSERT_EQ(got.record.field_3_count, 2u);
    EXPECT_STREQ(got.record.field_3[0].field_5, "a");
    EXPECT_EQ(got.record.field_4, 4u);
    EXPECT_EQ(got.present(), fields(3, 4));
}

TEST(srg_group_rec_replay_req, the_array_is_one_block_followed_by_the_texts)
{
    group_request_decode got("1A 03 2A 01 61 1A 00 1A 04 2A 02 62 63");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{3 * data_bytes, 2, 3}));
    EXPECT_EQ(got.record.field_3[1].presence_mask, 0u) << "the codec zeroes the array";
}

TEST(srg_group_rec_replay_req, results_of_elements_are_passed_up_and_the_array_stays_attached)
{
    EXPECT_EQ(group_request_decode("1A 02 08 80").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(group_request_decode("1A 01 33").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(group_request_decode("1A 03 2A 01 61", {.failing_call = 2}).result, MAVA_TUM_NO_MEMORY);
    group_request_decode got("08 01 1A 05 2A 01 61 0A 00 1A 00");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    ASSERT_EQ(got.record.field_3_count, 2u);
    EXPECT_STREQ(got.record.field_3[0].field_5, "a");
    EXPECT_EQ(got.present(), fields(1));
}

TEST(srg_group_rec_replay_req, duplicate_with_a_failing_element_goes_on_and_keeps_its_slot)
{
    group_request_decode source("1A 05 08 01 2A 01 61 1A 03 2A 01 62 20 04");
    group_request_copy copy(source.record, {.failing_call = 2});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{2 * data_bytes, 2, 2}));
    ASSERT_EQ(copy.record.field_3_count, 2u);
    EXPECT_EQ(copy.record.field_3[0].field_1, 1u);
    EXPECT_EQ(copy.record.field_3[0].field_5, nullptr);
    EXPECT_EQ(copy.record.field_3[0].presence_mask, fields(1));
    EXPECT_STREQ(copy.record.field_3[1].field_5, "b");
    EXPECT_EQ(copy.present(), fields(3, 4));
}

TEST(srg_group_rec_replay_req, duplicate_without_the_array_is_empty_and_absent)
{
    group_request_decode source("1A 03 2A 01 61 20 04");
    for (bool allocator_given : {true, false}) {
        group_request_copy copy(source.record, {.allocator_given = allocator_given, .failing_call = 1});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
        EXPECT_EQ(copy.record.field_3, nullptr);
        EXPECT_EQ(copy.record.field_3_count, 0u);
        EXPECT_EQ(copy.record.field_4, 4u);
        EXPECT_EQ(copy.present(), fields(4));
    }
}

TEST(srg_group_rec_replay_resp, schema_is_two_varints_and_two_arrays)
{
    using record_type = mava_tum_srg_group_rec_replay_resp;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::length_delimited, "12 00 12 03 2A 01 61"},
        {3, wire_type::length_delimited, "1A 02 08 05"},
        {4, wire_type::varint, "20 FF FF FF FF 0F"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(4, &record_type::field_4);
}

TEST(srg_group_rec_replay_resp, texts_and_arrays_are_allocated_and_released_whatever_the_flags)
{
    expect_flags_are_ignored<mava_tum_srg_group_rec_replay_resp>("12 03 2A 01 61 1A 00 1A 04 2A 02 62 63");
}

TEST(srg_group_rec_replay_resp, the_arrays_are_separate_and_arrive_in_either_order)
{
    group_response_decode got("1A 03 2A 01 61 1A 00 12 02 08 05");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2 * data_bytes, 2, data_bytes}));
    ASSERT_EQ(got.record.field_2_count, 1u);
    EXPECT_EQ(got.record.field_2[0].field_1, 5u);
    ASSERT_EQ(got.record.field_3_count, 2u);
    EXPECT_STREQ(got.record.field_3[0].field_5, "a");

    group_response_decode alternating("12 00 1A 00 12 00");
    EXPECT_EQ(alternating.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(alternating.present(), fields(2, 3));
}

TEST(srg_group_rec_replay_resp, one_array_alone_leaves_the_other_empty)
{
    group_response_decode got("1A 02 08 01");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_2, nullptr);
    EXPECT_EQ(got.record.field_2_count, 0u);
    EXPECT_EQ(got.record.field_3_count, 1u);
    EXPECT_EQ(got.present(), fields(3));
}

TEST(srg_group_rec_replay_resp, duplicate_of_one_array_goes_on_when_the_other_fails)
{
    group_response_decode source("12 03 2A 01 61 1A 03 2A 01 62 20 04");
    group_response_copy no_first(source.record, {.failing_call = 1});
    EXPECT_EQ(no_first.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(no_first.record.field_2, nullptr);
    EXPECT_EQ(no_first.record.field_2_count, 0u);
    EXPECT_STREQ(no_first.record.field_3[0].field_5, "b");
    EXPECT_EQ(no_first.present(), fields(3, 4));

    group_response_copy no_second(source.record, {.failing_call = 3});
    EXPECT_EQ(no_second.result, MAVA_TUM_NO_MEMORY);
    EXPECT_STREQ(no_second.record.field_2[0].field_5, "a");
    EXPECT_EQ(no_second.record.field_3, nullptr);
    EXPECT_EQ(no_second.present(), fields(2, 4));

    group_response_copy no_text(source.record, {.failing_call = 2});
    EXPECT_EQ(no_text.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(no_text.record.field_2[0].field_5, nullptr);
    EXPECT_STREQ(no_text.record.field_3[0].field_5, "b");
    EXPECT_EQ(no_text.present(), fields(2, 3, 4)) << "array, count and bit stay";
}

TEST(srg_group_rec_replay_resp, free_goes_array_by_array_with_the_texts_before_their_array)
{
    group_response_decode got("1A 03 2A 01 63 12 03 2A 01 61 12 03 2A 01 62");
    const mava_tum_srg_group_rec_replay_resp before = got.record;
    const std::vector<const void *> expected = {before.field_2[0].field_5, before.field_2[1].field_5, before.field_2,
        before.field_3[0].field_5, before.field_3};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_2, nullptr);
    EXPECT_EQ(got.record.field_2_count, 0u);
    EXPECT_EQ(got.record.field_3, nullptr);
    EXPECT_EQ(got.record.field_3_count, 0u);
    EXPECT_EQ(got.present(), fields(2, 3));
}

TEST(srg_group_rec_replay_resp, output_is_one_segment)
{
    expect_output_is_one_segment(group_response_decode("08 01 12 03 2A 01 61 1A 00").record);
    expect_output_is_one_segment(group_request_decode("08 01 1A 03 2A 01 61").record);
}

} // namespace
} // namespace mava_tum_test
