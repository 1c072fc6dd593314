// rec_sess_replay_resp and its elements, rec_sess_replay_fail and sess_svc_start.
#include "support/expect_ownership.h"
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

#include <array>

namespace mava_tum_test
{
namespace
{

using failure_decode = decoded<mava_tum_rec_sess_replay_fail>;
using failure_copy = duplicated<mava_tum_rec_sess_replay_fail>;
using started_decode = decoded<mava_tum_sess_svc_start>;
using replayed_decode = decoded<mava_tum_rec_sess_replay_resp>;
using replayed_copy = duplicated<mava_tum_rec_sess_replay_resp>;

constexpr uint64_t service_bytes = sizeof(mava_tum_service_stats);
constexpr uint64_t failure_bytes = sizeof(mava_tum_rec_sess_replay_fail);
constexpr uint64_t start_bytes = sizeof(mava_tum_sess_svc_start);

TEST(rec_sess_replay_fail, schema_is_two_varints_and_a_record)
{
    using record_type = mava_tum_rec_sess_replay_fail;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 FF FF FF FF FF FF FF FF FF 01"},
        {2, wire_type::varint, "10 FF FF FF FF 0F"},
        {3, wire_type::length_delimited, "1A 07 10 05 42 03 0A 01 61"},
    });
    expect_full_width<record_type, uint64_t>(1, &record_type::field_1);
    expect_full_width<record_type, uint32_t>(2, &record_type::field_2);
}

TEST(rec_sess_replay_fail, decode_of_an_empty_span_resets_all_levels_and_keeps_their_spare_bits)
{
    failure_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 0u);
    EXPECT_EQ(got.record.field_2, 0u);
    EXPECT_EQ(got.record.field_3.field_8, nullptr);
    EXPECT_EQ(got.record.field_3.field_8_count, 0u);
    EXPECT_EQ(got.record.presence_mask, 0xF8u);
    EXPECT_EQ(got.record.field_3.presence_mask, 0xF000u);
    EXPECT_EQ(got.record.field_3.field_7.presence_mask, 0xFFFC0000u);
}

TEST(rec_sess_replay_fail, memory_is_obtained_and_released_whatever_the_flags)
{
    expect_flags_are_ignored<mava_tum_rec_sess_replay_fail>("08 01 1A 05 42 03 0A 01 61");
}

TEST(rec_sess_replay_fail, statistics_are_written_when_present_or_when_they_have_content)
{
    mava_tum_rec_sess_replay_fail record{};
    EXPECT_EQ(encoded_hex(record), "");
    mark_present(record, 3);
    EXPECT_EQ(encoded_hex(record), "1A 00");
    record.field_3.field_2 = 5;
    mark_present(record.field_3, 2);
    EXPECT_EQ(encoded_hex(record), "1A 02 10 05");
    record.presence_mask = 0;
    EXPECT_EQ(encoded_hex(record), "1A 02 10 05") << "content without bit";
    record.field_3.presence_mask = 0xF000;
    EXPECT_EQ(encoded_hex(record), "") << "reserved bits are no content";
}

TEST(rec_sess_replay_fail, second_statistics_replace_the_first_and_drop_their_memory)
{
    failure_decode got("1A 09 10 07 42 05 0A 03 61 62 63 1A 02 18 08");
    got.allocator.allow_outstanding();
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_3.field_2, 0u);
    EXPECT_EQ(got.record.field_3.field_8, nullptr);
    EXPECT_EQ(own_bits(got.record.field_3), fields(3));
    got.free_now();
    EXPECT_TRUE(got.allocator.released().empty());
    EXPECT_EQ(got.allocator.outstanding_count(), 2u) << "only the caller's allocator still knows these blocks";
}

TEST(rec_sess_replay_fail, failing_statistics_leave_their_bit_as_it_was_and_their_values_in_place)
{
    failure_decode first("10 02 1A 04 10 07 12 00");
    EXPECT_EQ(first.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(first.record.field_3.field_2, 7u);
    EXPECT_EQ(first.present(), fields(2));
    failure_decode second("1A 00 1A 04 10 07 12 00");
    EXPECT_EQ(second.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(second.present(), fields(3)) << "set by the first one";

    EXPECT_EQ(failure_decode("1A 03 10 07").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(failure_decode("1A 01 7B").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(failure_decode("08 01 1A 02 42 00", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(failure_decode("08 01 1A 02 10 05", {.allocator_given = false}).result, MAVA_TUM_OK);
}

TEST(rec_sess_replay_fail, duplicate_copies_the_bit_of_statistics_that_could_not_be_copied)
{
    failure_decode source("08 01 10 02 1A 07 10 05 42 03 0A 01 61");
    failure_copy whole(source.record);
    EXPECT_EQ(whole.result, MAVA_TUM_OK);
    EXPECT_EQ(whole.allocator.requested_sizes(), (std::vector<uint64_t>{service_bytes, 2}));
    EXPECT_EQ(whole.record.field_3.presence_mask, 0xF000u | fields(2, 8));
    failure_copy copy(source.record, {.failing_call = 1});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.record.field_3.field_8, nullptr);
    EXPECT_EQ(encoded_hex(copy.record), "08 01 10 02 1A 02 10 05");
    EXPECT_EQ(copy.present(), fields(1, 2, 3));
}

TEST(rec_sess_replay_fail, free_releases_the_statistics)
{
    failure_decode got("1A 05 42 03 0A 01 61");
    const std::vector<const void *> expected = {got.record.field_3.field_8[0].field_1, got.record.field_3.field_8};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_3.field_8_count, 0u);
    EXPECT_EQ(got.present(), fields(3));
}

TEST(sess_svc_start, schema_is_four_varints_and_an_array_of_texts)
{
    using record_type = mava_tum_sess_svc_start;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 FF FF FF FF FF FF FF FF FF 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::varint, "18 03"},
        {4, wire_type::varint, "20 FF FF FF FF 0F"},
        {5, wire_type::length_delimited, "2A 01 61 2A 00"},
    });
    expect_full_width<record_type, uint64_t>(1, &record_type::field_1);
    expect_full_width<record_type, uint32_t>(2, &record_type::field_2);
    expect_full_width<record_type, uint32_t>(3, &record_type::field_3);
    expect_full_width<record_type, uint32_t>(4, &record_type::field_4);
}

TEST(sess_svc_start, two_texts_are_an_array_of_two_each_with_its_nul)
{
    started_decode got("2A 02 61 62 2A 01 63");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    ASSERT_EQ(got.record.field_5_count, 2u);
    EXPECT_STREQ(got.record.field_5[0], "ab");
    EXPECT_STREQ(got.record.field_5[1], "c");
}

TEST(sess_svc_start, decode_of_an_empty_span_resets_the_record_and_keeps_the_spare_bits)
{
    started_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 0u);
    EXPECT_EQ(got.record.field_2 | got.record.field_3 | got.record.field_4, 0u);
    EXPECT_EQ(got.record.field_5, nullptr);
    EXPECT_EQ(got.record.field_5_count, 0u);
    EXPECT_EQ(got.record.presence_mask, 0xE0u);
}

// Two failures with statistics, two service starts with texts, and a text; each block has a different size.
constexpr const char *full = "08 01 12 07 1A 05 42 03 0A 01 61 12 02 10 05 "
                             "1A 0B 20 04 2A 02 62 63 2A 03 64 65 66 1A 00 22 04 67 68 69 6A 28 05";
const std::vector<uint64_t> full_sizes = {
    2 * failure_bytes, service_bytes, 2, 2 * start_bytes, 2 * pointer_bytes, 3, 4, 5};

TEST(rec_sess_replay_resp, schema_is_two_varints_two_arrays_and_a_text)
{
    using record_type = mava_tum_rec_sess_replay_resp;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::length_delimited, "12 02 08 01 12 00"},
        {3, wire_type::length_delimited, "1A 03 2A 01 61 1A 00"},
        {4, wire_type::length_delimited, "22 01 62"},
        {5, wire_type::varint, "28 FF FF FF FF 0F"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(5, &record_type::field_5);
}

TEST(rec_sess_replay_resp, decode_stores_each_value_in_its_own_member_and_asks_in_wire_order)
{
    replayed_decode got(full);
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    ASSERT_EQ(got.record.field_2_count, 2u);
    EXPECT_STREQ(got.record.field_2[0].field_3.field_8[0].field_1, "a");
    EXPECT_EQ(got.record.field_2[1].field_2, 5u);
    EXPECT_EQ(got.record.field_2[1].presence_mask, fields(2)) << "the codec zeroes the array";
    ASSERT_EQ(got.record.field_3_count, 2u);
    EXPECT_EQ(got.record.field_3[0].field_4, 4u);
    EXPECT_EQ(got.record.field_3[0].field_5_count, 2u);
    EXPECT_EQ(got.record.field_3[1].field_5, nullptr);
    EXPECT_STREQ(got.record.field_4, "ghij");
    EXPECT_EQ(got.record.field_5, 5u);
    EXPECT_EQ(got.allocator.requested_sizes(), full_sizes);
    EXPECT_EQ(encoded_hex(got.record), full);
}

TEST(rec_sess_replay_resp, memory_of_all_levels_is_obtained_and_released_whatever_the_flags)
{
    expect_flags_are_ignored<mava_tum_rec_sess_replay_resp>(full);
}

TEST(rec_sess_replay_resp, a_failure_with_content_but_a_clear_bit_arrives_with_its_bit_set)
{
    mava_tum_rec_sess_replay_fail failure{};
    failure.field_3.field_2 = 5;
    mark_present(failure.field_3, 2);
    mava_tum_rec_sess_replay_resp record{};
    record.field_2 = &failure;
    record.field_2_count = 1;
    mark_present(record, 2);
    EXPECT_EQ(encoded_hex(record), "12 04 1A 02 10 05");
    replayed_decode received(encoded(record));
    ASSERT_EQ(received.record.field_2_count, 1u);
    EXPECT_EQ(received.record.field_2[0].presence_mask, fields(3));
    EXPECT_EQ(received.record.field_2[0].field_3.field_2, 5u);
}

TEST(rec_sess_replay_resp, each_allocation_that_fails_leaves_everything_before_it_to_free)
{
    const uint32_t failing_field[] = {2, 2, 2, 3, 3, 3, 3, 4};
    for (std::size_t failing = 1; failing <= full_sizes.size(); ++failing) {
        replayed_decode got(full, {.failing_call = failing});
        EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(got.present(), fields(failing_field[failing - 1]) - 1) << "the fields before it, " << failing;
        EXPECT_EQ(got.record.field_2_count, failing < 2 ? 0u : 2u) << failing;
        EXPECT_EQ(got.record.field_3_count, failing < 5 ? 0u : 2u) << failing;
        EXPECT_EQ(got.allocator.outstanding_count(), failing - 1);
        got.free_now();
        EXPECT_EQ(got.allocator.outstanding_count(), 0u) << failing;
    }
}

TEST(rec_sess_replay_resp, the_arrays_arrive_in_either_order_and_each_in_one_run)
{
    replayed_decode swapped("1A 02 08 01 12 02 08 02 12 00");
    EXPECT_EQ(swapped.result, MAVA_TUM_OK);
    EXPECT_EQ(swapped.allocator.requested_sizes(), (std::vector<uint64_t>{start_bytes, 2 * failure_bytes}));
    EXPECT_EQ(swapped.present(), fields(2, 3));
    for (const char *hex : {"12 00 1A 00 12 00", "1A 00 28 05 1A 00", "22 00 22 00"})
        EXPECT_EQ(replayed_decode(hex).result, MAVA_TUM_TRUNCATED) << hex;
}

TEST(rec_sess_replay_resp, results_of_elements_are_passed_up_and_their_array_stays_attached)
{
    EXPECT_EQ(replayed_decode("12 04 1A 02 3A 7F").result, MAVA_TUM_TRUNCATED) << "three levels down";
    EXPECT_EQ(replayed_decode("1A 01 33").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    replayed_decode got("08 01 12 00 1A 05 2A 01 61 0A 00 1A 00");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    ASSERT_EQ(got.record.field_3_count, 2u);
    EXPECT_STREQ(got.record.field_3[0].field_5[0], "a");
    EXPECT_EQ(got.present(), fields(1, 2));
    EXPECT_EQ(got.allocator.outstanding_count(), 4u);
}

TEST(rec_sess_replay_resp, duplicate_loses_exactly_what_could_not_be_copied)
{
    // The record after call number n has failed.
    const char *remaining[] = {
        "08 01 1A 0B 20 04 2A 02 62 63 2A 03 64 65 66 1A 00 22 04 67 68 69 6A 28 05",
        "08 01 12 02 1A 00 12 02 10 05 1A 0B 20 04 2A 02 62 63 2A 03 64 65 66 1A 00 22 04 67 68 69 6A 28 05",
        "08 01 12 04 1A 02 42 00 12 02 10 05 1A 0B 20 04 2A 02 62 63 2A 03 64 65 66 1A 00 22 04 67 68 69 6A 28 05",
        "08 01 12 07 1A 05 42 03 0A 01 61 12 02 10 05 22 04 67 68 69 6A 28 05",
        "08 01 12 07 1A 05 42 03 0A 01 61 12 02 10 05 1A 02 20 04 1A 00 22 04 67 68 69 6A 28 05",
        "08 01 12 07 1A 05 42 03 0A 01 61 12 02 10 05 1A 07 20 04 2A 03 64 65 66 1A 00 22 04 67 68 69 6A 28 05",
        "08 01 12 07 1A 05 42 03 0A 01 61 12 02 10 05 1A 06 20 04 2A 02 62 63 1A 00 22 04 67 68 69 6A 28 05",
        "08 01 12 07 1A 05 42 03 0A 01 61 12 02 10 05 1A 0B 20 04 2A 02 62 63 2A 03 64 65 66 1A 00 28 05",
    };
    replayed_decode source(full);
    replayed_copy whole(source.record);
    EXPECT_EQ(whole.result, MAVA_TUM_OK);
    EXPECT_EQ(whole.allocator.requested_sizes(), full_sizes);
    EXPECT_EQ(encoded_hex(whole.record), full);
    for (std::size_t failing = 1; failing <= full_sizes.size(); ++failing) {
        replayed_copy copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(encoded_hex(copy.record), remaining[failing - 1]) << failing;
    }
}

TEST(rec_sess_replay_resp, bits_of_a_failed_copy_are_cleared_for_the_field_itself_only)
{
    replayed_decode source(full);
    EXPECT_EQ(replayed_copy(source.record, {.failing_call = 1}).present(), fields(1, 3, 4, 5));
    EXPECT_EQ(replayed_copy(source.record, {.failing_call = 4}).present(), fields(1, 2, 4, 5));
    EXPECT_EQ(replayed_copy(source.record, {.failing_call = 8}).present(), fields(1, 2, 3, 5));
    EXPECT_EQ(replayed_copy(source.record, {.allocator_given = false}).present(), fields(1, 5));
    replayed_copy copy(source.record, {.failing_call = 5});
    EXPECT_EQ(copy.present(), fields(1, 2, 3, 4, 5));
    EXPECT_EQ(copy.record.field_3[0].field_5, nullptr);
    EXPECT_EQ(copy.record.field_3[0].presence_mask, fields(4)) << "the element lost its texts";
}

TEST(rec_sess_replay_resp, free_goes_field_by_field_and_element_by_element)
{
    replayed_decode got(full);
    const mava_tum_rec_sess_replay_resp before = got.record;
    const mava_tum_subscriber_stats &statistics = before.field_2[0].field_3;
    char *const *texts = before.field_3[0].field_5;
    const std::vector<const void *> expected = {statistics.field_8[0].field_1, statistics.field_8, before.field_2,
        texts[0], texts[1], texts, before.field_3, before.field_4};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_2, nullptr);
    EXPECT_EQ(got.record.field_2_count, 0u);
    EXPECT_EQ(got.record.field_3, nullptr);
    EXPECT_EQ(got.record.field_3_count, 0u);
    EXPECT_EQ(got.record.field_4, nullptr);
    EXPECT_EQ(got.present(), fields(1, 2, 3, 4, 5));
    got.free_now();
    EXPECT_EQ(got.allocator.released().size(), expected.size());
}

TEST(rec_sess_replay_resp, output_of_all_three_messages_is_one_segment)
{
    expect_output_is_one_segment(replayed_decode(full).record);
    expect_output_is_one_segment(failure_decode("08 01 1A 05 42 03 0A 01 61").record);
    expect_output_is_one_segment(started_decode("20 04 2A 02 62 63").record);
}

} // namespace
} // namespace mava_tum_test
