// session_delete: five scalars.
#include "support/expect_ownership.h"
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using delete_decode = decoded<mava_tum_session_delete>;

constexpr const char *all_fields = "08 01 10 02 18 03 20 80 80 80 80 40 28 05";

TEST(session_delete, schema_is_five_varints)
{
    expect_schema<mava_tum_session_delete>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::varint, "18 FF FF FF FF 0F"},
        {4, wire_type::varint, "20 FF FF FF FF FF FF FF FF FF 01"},
        {5, wire_type::varint, "28 00"},
    });
}

TEST(session_delete, field_4_has_64_bits_and_the_others_32)
{
    using record_type = mava_tum_session_delete;
    expect_full_width<record_type, uint32_t>(1, &record_type::field_1);
    expect_full_width<record_type, uint32_t>(2, &record_type::field_2);
    expect_full_width<record_type, uint32_t>(3, &record_type::field_3);
    expect_full_width<record_type, uint64_t>(4, &record_type::field_4);
    expect_full_width<record_type, uint32_t>(5, &record_type::field_5);
}

TEST(session_delete, decode_stores_each_value_in_its_own_member)
{
    delete_decode got(all_fields);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 2u);
    EXPECT_EQ(got.record.field_3, 3u);
    EXPECT_EQ(got.record.field_4, uint64_t{1} << 34);
    EXPECT_EQ(got.record.field_5, 5u);
}

TEST(session_delete, decode_takes_an_allocator_and_never_calls_it)
{
    delete_decode got(joined({bytes_of(all_fields), bytes_of("32 02 61 62")}), {.failing_call = 1});
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_TRUE(got.allocator.calls().empty());
    expect_owns_no_memory<mava_tum_session_delete>(all_fields);
    expect_a_copy_takes_own_bits_only<mava_tum_session_delete>();
}

TEST(session_delete, decode_resets_the_record_and_keeps_the_three_spare_bits)
{
    delete_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1 | got.record.field_2 | got.record.field_3 | got.record.field_5, 0u);
    EXPECT_EQ(got.record.field_4, 0u);
    EXPECT_EQ(got.record.presence_mask, 0xE0u);
}

TEST(session_delete, values_of_0_are_written_when_present)
{
    mava_tum_session_delete record{};
    record.presence_mask = 0xE0;
    EXPECT_EQ(encoded_hex(record), "");
    mark_present(record, 1, 4);
    EXPECT_EQ(encoded_hex(record), "08 00 20 00");
}

TEST(session_delete, a_64_bit_value_that_is_cut_fails)
{
    delete_decode got("08 01 20 FF FF FF FF FF");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.record.field_4, 0u);
    EXPECT_EQ(got.present(), fields(1));
}

TEST(session_delete, output_is_one_segment)
{
    expect_output_is_one_segment(delete_decode(all_fields).record);
}

} // namespace
} // namespace mava_tum_test
