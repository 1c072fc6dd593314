// Varint fields of 32 and 64 bits: decode, encode, duplicate.
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

TEST(field_varint, the_last_occurrence_wins)
{
    decoded<mava_tum_vlan_info> narrow("08 01 10 02 08 03 10 00");
    EXPECT_EQ(narrow.result, MAVA_TUM_OK);
    EXPECT_EQ(narrow.record.field_1, 3u);
    EXPECT_EQ(narrow.record.field_2, 0u);
    EXPECT_EQ(narrow.present(), fields(1, 2));

    decoded<mava_tum_session_data> wide("10 FF FF FF FF FF FF FF FF FF 01 10 05");
    EXPECT_EQ(wide.result, MAVA_TUM_OK);
    EXPECT_EQ(wide.record.field_2, 5u);
}

TEST(field_varint, zero_is_a_present_value)
{
    decoded<mava_tum_vlan_info> got("08 00");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.present(), fields(1));
    EXPECT_EQ(encoded_hex(got.record), "08 00");
}

TEST(field_varint, a_failing_second_occurrence_keeps_the_first_value)
{
    decoded<mava_tum_vlan_info> got("08 01 08 80");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.present(), fields(1));
}

TEST(field_varint, any_other_wire_type_is_refused_before_the_value_is_read)
{
    for (const char *hex : {"09", "0A", "0B", "0C", "0D", "0E", "0F"}) {
        decoded<mava_tum_vlan_info> got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE) << hex;
        EXPECT_EQ(got.present(), 0u) << hex;
    }
    for (const char *hex : {"11", "12", "13", "14", "15", "16", "17"}) {
        decoded<mava_tum_session_data> got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE) << hex << ", 64 bits wide";
        EXPECT_EQ(got.present(), 0u) << hex;
    }
}

TEST(field_varint, a_value_with_a_clear_bit_is_not_written)
{
    mava_tum_session_data record{};
    record.field_1 = 1;
    record.field_2 = 2;
    record.field_9 = 9;
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u);
    mark_present(record, 2);
    EXPECT_EQ(encoded_hex(record), "10 02");
}

TEST(field_varint, duplicate_copies_value_and_bit_each_for_itself)
{
    mava_tum_session_data source{};
    source.field_1 = 0xFFFFFFFF;
    source.field_2 = 0x8000000000000001;
    source.field_9 = 9;
    mark_present(source, 2, 11);
    duplicated<mava_tum_session_data> copy(source, {.allocator_given = false});
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.record.field_1, 0xFFFFFFFF) << "a value without its bit";
    EXPECT_EQ(copy.record.field_2, 0x8000000000000001);
    EXPECT_EQ(copy.record.field_9, 9u);
    EXPECT_EQ(copy.record.field_11, 0u);
    EXPECT_EQ(copy.present(), fields(2, 11)) << "a bit without a value";
}

} // namespace
} // namespace mava_tum_test
