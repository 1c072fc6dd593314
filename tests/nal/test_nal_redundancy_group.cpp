// Reconciliation of redundancy groups, in both directions.
#include "nal/record_rows.h"
#include "nal/sample_records.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

using group_start = tum_nal_data_srg_group_rec_start_req;
using control_answer = tum_nal_data_srg_group_rec_resp;
using group_complete = tum_nal_data_srg_group_rec_complete_req;
using replay_request = tum_nal_data_srg_group_rec_replay_req;
using group_answer = tum_nal_data_srg_group_rec_replay_resp;

// ---- control ----

TEST(nal_redundancy_group, a_start_request_sends_its_zeros)
{
    expect_both_ways<group_start>({
        {"nothing", [](group_start &) {}, "08 00 10 00 18 00"},
        {"field 1", [](group_start &r) { r.field_1 = 0xFFFFFFFF; }, "08 FF FF FF FF 0F 10 00 18 00"},
        {"field 2", [](group_start &r) { r.field_2 = 65535; }, "08 00 10 FF FF 03 18 00"},
        {"field 3", [](group_start &r) { r.field_3 = 300; }, "08 00 10 00 18 AC 02"},
    });
}

TEST(nal_redundancy_group, an_answer_leaves_its_zeros_out)
{
    expect_both_ways<control_answer>({
        {"nothing", [](control_answer &) {}, ""},
        {"field 1", [](control_answer &r) { r.field_1 = 300; }, "08 AC 02"},
        {"field 2", [](control_answer &r) { r.field_2 = 0xFFFFFFFF; }, "10 FF FF FF FF 0F"},
    });
}

TEST(nal_redundancy_group, a_complete_request_leaves_its_zeros_out)
{
    expect_both_ways<group_complete>({
        {"nothing", [](group_complete &) {}, ""},
        {"field 1", [](group_complete &r) { r.field_1 = 300; }, "08 AC 02"},
        {"field 2", [](group_complete &r) { r.field_2 = 2; }, "10 02"},
        {"field 3", [](group_complete &r) { r.field_3 = 65535; }, "18 FF FF 03"},
    });
}

TEST(nal_redundancy_group, narrow_fields_of_the_control_messages_keep_16_bits)
{
    expect_received<group_start>({{"70000", [](group_start &r) { r.field_2 = 4464; }, "10 F0 A2 04"}});
    expect_received<group_complete>({{"70000", [](group_complete &r) { r.field_3 = 4464; }, "18 F0 A2 04"}});
}

TEST(nal_redundancy_group, a_control_message_that_fails_delivers_what_came_before)
{
    expect_received<group_start>(
        {{"a wrong wire type", [](group_start &r) { r.field_1 = 7; }, "08 07 12 00 18 09"}});
    expect_received<control_answer>({{"cut", [](control_answer &r) { r.field_1 = 7; }, "08 07 10 80"}});
    expect_received<group_complete>({{"a group", [](group_complete &r) { r.field_1 = 7; }, "08 07 23 18 09"}});
}

// ---- replay ----

TEST(nal_redundancy_group, each_row_of_a_replay_request_is_sent_and_received)
{
    expect_both_ways<replay_request>({
        {"nothing", [](replay_request &) {}, ""},
        {"field 1", [](replay_request &r) { r.field_1 = 300; }, "08 AC 02"},
        {"field 2", [](replay_request &r) { r.field_2 = 65535; }, "10 FF FF 03"},
        {"a group without content has an empty body", [](replay_request &r) { r.field_3_count = 1; }, "1A 00"},
        {"field 1 of a group",
            [](replay_request &r) {
                r.field_3_count = 1;
                r.field_3[0].field_1 = 1;
            },
            "1A 02 08 01"},
        {"fields 2, 3 and 4 of a group",
            [](replay_request &r) {
                r.field_3_count = 1;
                r.field_3[0].field_2 = 2;
                r.field_3[0].field_3 = 300;
                r.field_3[0].field_4 = 0xFFFFFFFF;
            },
            "1A 0B 10 02 18 AC 02 20 FF FF FF FF 0F"},
        {"the text of a group",
            [](replay_request &r) {
                r.field_3_count = 1;
                set_text(r.field_3[0].field_5, "ab");
            },
            "1A 04 2A 02 61 62"},
        {"groups are entries in their order",
            [](replay_request &r) {
                r.field_3_count = 3;
                r.field_3[0].field_1 = 1;
                r.field_3[2].field_1 = 3;
            },
            "1A 02 08 01 1A 00 1A 02 08 03"},
        {"field 4", [](replay_request &r) { r.field_4 = 255; }, "20 FF 01"},
    });
}

TEST(nal_redundancy_group, narrow_fields_of_a_replay_request_keep_their_bits)
{
    expect_received<replay_request>({
        {"16", [](replay_request &r) { r.field_2 = 4464; }, "10 F0 A2 04"},
        {"8", [](replay_request &r) { r.field_4 = 44; }, "20 AC 02"},
    });
}

TEST(nal_redundancy_group, each_row_of_a_replay_answer_is_sent_and_received)
{
    expect_both_ways<group_answer>({
        {"nothing", [](group_answer &) {}, ""},
        {"field 1", [](group_answer &r) { r.field_1 = 300; }, "08 AC 02"},
        {"groups in the first list",
            [](group_answer &r) {
                r.field_2_count = 2;
                r.field_2[1].field_4 = 4;
            },
            "12 00 12 02 20 04"},
        {"groups in the second list only",
            [](group_answer &r) {
                r.field_3_count = 1;
                set_text(r.field_3[0].field_5, "a");
            },
            "1A 03 2A 01 61"},
        {"groups in both",
            [](group_answer &r) {
                r.field_2_count = 1;
                r.field_2[0].field_1 = 1;
                r.field_3_count = 1;
                r.field_3[0].field_1 = 2;
            },
            "12 02 08 01 1A 02 08 02"},
        {"field 4", [](group_answer &r) { r.field_4 = 0xFFFFFFFF; }, "20 FF FF FF FF 0F"},
    });
}

TEST(nal_redundancy_group, the_lists_of_a_replay_answer_may_arrive_in_either_order)
{
    expect_received<group_answer>({{"the second first",
        [](group_answer &r) {
            r.field_2_count = 1;
            r.field_2[0].field_1 = 1;
            r.field_3_count = 1;
            r.field_3[0].field_1 = 2;
        },
        "1A 02 08 02 12 02 08 01"}});
}

TEST(nal_redundancy_group, fifteen_groups_come_back)
{
    const replay_request request = full_srg_group_rec_replay_req();
    EXPECT_EQ(first_difference(*received<replay_request>(sent(request)), request), -1);
    const group_answer answer = full_srg_group_rec_replay_resp();
    EXPECT_EQ(first_difference(*received<group_answer>(sent(answer)), answer), -1);
}

TEST(nal_redundancy_group, the_text_of_a_group_arrives_cut_to_64_characters)
{
    const byte_vector group = wire_builder().text(5, std::string(100, 'x'));
    received<replay_request> got(wire_builder().length_delimited(3, group).length_delimited(3, group));
    EXPECT_EQ(std::string(got->field_3[0].field_5), std::string(64, 'x'));
    EXPECT_EQ(std::string(got->field_3[1].field_5), std::string(64, 'x'));
}

TEST(nal_redundancy_group, the_text_of_a_group_whose_first_byte_is_0_is_absent_whatever_follows)
{
    replay_request record = zero_record<replay_request>();
    record.field_3_count = 1;
    record.field_3[0].field_5[1] = 'b';
    EXPECT_EQ(sent_hex(record), "1A 00");
}

TEST(nal_redundancy_group, of_sixteen_groups_the_first_fifteen_arrive)
{
    wire_builder wire;
    for (uint32_t i = 1; i <= 16; ++i)
        wire.length_delimited(3, wire_builder().varint(1, i));
    received<replay_request> request(wire_builder(wire).varint(4, 7));
    EXPECT_EQ(request->field_3_count, 15u);
    EXPECT_EQ(request->field_3[14].field_1, 15u);
    EXPECT_EQ(request->field_4, 7u);
    received<group_answer> answer(wire_builder(wire).varint(4, 7));
    EXPECT_EQ(answer->field_2_count, 0u);
    EXPECT_EQ(answer->field_3_count, 15u);
    EXPECT_EQ(answer->field_4, 7u);
}

TEST(nal_redundancy_group, a_run_of_groups_that_is_interrupted_ends_the_message)
{
    expect_received<replay_request>({{"by field 4",
        [](replay_request &r) {
            r.field_3_count = 1;
            r.field_3[0].field_1 = 1;
            r.field_4 = 4;
        },
        "1A 02 08 01 20 04 1A 02 08 02 08 07"}});
    expect_received<group_answer>({{"by the other list",
        [](group_answer &r) {
            r.field_2_count = 1;
            r.field_3_count = 1;
        },
        "12 00 1A 00 12 00 20 04"}});
}

TEST(nal_redundancy_group, a_group_with_a_second_text_loses_its_list)
{
    received<group_answer> got("12 02 08 01 1A 03 2A 01 61 1A 06 2A 01 62 2A 01 63 20 04");
    group_answer expected = zero_record<group_answer>();
    expected.field_2_count = 1;
    expected.field_2[0].field_1 = 1;
    EXPECT_EQ(first_difference(*got, expected), -1);
}

} // namespace
} // namespace mava_tum_test
