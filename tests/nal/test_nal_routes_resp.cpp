// The answer to a batch of routes, in both directions.
#include "nal/record_rows.h"
#include "nal/sample_records.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

using route_answer = tum_nal_data_subscriber_route_resp;

TEST(nal_routes_resp, each_row_is_sent_and_received)
{
    expect_both_ways<route_answer>({
        {"nothing: the numbers are always sent", [](route_answer &) {}, "08 00 10 00"},
        {"field 1", [](route_answer &r) { r.field_1 = 0xFFFFFFFF; }, "08 FF FF FF FF 0F 10 00"},
        {"field 2", [](route_answer &r) { r.field_2 = 300; }, "08 00 10 AC 02"},
        {"field 3", [](route_answer &r) { set_text(r.field_3, "ab"); }, "08 00 10 00 1A 02 61 62"},
        {"field 4", [](route_answer &r) { set_text(r.field_4, "c"); }, "08 00 10 00 22 01 63"},
    });
}

TEST(nal_routes_resp, a_text_whose_first_byte_is_0_is_absent_whatever_follows)
{
    route_answer record = full_subscriber_route_resp();
    record.field_1 = 0;
    record.field_2 = 0;
    record.field_3[0] = '\0';
    record.field_4[0] = '\0';
    EXPECT_EQ(sent_hex(record), "08 00 10 00");
}

TEST(nal_routes_resp, a_text_of_100_characters_arrives_cut_to_64)
{
    received<route_answer> got(wire_builder().text(3, std::string(100, 'x')).text(4, std::string(64, 'y')));
    EXPECT_EQ(std::string(got->field_3), std::string(64, 'x'));
    EXPECT_EQ(std::string(got->field_4), std::string(64, 'y'));
}

TEST(nal_routes_resp, of_a_text_that_occurs_twice_the_first_arrives_and_the_message_ends)
{
    received<route_answer> got("1A 01 61 1A 01 62 10 02");
    route_answer expected = zero_record<route_answer>();
    set_text(expected.field_3, "a");
    EXPECT_EQ(first_difference(*got, expected), -1);
}

TEST(nal_routes_resp, of_a_number_that_occurs_twice_the_second_arrives)
{
    expect_received<route_answer>({{"field 1", [](route_answer &r) { r.field_1 = 2; }, "08 01 08 02"}});
}

} // namespace
} // namespace mava_tum_test
