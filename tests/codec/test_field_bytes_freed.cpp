// Bytes fields whose length says nothing about memory: freed, when the pointer is null and length and bit are still
// there, or never filled.
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

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

// No block is that long: nothing of it is read, and the position stays where it is.
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

} // namespace
} // namespace mava_tum_test
