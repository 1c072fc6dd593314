// sess_oper_resp: five scalars, three texts, the statistics of the session and a bytes field.
#include "support/expect_ownership.h"
#include "support/expect_schema.h"
#include "support/gathered_segments.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using operation_decode = decoded<mava_tum_sess_oper_resp>;
using operation_copy = duplicated<mava_tum_sess_oper_resp>;

constexpr uint32_t all_bits = all_own_bits<mava_tum_sess_oper_resp>;

// Every block has a different size.
constexpr const char *full_operation = "08 01 10 02 18 03 20 04 28 05 32 01 61 3A 02 62 63 42 03 64 65 66 "
                             "4A 07 42 05 0A 03 67 68 69 52 05 AA BB CC DD EE";
const std::vector<uint64_t> operation_sizes = {2, 3, 4, sizeof(mava_tum_service_stats), 4, 5};

TEST(sess_oper_resp, schema_is_five_varints_three_texts_a_record_and_bytes)
{
    constexpr wire_type block = wire_type::length_delimited;
    expect_schema<mava_tum_sess_oper_resp>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::varint, "18 03"},
        {4, wire_type::varint, "20 FF FF FF FF FF FF FF FF FF 01"},
        {5, wire_type::varint, "28 FF FF FF FF 0F"},
        {6, block, "32 01 61"},
        {7, block, "3A 00"},
        {8, block, "42 02 62 63"},
        {9, block, "4A 05 42 03 0A 01 61"},
        {10, block, "52 02 AA BB"},
    });
}

TEST(sess_oper_resp, field_4_has_64_bits_and_the_other_scalars_32)
{
    using record_type = mava_tum_sess_oper_resp;
    expect_full_width<record_type, uint32_t>(1, &record_type::field_1);
    expect_full_width<record_type, uint32_t>(2, &record_type::field_2);
    expect_full_width<record_type, uint32_t>(3, &record_type::field_3);
    expect_full_width<record_type, uint64_t>(4, &record_type::field_4);
    expect_full_width<record_type, uint32_t>(5, &record_type::field_5);
}

TEST(sess_oper_resp, decode_stores_each_value_in_its_own_member_and_asks_in_wire_order)
{
    operation_decode got(full_operation);
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 2u);
    EXPECT_EQ(got.record.field_3, 3u);
    EXPECT_EQ(got.record.field_4, 4u);
    EXPECT_EQ(got.record.field_5, 5u);
    EXPECT_STREQ(got.record.field_6, "a");
    EXPECT_STREQ(got.record.field_7, "bc");
    EXPECT_STREQ(got.record.field_8, "def");
    ASSERT_EQ(got.record.field_9.field_8_count, 1u);
    EXPECT_STREQ(got.record.field_9.field_8[0].field_1, "ghi");
    EXPECT_EQ(hex_of(content_of(got.record.field_10)), "AA BB CC DD EE");
    EXPECT_EQ(got.allocator.requested_sizes(), operation_sizes);
    EXPECT_EQ(encoded_hex(got.record), full_operation);
}

TEST(sess_oper_resp, decode_of_an_empty_span_resets_everything_and_keeps_the_spare_bits_of_all_levels)
{
    operation_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1 | got.record.field_5, 0u);
    EXPECT_EQ(got.record.field_4, 0u);
    EXPECT_EQ(got.record.field_6, nullptr);
    EXPECT_EQ(got.record.field_7, nullptr);
    EXPECT_EQ(got.record.field_8, nullptr);
    EXPECT_EQ(got.record.field_9.field_8, nullptr);
    EXPECT_EQ(got.record.field_10.data, nullptr);
    EXPECT_EQ(got.record.field_10.length, 0u);
    EXPECT_EQ(got.record.presence_mask, 0xFC00u);
    EXPECT_EQ(got.record.field_9.presence_mask, 0xF000u);
    EXPECT_EQ(got.record.field_9.field_12.presence_mask, 0xFFFC0000u);
}

TEST(sess_oper_resp, in_alias_mode_only_field_10_points_into_the_input)
{
    operation_decode got(full_operation, {.flags = alias});
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2, 3, 4, sizeof(mava_tum_service_stats), 4}));
    EXPECT_EQ(got.record.field_10.data, got.wire.data() + got.wire.size() - 5);
    EXPECT_TRUE(got.allocator.is_outstanding(got.record.field_9.field_8[0].field_1));
}

TEST(sess_oper_resp, each_allocation_that_fails_ends_the_decode_at_its_field)
{
    const uint32_t failing_field[] = {6, 7, 8, 9, 9, 10};
    for (std::size_t failing = 1; failing <= operation_sizes.size(); ++failing) {
        operation_decode got(full_operation, {.failing_call = failing});
        EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(got.present(), fields(failing_field[failing - 1]) - 1) << "the fields before it, " << failing;
        EXPECT_EQ(got.allocator.outstanding_count(), failing - 1);
        EXPECT_EQ(got.record.field_9.field_8_count, failing < 5 ? 0u : 1u);
        got.free_now();
        EXPECT_EQ(got.allocator.outstanding_count(), 0u) << failing;
    }
}

TEST(sess_oper_resp, decode_without_an_allocator_takes_exactly_what_needs_none)
{
    const decode_options aliased = {.flags = alias, .allocator_given = false};
    EXPECT_EQ(operation_decode("08 01 20 02 4A 04 3A 02 08 01 52 01 AA", aliased).result, MAVA_TUM_OK);
    for (const char *hex : {"32 00", "3A 00", "42 00", "4A 02 42 00"})
        EXPECT_EQ(operation_decode(hex, aliased).result, MAVA_TUM_NO_MEMORY) << hex;
    EXPECT_EQ(operation_decode("52 00", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
}

TEST(sess_oper_resp, texts_and_bytes_may_occur_once)
{
    for (uint32_t flags : {0u, alias})
        for (const char *hex : {"32 00 32 00", "3A 01 61 3A 00", "42 00 42 01 61", "52 00 52 01 AA"})
            EXPECT_EQ(operation_decode(hex, {.flags = flags}).result, MAVA_TUM_TRUNCATED) << hex;
}

TEST(sess_oper_resp, an_empty_field_10_asks_for_a_block_of_0_bytes_in_copy_mode_only)
{
    operation_decode copied("52 00");
    EXPECT_EQ(copied.allocator.requested_sizes(), (std::vector<uint64_t>{0}));
    EXPECT_EQ(copied.present(), fields(10));
    EXPECT_EQ(encoded_hex(copied.record), "52 00");
    operation_decode aliased("52 00", {.flags = alias});
    EXPECT_TRUE(aliased.allocator.calls().empty());
    EXPECT_EQ(aliased.record.field_10.data, aliased.wire.data() + 2);
}

TEST(sess_oper_resp, failing_statistics_leave_their_bit_clear_and_their_values_in_place)
{
    operation_decode got("08 01 4A 05 10 07 42 01 0D 28 05");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE) << "from three levels down";
    EXPECT_EQ(got.record.field_9.field_2, 7u);
    EXPECT_EQ(got.record.field_9.field_8_count, 1u);
    EXPECT_EQ(own_bits(got.record.field_9), fields(2));
    EXPECT_EQ(got.present(), fields(1));
    EXPECT_EQ(operation_decode("4A 01 6B").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
}

TEST(sess_oper_resp, second_statistics_replace_the_first_and_drop_their_memory)
{
    operation_decode got("4A 09 10 07 42 05 0A 03 61 62 63 4A 02 18 08");
    got.allocator.allow_outstanding();
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_9.field_2, 0u);
    EXPECT_EQ(got.record.field_9.field_8, nullptr);
    EXPECT_EQ(own_bits(got.record.field_9), fields(3));
    got.free_now();
    EXPECT_TRUE(got.allocator.released().empty());
    EXPECT_EQ(got.allocator.outstanding_count(), 2u);
}

TEST(sess_oper_resp, second_statistics_that_fail_leave_the_bit_that_the_first_set)
{
    operation_decode got("4A 02 10 07 4A 04 18 08 12 00");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(own_bits(got.record.field_9), fields(3));
    EXPECT_EQ(got.present(), fields(9));
}

TEST(sess_oper_resp, statistics_are_written_when_present_or_when_they_have_content)
{
    mava_tum_sess_oper_resp record{};
    EXPECT_EQ(encoded_hex(record), "");
    mark_present(record, 1, 9);
    EXPECT_EQ(encoded_hex(record), "08 00 4A 00");
    record.presence_mask = 0;
    mark_present(record.field_9.field_12, 18);
    EXPECT_EQ(encoded_hex(record), "4A 05 62 03 90 01 00") << "content two levels down";
}

TEST(sess_oper_resp, duplicate_copies_everything_in_schema_order)
{
    for (uint32_t flags : {0u, alias}) {
        operation_decode source(full_operation, {.flags = flags});
        operation_copy copy(source.record);
        EXPECT_EQ(copy.result, MAVA_TUM_OK);
        EXPECT_EQ(copy.allocator.requested_sizes(), operation_sizes);
        EXPECT_EQ(encoded_hex(copy.record), full_operation);
        EXPECT_TRUE(copy.allocator.is_outstanding(copy.record.field_10.data)) << "a copy owns all it points to";
        EXPECT_EQ(copy.record.field_9.presence_mask, 0xF000u | fields(8)) << "reserved bits of nested records stay";
    }
}

TEST(sess_oper_resp, duplicate_loses_exactly_what_could_not_be_copied)
{
    const uint32_t lost[] = {fields(6), fields(7), fields(8), 0, 0, fields(10)};
    operation_decode source(full_operation);
    for (std::size_t failing = 1; failing <= operation_sizes.size(); ++failing) {
        operation_copy copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(copy.allocator.calls().size(), failing == 4 ? 5u : 6u) << "no names without their array";
        EXPECT_EQ(copy.present(), all_bits & ~lost[failing - 1]) << failing;
        EXPECT_EQ(own_bits(copy.record.field_9), failing == 4 ? 0u : fields(8)) << failing;
        EXPECT_EQ(copy.record.field_9.field_8_count, failing == 4 ? 0u : 1u) << failing;
        EXPECT_EQ(copy.record.field_10.length, failing == 6 ? 0u : 5u) << failing;
        EXPECT_EQ(copy.record.field_5, 5u) << failing;
    }
    operation_copy without(source.record, {.allocator_given = false});
    EXPECT_EQ(without.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(encoded_hex(without.record), "08 01 10 02 18 03 20 04 28 05 4A 00");
}

TEST(sess_oper_resp, free_releases_texts_statistics_and_then_field_10_unless_it_is_borrowed)
{
    for (uint32_t flags : {0u, alias}) {
        operation_decode got(full_operation, {.flags = flags});
        const mava_tum_sess_oper_resp before = got.record;
        std::vector<const void *> expected = {
            before.field_6, before.field_7, before.field_8, before.field_9.field_8[0].field_1, before.field_9.field_8};
        if (flags == 0)
            expected.push_back(before.field_10.data);
        got.free_now();
        EXPECT_EQ(got.allocator.released(), expected) << "flags " << flags;
        EXPECT_EQ(got.record.field_8, nullptr);
        EXPECT_EQ(got.record.field_9.field_8_count, 0u);
        EXPECT_EQ(got.record.field_10.data, flags == 0 ? nullptr : before.field_10.data);
        EXPECT_EQ(got.record.field_10.length, 5u) << "lengths stay";
        EXPECT_EQ(got.present(), all_bits);
        got.free_now();
        EXPECT_EQ(got.allocator.released().size(), expected.size());
    }
}

TEST(sess_oper_resp, gathered_statistics_are_one_segment_and_field_10_another)
{
    operation_decode got("08 01 32 02 61 62 4A 07 42 05 0A 03 67 68 69 52 03 AA BB CC");
    gathered_segments segments(got.record);
    EXPECT_EQ(segments.bytes_in_buffer(), "08 01 32 02 61 62 4A 07 42 05 0A 03 67 68 69 52 03");
    EXPECT_EQ(segments.stored(), (std::vector<std::string>{"8+7", "0+17", "AA BB CC"}));
    EXPECT_EQ(segments.list[2].data, got.record.field_10.data);
    for (uint32_t capacity : {0u, 1u, 2u})
        EXPECT_EQ(gathered_segments(got.record, capacity).count, 3u) << "counted past the capacity";
}

TEST(sess_oper_resp, copy_mode_is_one_segment_whatever_is_nested)
{
    expect_output_is_one_segment(operation_decode(full_operation).record);
}

} // namespace
} // namespace mava_tum_test
