// Fixed32 fields: decode, encode, duplicate. test_wire_read.cpp tests how the four bytes are read.
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

TEST(field_fixed32, the_last_occurrence_wins)
{
    decoded<mava_tum_l2tp_data> got("15 01 00 00 00 1D 02 00 00 00 15 00 00 00 80");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_2, 0x80000000u);
    EXPECT_EQ(got.record.field_3, 2u);
    EXPECT_EQ(got.present(), fields(2, 3));
}

TEST(field_fixed32, a_failing_second_occurrence_keeps_the_first_value)
{
    decoded<mava_tum_l2tp_data> got("15 01 00 00 00 15 02 00 00");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.record.field_2, 1u);
    EXPECT_EQ(got.present(), fields(2));
}

TEST(field_fixed32, any_other_wire_type_is_refused_before_the_value_is_read)
{
    for (const char *hex : {"10", "11", "12", "13", "14", "16", "17"}) {
        decoded<mava_tum_l2tp_data> got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE) << hex;
        EXPECT_EQ(got.present(), 0u) << hex;
    }
}

TEST(field_fixed32, is_written_least_significant_byte_first_in_four_bytes_whatever_the_value)
{
    mava_tum_subscriber_v4 record{};
    mark_present(record, 2);
    EXPECT_EQ(encoded_hex(record), "15 00 00 00 00");
    record.ipv4_address = 0x01;
    EXPECT_EQ(encoded_hex(record), "15 01 00 00 00");
    record.ipv4_address = 0xFEDCBA98;
    EXPECT_EQ(encoded_hex(record), "15 98 BA DC FE");
}

TEST(field_fixed32, a_value_with_a_clear_bit_is_not_written)
{
    mava_tum_subscriber_v4 record{};
    record.ipv4_address = 0x01020304;
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u);
}

TEST(field_fixed32, duplicate_copies_value_and_bit_each_for_itself)
{
    mava_tum_l2tp_data source{};
    source.field_2 = 0xC0000201;
    mark_present(source, 3);
    duplicated<mava_tum_l2tp_data> copy(source);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.record.field_2, 0xC0000201u);
    EXPECT_EQ(copy.record.field_3, 0u);
    EXPECT_EQ(copy.present(), fields(3));
}

} // namespace
} // namespace mava_tum_test
