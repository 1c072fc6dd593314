// subscriber_stats: totals, three blocks of counters and a list of services.
#include "support/expect_ownership.h"
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using stats_decode = decoded<mava_tum_subscriber_stats>;
using stats_copy = duplicated<mava_tum_subscriber_stats>;

constexpr uint64_t service_block_bytes = sizeof(mava_tum_service_stats);

constexpr const char *full_statistics = "08 01 10 02 18 03 20 04 28 05 30 06 3A 02 08 07 42 03 0A 01 61 42 06 0A 02 62 63 12 00 "
                             "48 09 52 02 10 0A 58 0B 62 03 90 01 0C";

TEST(subscriber_stats, schema_is_eight_varints_three_blocks_and_an_array)
{
    constexpr wire_type nested = wire_type::length_delimited;
    expect_schema<mava_tum_subscriber_stats>({
        {1, wire_type::varint, "08 FF FF FF FF FF FF FF FF FF 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::varint, "18 03"},
        {4, wire_type::varint, "20 04"},
        {5, wire_type::varint, "28 05"},
        {6, wire_type::varint, "30 FF FF FF FF 0F"},
        {7, nested, "3A 02 08 07"},
        {8, nested, "42 03 0A 01 61 42 00"},
        {9, wire_type::varint, "48 09"},
        {10, nested, "52 02 10 0A"},
        {11, wire_type::varint, "58 0B"},
        {12, nested, "62 03 90 01 0C"},
    });
}

TEST(subscriber_stats, decode_stores_each_value_in_its_own_member)
{
    stats_decode got(full_statistics);
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    const mava_tum_subscriber_stats &record = got.record;
    EXPECT_EQ(record.field_1, 1u);
    EXPECT_EQ(record.field_2, 2u);
    EXPECT_EQ(record.field_3, 3u);
    EXPECT_EQ(record.field_4, 4u);
    EXPECT_EQ(record.field_5, 5u);
    EXPECT_EQ(record.field_6, 6u);
    EXPECT_EQ(record.field_7.field_1, 7u);
    ASSERT_EQ(record.field_8_count, 2u);
    EXPECT_STREQ(record.field_8[0].field_1, "a");
    EXPECT_EQ(record.field_8[0].presence_mask, fields(1)) << "the codec zeroes the array";
    EXPECT_STREQ(record.field_8[1].field_1, "bc");
    EXPECT_EQ(record.field_8[1].presence_mask, fields(1, 2));
    EXPECT_EQ(record.field_9, 9u);
    EXPECT_EQ(record.field_10.field_2, 10u);
    EXPECT_EQ(record.field_11, 11u);
    EXPECT_EQ(record.field_12.field_18, 12u);
    EXPECT_EQ(got.present(), 0xFFFu);
    EXPECT_EQ(encoded_hex(record), full_statistics);
}

TEST(subscriber_stats, field_1_has_64_bits_and_the_other_scalars_32)
{
    using record_type = mava_tum_subscriber_stats;
    expect_full_width<record_type, uint64_t>(1, &record_type::field_1);
    expect_full_width<record_type, uint32_t>(2, &record_type::field_2);
    expect_full_width<record_type, uint32_t>(3, &record_type::field_3);
    expect_full_width<record_type, uint32_t>(4, &record_type::field_4);
    expect_full_width<record_type, uint32_t>(5, &record_type::field_5);
    expect_full_width<record_type, uint32_t>(6, &record_type::field_6);
    expect_full_width<record_type, uint32_t>(9, &record_type::field_9);
    expect_full_width<record_type, uint32_t>(11, &record_type::field_11);
}

TEST(subscriber_stats, decode_of_an_empty_span_resets_everything_and_keeps_the_spare_bits_of_all_levels)
{
    stats_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 0u);
    EXPECT_EQ(got.record.field_2 | got.record.field_6 | got.record.field_9 | got.record.field_11, 0u);
    EXPECT_EQ(got.record.field_8, nullptr);
    EXPECT_EQ(got.record.field_8_count, 0u);
    EXPECT_EQ(got.record.presence_mask, 0xF000u);
    for (const mava_tum_stats *block : {&got.record.field_7, &got.record.field_10, &got.record.field_12}) {
        EXPECT_EQ(block->field_1 | block->field_18, 0u);
        EXPECT_EQ(block->presence_mask, 0xFFFC0000u);
    }
}

TEST(subscriber_stats, blocks_are_written_when_present_or_when_they_have_content)
{
    mava_tum_subscriber_stats record{};
    mark_present(record, 7, 10, 12);
    EXPECT_EQ(encoded_hex(record), "3A 00 52 00 62 00");
    record.presence_mask = 0;
    mark_present(record.field_7, 1);
    mark_present(record.field_10, 2);
    mark_present(record.field_12, 18);
    EXPECT_EQ(encoded_hex(record), "3A 02 08 00 52 02 10 00 62 03 90 01 00");
}

TEST(subscriber_stats, the_numbers_beside_the_blocks_go_by_their_own_bits)
{
    mava_tum_subscriber_stats record{};
    record.field_6 = 6;
    record.field_9 = 9;
    record.field_11 = 11;
    mark_present(record, 7, 10, 12);
    EXPECT_EQ(encoded_hex(record), "3A 00 52 00 62 00") << "values without a bit";
    record.presence_mask = 0;
    mark_present(record, 6, 9, 11);
    EXPECT_EQ(encoded_hex(record), "30 06 48 09 58 0B");
}

TEST(subscriber_stats, services_split_into_two_runs_are_refused)
{
    stats_decode got("42 03 0A 01 61 42 00 48 09 42 03 0A 01 62");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    ASSERT_EQ(got.record.field_8_count, 2u) << "the first run stays";
    EXPECT_STREQ(got.record.field_8[0].field_1, "a");
    EXPECT_EQ(got.record.field_9, 9u);
    EXPECT_EQ(got.present(), fields(8, 9));
}

TEST(subscriber_stats, services_are_one_block_followed_by_their_names)
{
    stats_decode got("42 03 0A 01 61 42 00 42 04 0A 02 62 63");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{3 * service_block_bytes, 2, 3}));
}

TEST(subscriber_stats, only_services_need_an_allocator)
{
    EXPECT_EQ(
        stats_decode("08 01 3A 02 08 01 48 09 52 00 58 0B 62 00", {.allocator_given = false}).result, MAVA_TUM_OK);
    stats_decode got("08 01 42 00", {.allocator_given = false});
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(got.record.field_8, nullptr);
    EXPECT_EQ(got.present(), fields(1));
}

TEST(subscriber_stats, results_of_services_and_blocks_are_passed_up)
{
    EXPECT_EQ(stats_decode("42 02 08 01").result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(stats_decode("42 01 1B").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(stats_decode("42 03 12 01 08").result, MAVA_TUM_TRUNCATED) << "three levels down";
    EXPECT_EQ(stats_decode("42 04 12 02 0A 00").result, MAVA_TUM_WRONG_WIRE_TYPE) << "three levels down";
    EXPECT_EQ(stats_decode("42 03 0A 01 61", {.failing_call = 2}).result, MAVA_TUM_NO_MEMORY);
    for (const char *hex : {"3A 02 0D 00", "52 02 0D 00", "62 02 0D 00"})
        EXPECT_EQ(stats_decode(hex).result, MAVA_TUM_WRONG_WIRE_TYPE) << hex;
}

TEST(subscriber_stats, a_failing_service_leaves_the_array_attached_and_the_bit_clear)
{
    stats_decode got("30 06 42 03 0A 01 61 42 05 0A 01 62 08 01 42 03 0A 01 63");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    ASSERT_EQ(got.record.field_8_count, 3u);
    EXPECT_STREQ(got.record.field_8[0].field_1, "a");
    EXPECT_STREQ(got.record.field_8[1].field_1, "b");
    EXPECT_EQ(got.record.field_8[2].field_1, nullptr);
    EXPECT_EQ(got.present(), fields(6));
    EXPECT_EQ(got.allocator.outstanding_count(), 3u);
}

TEST(subscriber_stats, a_second_block_replaces_the_first_and_keeps_the_bit_even_if_it_fails)
{
    stats_decode good("52 04 08 01 10 02 52 02 18 03");
    EXPECT_EQ(good.result, MAVA_TUM_OK);
    EXPECT_EQ(good.record.field_10.field_1, 0u);
    EXPECT_EQ(own_bits(good.record.field_10), fields(3));

    stats_decode bad("52 02 08 01 52 04 10 02 1D 00");
    EXPECT_EQ(bad.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(own_bits(bad.record.field_10), fields(2));
    EXPECT_EQ(bad.present(), fields(10)) << "set by the first one";
}

TEST(subscriber_stats, duplicate_copies_everything_and_each_name_into_a_block_of_its_own)
{
    stats_decode source(full_statistics);
    stats_copy copy(source.record);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{2 * service_block_bytes, 2, 3}));
    EXPECT_EQ(encoded_hex(copy.record), full_statistics);
    EXPECT_TRUE(copy.allocator.is_outstanding(copy.record.field_8));
    EXPECT_TRUE(copy.allocator.is_outstanding(copy.record.field_8[1].field_1));
    EXPECT_EQ(copy.record.field_7.presence_mask, 0xFFFC0001u) << "reserved bits of nested records stay";
    EXPECT_EQ(copy.record.field_8[0].presence_mask, fields(1)) << "the codec zeroes the array of a copy";
}

TEST(subscriber_stats, duplicate_loses_exactly_what_could_not_be_copied)
{
    stats_decode source(full_statistics);
    stats_copy no_array(source.record, {.failing_call = 1});
    EXPECT_EQ(no_array.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(no_array.record.field_8, nullptr);
    EXPECT_EQ(no_array.record.field_8_count, 0u);
    EXPECT_EQ(no_array.record.field_12.field_18, 12u);
    EXPECT_EQ(no_array.present(), 0xFFFu & ~fields(8));

    stats_copy no_name(source.record, {.failing_call = 2});
    EXPECT_EQ(no_name.result, MAVA_TUM_NO_MEMORY);
    ASSERT_EQ(no_name.record.field_8_count, 2u);
    EXPECT_EQ(no_name.record.field_8[0].field_1, nullptr);
    EXPECT_EQ(no_name.record.field_8[0].presence_mask, 0u);
    EXPECT_STREQ(no_name.record.field_8[1].field_1, "bc");
    EXPECT_EQ(no_name.present(), 0xFFFu) << "array, count and bit stay";
}

TEST(subscriber_stats, free_releases_the_names_and_then_the_array)
{
    stats_decode got(full_statistics);
    const mava_tum_service_stats *services = got.record.field_8;
    const std::vector<const void *> expected = {services[0].field_1, services[1].field_1, services};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_8, nullptr);
    EXPECT_EQ(got.record.field_8_count, 0u);
    EXPECT_EQ(got.present(), 0xFFFu);
}

TEST(subscriber_stats, output_is_one_segment)
{
    expect_output_is_one_segment(stats_decode(full_statistics).record);
}

} // namespace
} // namespace mava_tum_test
