// stats and service_stats. subscriber_stats: test_statistics_subscriber.cpp.
#include "support/expect_ownership.h"
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using service_decode = decoded<mava_tum_service_stats>;
using service_copy = duplicated<mava_tum_service_stats>;

constexpr const char *all_counters = "08 01 10 02 18 03 20 04 28 05 30 06 38 07 40 08 48 09 50 0A 58 0B 60 0C 68 0D "
                                     "70 0E 78 0F 80 01 10 88 01 11 90 01 12";

TEST(stats, schema_is_18_varints_with_two_byte_tags_from_16)
{
    constexpr wire_type varint = wire_type::varint;
    expect_schema<mava_tum_stats>({
        {1, varint, "08 01"},
        {2, varint, "10 02"},
        {3, varint, "18 03"},
        {4, varint, "20 04"},
        {5, varint, "28 FF FF FF FF 0F"},
        {6, varint, "30 06"},
        {7, varint, "38 07"},
        {8, varint, "40 80 01"},
        {9, varint, "48 09"},
        {10, varint, "50 0A"},
        {11, varint, "58 0B"},
        {12, varint, "60 0C"},
        {13, varint, "68 0D"},
        {14, varint, "70 0E"},
        {15, varint, "78 00"},
        {16, varint, "80 01 10"},
        {17, varint, "88 01 11"},
        {18, varint, "90 01 FF FF FF FF 0F"},
    });
}

TEST(stats, decode_stores_each_value_in_its_own_member)
{
    decoded<mava_tum_stats> got(all_counters);
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    const mava_tum_stats &record = got.record;
    const uint32_t counters[] = {record.field_1, record.field_2, record.field_3, record.field_4, record.field_5,
        record.field_6, record.field_7, record.field_8, record.field_9, record.field_10, record.field_11,
        record.field_12, record.field_13, record.field_14, record.field_15, record.field_16, record.field_17,
        record.field_18};
    for (uint32_t i = 0; i < 18; ++i)
        EXPECT_EQ(counters[i], i + 1);
    EXPECT_EQ(encoded_hex(record), all_counters);
}

TEST(stats, decode_keeps_the_top_14_bits_of_the_mask_and_resets_the_others)
{
    mava_tum_stats record;
    fill_with_ones(record);
    record.presence_mask = 0xA6FFFFFF;
    EXPECT_EQ(mava_tum_stats_decode_ext(&record, nullptr, 0), MAVA_TUM_OK);
    EXPECT_EQ(record.presence_mask, 0xA6FC0000u);
    EXPECT_EQ(record.field_1 | record.field_9 | record.field_18, 0u);
    const byte_vector wire = bytes_of("90 01 05");
    EXPECT_EQ(mava_tum_stats_decode_ext(&record, wire.data(), wire.size()), MAVA_TUM_OK);
    EXPECT_EQ(record.presence_mask, 0xA6FE0000u);
}

TEST(stats, counters_are_32_bits_wide)
{
    expect_full_width(1, &mava_tum_stats::field_1);
    expect_full_width(18, &mava_tum_stats::field_18);
}

TEST(stats, a_varint_or_a_tag_that_is_cut_fails_and_keeps_what_came_before)
{
    for (const char *cut : {"90 01 80", "90 01", "90", "10"}) {
        decoded<mava_tum_stats> got(joined({bytes_of("08 07"), bytes_of(cut)}));
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << cut;
        EXPECT_EQ(got.record.field_1, 7u);
        EXPECT_EQ(got.present(), fields(1)) << cut;
    }
}

TEST(stats, owns_no_memory)
{
    expect_owns_no_memory<mava_tum_stats>(all_counters);
    expect_a_copy_takes_own_bits_only<mava_tum_stats>();
}

TEST(stats, output_is_one_segment)
{
    expect_output_is_one_segment(decoded<mava_tum_stats>(all_counters).record);
}

TEST(service_stats, schema_is_a_text_and_a_record)
{
    expect_schema<mava_tum_service_stats>({
        {1, wire_type::length_delimited, "0A 02 61 62"},
        {2, wire_type::length_delimited, "12 05 08 01 90 01 02"},
    });
}

TEST(service_stats, decode_copies_the_name_and_decodes_the_counters)
{
    service_decode got("0A 02 61 62 12 05 08 01 90 01 02");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{3}));
    EXPECT_STREQ(got.record.field_1, "ab");
    EXPECT_EQ(got.record.field_2.field_1, 1u);
    EXPECT_EQ(got.record.field_2.field_18, 2u);
    EXPECT_EQ(own_bits(got.record.field_2), fields(1, 18));
}

TEST(service_stats, decode_of_an_empty_span_resets_both_levels_and_keeps_their_spare_bits)
{
    service_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, nullptr);
    EXPECT_EQ(got.record.field_2.field_1 | got.record.field_2.field_18, 0u);
    EXPECT_EQ(got.record.presence_mask, 0xFCu);
    EXPECT_EQ(got.record.field_2.presence_mask, 0xFFFC0000u);
}

TEST(service_stats, an_empty_name_and_an_empty_block_are_written_when_present)
{
    std::string name;
    mava_tum_service_stats record{};
    record.field_1 = name.data();
    mark_present(record, 1, 2);
    EXPECT_EQ(encoded_hex(record), "0A 00 12 00");
}

TEST(service_stats, a_name_needs_bit_and_pointer_and_the_block_its_bit_or_content)
{
    std::string name = "a";
    mava_tum_service_stats record{};
    mark_present(record, 1);
    EXPECT_EQ(encoded_hex(record), "") << "bit without pointer, empty block";
    record.field_1 = name.data();
    EXPECT_EQ(encoded_hex(record), "0A 01 61");
    record.presence_mask = 0;
    EXPECT_EQ(encoded_hex(record), "") << "pointer without bit";
    record.field_2.field_2 = 0;
    mark_present(record.field_2, 2);
    EXPECT_EQ(encoded_hex(record), "12 02 10 00") << "content without bit";
    record.field_2.presence_mask = all_spare_bits<mava_tum_stats>();
    EXPECT_EQ(encoded_hex(record), "") << "reserved bits are no content";
}

TEST(service_stats, a_second_name_is_refused_and_a_second_block_replaces_the_first)
{
    service_decode names("0A 01 61 12 02 08 05 0A 01 62");
    EXPECT_EQ(names.result, MAVA_TUM_TRUNCATED);
    EXPECT_STREQ(names.record.field_1, "a");
    EXPECT_EQ(names.present(), fields(1, 2));

    service_decode blocks("12 04 08 01 10 02 12 02 18 03");
    EXPECT_EQ(blocks.result, MAVA_TUM_OK);
    EXPECT_EQ(blocks.record.field_2.field_1, 0u);
    EXPECT_EQ(own_bits(blocks.record.field_2), fields(3));
}

TEST(service_stats, a_failing_block_leaves_its_bit_clear_and_its_values_in_place)
{
    service_decode got("0A 01 61 12 04 08 01 12 00");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(got.record.field_2.field_1, 1u);
    EXPECT_EQ(own_bits(got.record.field_2), fields(1));
    EXPECT_EQ(got.present(), fields(1));
    EXPECT_EQ(service_decode("12 02 9B 01").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(service_decode("12 01 08 12 00").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(service_decode("12 03 08 01").result, MAVA_TUM_TRUNCATED);
}

TEST(service_stats, only_the_name_needs_an_allocator)
{
    EXPECT_EQ(service_decode("12 02 08 01", {.allocator_given = false}).result, MAVA_TUM_OK);
    EXPECT_EQ(service_decode("0A 00", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    service_decode got("12 02 08 01 0A 01 61", {.failing_call = 1});
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(got.record.field_1, nullptr);
    EXPECT_EQ(got.present(), fields(2));
}

TEST(service_stats, duplicate_without_memory_loses_the_name_only)
{
    service_decode source("0A 02 61 62 12 02 08 05");
    service_copy whole(source.record);
    EXPECT_EQ(whole.result, MAVA_TUM_OK);
    EXPECT_EQ(whole.allocator.requested_sizes(), (std::vector<uint64_t>{3}));
    EXPECT_STREQ(whole.record.field_1, "ab");
    for (bool allocator_given : {true, false}) {
        service_copy copy(source.record, {.allocator_given = allocator_given, .failing_call = 1});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
        EXPECT_EQ(copy.record.field_1, nullptr);
        EXPECT_EQ(copy.record.field_2.field_1, 5u);
        EXPECT_EQ(copy.record.field_2.presence_mask, 0xFFFC0001u) << "reserved bits stay one level down, too";
        EXPECT_EQ(copy.present(), fields(2));
    }
}

TEST(service_stats, duplicate_of_a_name_that_is_present_but_null_copies_the_bit)
{
    mava_tum_service_stats source{};
    mark_present(source, 1);
    service_copy copy(source, {.allocator_given = false});
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.record.field_1, nullptr);
    EXPECT_EQ(copy.present(), fields(1));
}

TEST(service_stats, free_releases_the_name_and_keeps_the_rest)
{
    service_decode got("0A 02 61 62 12 02 08 05");
    const std::vector<const void *> expected = {got.record.field_1};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_1, nullptr);
    EXPECT_EQ(got.record.field_2.field_1, 5u);
    EXPECT_EQ(got.present(), fields(1, 2));
    EXPECT_EQ(encoded_hex(got.record), "12 02 08 05") << "a freed name is left out";
}

TEST(service_stats, output_is_one_segment)
{
    expect_output_is_one_segment(service_decode("0A 02 61 62 12 02 08 05").record);
}

} // namespace
} // namespace mava_tum_test
