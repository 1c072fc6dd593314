// Start, end and session states of a reconciliation, in both directions. test_nal_reconciliation_replay.cpp has the
// replay.
#include "nal/record_rows.h"
#include "nal/sample_records.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

using start_request = tum_nal_data_rec_start_req;
using complete_request = tum_nal_data_rec_complete_req;
using answer = tum_nal_data_rec_res;
using states_request = tum_nal_data_rec_sess_req;
using states_answer = tum_nal_data_rec_sess_res;

// ---- rec_start_req ----

TEST(nal_reconciliation, each_row_of_a_start_request_is_sent)
{
    expect_sent<start_request>({
        {"nothing: the numbers are always sent", [](start_request &) {}, "08 00 10 00 18 00"},
        {"field 1", [](start_request &r) { r.field_1 = 0xFFFFFFFF; }, "08 FF FF FF FF 0F 10 00 18 00"},
        {"field 2", [](start_request &r) { r.field_2 = 65535; }, "08 00 10 FF FF 03 18 00"},
        {"field 3", [](start_request &r) { r.field_3 = 300; }, "08 00 10 00 18 AC 02"},
        {"field 4", [](start_request &r) { set_text(r.field_4, "ab"); }, "08 00 10 00 18 00 22 02 61 62"},
        {"field 4 whose first byte is 0", [](start_request &r) { r.field_4[1] = 'b'; }, "08 00 10 00 18 00"},
    });
}

TEST(nal_reconciliation, a_start_request_delivers_wire_field_3_in_the_first_field_and_drops_1_and_2)
{
    expect_received<start_request>({
        {"fields 1 and 3", [](start_request &r) { r.field_1 = 7; }, "08 05 18 07"},
        {"fields 1 and 2", [](start_request &) {}, "08 05 10 06"},
        {"field 3 alone", [](start_request &r) { r.field_1 = 0xFFFFFFFF; }, "18 FF FF FF FF 0F"},
        {"the text", [](start_request &r) { set_text(r.field_4, "ab"); }, "22 02 61 62"},
    });
}

TEST(nal_reconciliation, a_start_request_sent_and_received_keeps_its_third_field_and_its_text)
{
    const start_request record = full_rec_start_req();
    received<start_request> got(sent(record));
    EXPECT_EQ(got->field_1, record.field_3);
    EXPECT_EQ(got->field_2, 0u);
    EXPECT_EQ(got->field_3, 0u);
    EXPECT_STREQ(got->field_4, record.field_4);
}

TEST(nal_reconciliation, a_start_request_that_fails_delivers_what_came_before)
{
    expect_received<start_request>({
        {"field 2 with another wire type", [](start_request &) {}, "12 01 61 18 07"},
        {"after field 3", [](start_request &r) { r.field_1 = 7; }, "18 07 12 01 61"},
        {"a second text",
            [](start_request &r) {
                r.field_1 = 7;
                set_text(r.field_4, "a");
            },
            "18 07 22 01 61 22 01 62"},
    });
}

// ---- rec_complete_req ----

TEST(nal_reconciliation, each_row_of_a_complete_request_is_sent_and_received)
{
    expect_both_ways<complete_request>({
        {"nothing: the numbers are always sent", [](complete_request &) {}, "08 00 10 00 18 00"},
        {"field 1", [](complete_request &r) { r.field_1 = 1; }, "08 01 10 00 18 00"},
        {"field 2", [](complete_request &r) { r.field_2 = 0xFFFFFFFF; }, "08 00 10 FF FF FF FF 0F 18 00"},
        {"field 3", [](complete_request &r) { r.field_3 = 65535; }, "08 00 10 00 18 FF FF 03"},
        {"field 4", [](complete_request &r) { set_text(r.field_4, "ab"); }, "08 00 10 00 18 00 22 02 61 62"},
    });
}

TEST(nal_reconciliation, field_3_of_a_complete_request_keeps_16_bits)
{
    expect_received<complete_request>({
        {"65536", [](complete_request &) {}, "18 80 80 04"},
        {"70000", [](complete_request &r) { r.field_3 = 4464; }, "18 F0 A2 04"},
    });
}

// ---- rec_start_res and rec_complete_res ----

const std::vector<record_row<answer>> answer_rows = {
    {"nothing: the numbers are always sent", [](answer &) {}, "08 00 18 00"},
    {"field 1", [](answer &r) { r.field_1 = 300; }, "08 AC 02 18 00"},
    {"field 2", [](answer &r) { set_text(r.field_2, "ab"); }, "08 00 12 02 61 62 18 00"},
    {"field 3", [](answer &r) { r.field_3 = 0xFFFFFFFF; }, "08 00 18 FF FF FF FF 0F"},
};

TEST(nal_reconciliation, each_row_of_a_start_answer_is_sent_and_received)
{
    expect_both_ways(answer_rows);
}

TEST(nal_reconciliation, a_complete_answer_is_the_same_message_as_a_start_answer)
{
    for (const record_row<answer> &row : answer_rows) {
        rec_complete_res record = zero_record<rec_complete_res>();
        row.fill(record);
        EXPECT_EQ(sent_hex(record), hex_of(bytes_of(row.wire))) << row.what;
        EXPECT_EQ(first_difference(*received<rec_complete_res>(row.wire), record), -1) << row.what;
    }
}

TEST(nal_reconciliation, what_one_answer_adapter_sends_the_other_receives)
{
    const answer record = full_rec_res();
    received<rec_complete_res> got(sent(record));
    EXPECT_EQ(first_difference<answer>(*got, record), -1);
    received<answer> back(sent(*got));
    EXPECT_EQ(first_difference(*back, record), -1);
}

TEST(nal_reconciliation, an_answer_whose_text_is_cut_delivers_what_came_before)
{
    expect_received<answer>(
        {{"10 announced, 5 there", [](answer &r) { r.field_1 = 7; }, "08 07 12 0A 61 62 63 64 65"}});
}

// ---- rec_sess_req ----

TEST(nal_reconciliation, each_row_of_a_states_request_is_sent_and_received)
{
    expect_both_ways<states_request>({
        {"nothing: the numbers are always sent", [](states_request &) {}, "08 00 10 00"},
        {"field 1", [](states_request &r) { r.field_1 = 300; }, "08 AC 02 10 00"},
        {"field 2", [](states_request &r) { r.field_2 = 65535; }, "08 00 10 FF FF 03"},
        {"a state: all its fields are always sent", [](states_request &r) { r.field_3_count = 1; },
            "08 00 10 00 1A 06 08 00 10 00 18 00"},
        {"a state",
            [](states_request &r) {
                r.field_3_count = 1;
                r.field_3[0].field_1 = 1;
                r.field_3[0].field_2 = ~uint64_t{0};
                r.field_3[0].field_3 = 300;
            },
            "08 00 10 00 1A 10 08 01 10 FF FF FF FF FF FF FF FF FF 01 18 AC 02"},
        {"states are entries in their order",
            [](states_request &r) {
                r.field_3_count = 2;
                r.field_3[0].field_1 = 1;
                r.field_3[1].field_1 = 2;
            },
            "08 00 10 00 1A 06 08 01 10 00 18 00 1A 06 08 02 10 00 18 00"},
        {"field 4", [](states_request &r) { set_text(r.field_4, "a"); }, "08 00 10 00 22 01 61"},
        {"field 5", [](states_request &r) { set_text(r.field_5, "bc"); }, "08 00 10 00 2A 02 62 63"},
    });
}

TEST(nal_reconciliation, field_6_of_a_states_request_is_received_and_never_sent)
{
    expect_sent<states_request>({{"sent", [](states_request &r) { r.field_6 = 9; }, "08 00 10 00"}});
    expect_received<states_request>({
        {"received", [](states_request &r) { r.field_6 = 9; }, "30 09"},
        {"in 8 bits", [](states_request &r) { r.field_6 = 44; }, "30 AC 02"},
    });
}

TEST(nal_reconciliation, three_states_arrive_in_three_slots)
{
    received<states_request> got("1A 02 08 01 1A 02 08 02 1A 02 10 03");
    EXPECT_EQ(got->field_3_count, 3u);
    EXPECT_EQ(got->field_3[0].field_1, 1u);
    EXPECT_EQ(got->field_3[1].field_1, 2u);
    EXPECT_EQ(got->field_3[2].field_1, 0u);
    EXPECT_EQ(got->field_3[2].field_2, 3u);
}

TEST(nal_reconciliation, of_31_states_the_first_30_arrive)
{
    wire_builder wire;
    for (uint32_t i = 1; i <= 31; ++i)
        wire.length_delimited(3, wire_builder().varint(1, i));
    received<states_request> got(wire.varint(6, 5));
    EXPECT_EQ(got->field_3_count, 30u);
    EXPECT_EQ(got->field_3[29].field_1, 30u);
    EXPECT_EQ(got->field_4[0], '\0') << "the next member is not touched";
    EXPECT_EQ(got->field_6, 5u);
}

TEST(nal_reconciliation, a_second_run_of_states_ends_the_message)
{
    expect_received<states_request>({{"1, then another run",
        [](states_request &r) {
            r.field_3_count = 1;
            r.field_3[0].field_1 = 1;
            r.field_1 = 7;
        },
        "1A 02 08 01 08 07 1A 02 08 02 10 08"}});
}

TEST(nal_reconciliation, a_state_with_a_wrong_wire_type_loses_all_states)
{
    expect_received<states_request>(
        {{"the second", [](states_request &r) { r.field_1 = 7; }, "08 07 1A 02 08 01 1A 05 0D 01 00 00 00 10 08"}});
}

// ---- rec_sess_res ----

TEST(nal_reconciliation, each_row_of_a_states_answer_is_sent_and_received)
{
    expect_both_ways<states_answer>({
        {"nothing: the numbers are always sent", [](states_answer &) {}, "08 00 18 00 20 00"},
        {"field 1", [](states_answer &r) { r.field_1 = 300; }, "08 AC 02 18 00 20 00"},
        {"states",
            [](states_answer &r) {
                r.field_2_count = 2;
                r.field_2[0].field_3 = 3;
                r.field_2[1].field_2 = 2;
            },
            "08 00 12 06 08 00 10 00 18 03 12 06 08 00 10 02 18 00 18 00 20 00"},
        {"field 3", [](states_answer &r) { r.field_3 = 200; }, "08 00 18 C8 01 20 00"},
        {"field 4", [](states_answer &r) { r.field_4 = 0xFFFFFFFF; }, "08 00 18 00 20 FF FF FF FF 0F"},
    });
}

TEST(nal_reconciliation, field_3_of_a_states_answer_keeps_8_bits)
{
    expect_received<states_answer>({
        {"300", [](states_answer &r) { r.field_3 = 44; }, "18 AC 02"},
        {"beside a list",
            [](states_answer &r) {
                r.field_2_count = 1;
                r.field_3 = 44;
            },
            "12 00 18 AC 02"},
        {"a list without it", [](states_answer &r) { r.field_2_count = 1; }, "12 00"},
    });
}

TEST(nal_reconciliation, of_31_states_in_an_answer_the_first_30_arrive)
{
    wire_builder wire;
    for (uint32_t i = 1; i <= 31; ++i)
        wire.length_delimited(2, wire_builder().varint(1, i));
    received<states_answer> got(wire.varint(3, 5));
    EXPECT_EQ(got->field_2_count, 30u);
    EXPECT_EQ(got->field_2[29].field_1, 30u);
    EXPECT_EQ(got->field_3, 5u);
    EXPECT_EQ(got->field_4, 0u);
}

} // namespace
} // namespace mava_tum_test
