// Deliberate leniency of the encoders. The numbers are permanent: code cites them, docs/leniency.md lists them.
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

TEST(leniency, L6_a_short_buffer_is_no_error_and_the_result_is_the_full_size)
{
    mava_tum_subscriber_v4 record{};
    record.field_1 = 150;
    record.ipv4_address = 0x04030201;
    mark_present(record, 1, 2);
    EXPECT_EQ(hex_of(encode_trace(record, 3, 8)), "08 96 01");
    EXPECT_EQ(hex_of(encode_trace(record, 0, 8)), "");
}

TEST(leniency, L7_a_text_or_bytes_value_that_does_not_fit_whole_leaves_a_hole)
{
    std::string text = "abcd";
    mava_tum_subscriber_httpr with_text{};
    with_text.field_2 = text.data();
    mark_present(with_text, 2);
    EXPECT_EQ(hex_of(encode_trace(with_text, 5, 6)), "12 04 -- -- --");
    EXPECT_EQ(hex_of(encode_trace(with_text, 6, 6)), "12 04 61 62 63 64");

    byte_vector content = bytes_of("AA BB CC DD");
    mava_tum_subscriber_li with_bytes{};
    with_bytes.field_4 = bytes_field(content);
    with_bytes.field_5 = 5;
    mark_present(with_bytes, 4, 5);
    EXPECT_EQ(hex_of(encode_trace(with_bytes, 5, 8)), "22 04 -- -- --");
    EXPECT_EQ(hex_of(encode_trace(with_bytes, 7, 8)), "22 04 AA BB CC DD 28");
}

TEST(leniency, L10_a_nested_record_with_content_is_written_although_its_bit_is_clear)
{
    mava_tum_session_data record{};
    record.vlan.field_1 = 7;
    mark_present(record.vlan, 1);
    EXPECT_EQ(encoded_hex(record), "52 02 08 07");

    decoded<mava_tum_session_data> received(encoded(record));
    EXPECT_EQ(received.present(), fields(10)) << "its bit is set for the receiver";
}

TEST(leniency, L12_a_present_text_without_a_pointer_is_left_out)
{
    mava_tum_subscriber_httpr record{};
    record.field_1 = 1;
    mark_present(record, 1, 2);
    EXPECT_EQ(encoded_hex(record), "08 01");
}

TEST(leniency, L12_a_null_slot_in_an_array_of_texts_is_left_out)
{
    std::string text = "a";
    char *slots[] = {nullptr, text.data(), nullptr};
    mava_tum_sess_svc_start record{};
    record.field_5 = slots;
    record.field_5_count = 3;
    mark_present(record, 5);
    EXPECT_EQ(encoded_hex(record), "2A 01 61");
}

} // namespace
} // namespace mava_tum_test
