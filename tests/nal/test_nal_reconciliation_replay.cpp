// Replay of sessions and its answer, in both directions.
#include "nal/record_rows.h"
#include "nal/sample_records.h"
#include "nal/sample_session.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

using request_sent = tum_nal_data_rec_sess_replay_req_encode;
using request_received = tum_nal_data_rec_sess_replay_req_decode;
using replay_answer = tum_nal_data_rec_sess_replay_resp;

static_assert(sizeof(request_sent) == sizeof(request_received));

// ---- rec_sess_replay_req ----

TEST(nal_reconciliation_replay, each_row_of_a_request_is_sent)
{
    expect_sent<request_sent>({
        {"nothing: the numbers are always sent", [](request_sent &) {}, "08 00 10 00 18 00 28 00"},
        {"field 1", [](request_sent &r) { r.field_1 = 300; }, "08 AC 02 10 00 18 00 28 00"},
        {"field 2", [](request_sent &r) { r.field_2 = 65535; }, "08 00 10 FF FF 03 18 00 28 00"},
        {"field 3", [](request_sent &r) { r.field_3 = 0xFFFFFFFF; }, "08 00 10 00 18 FF FF FF FF 0F 28 00"},
        {"a session", [](request_sent &r) { r.field_4_count = 1; },
            "08 00 10 00 18 00 22 10 08 00 10 00 18 00 20 00 28 00 38 00 52 02 1A 00 28 00"},
        {"field 5", [](request_sent &r) { r.field_5 = 255; }, "08 00 10 00 18 00 28 FF 01"},
        {"field 6", [](request_sent &r) { set_text(r.field_6, "ab"); }, "08 00 10 00 18 00 28 00 32 02 61 62"},
    });
}

TEST(nal_reconciliation_replay, each_row_of_a_request_is_received_into_the_other_layout)
{
    expect_received<request_received>({
        {"nothing", [](request_received &) {}, "08 00 10 00 18 00 28 00"},
        {"field 1", [](request_received &r) { r.field_1 = 300; }, "08 AC 02"},
        {"field 2 in 16 bits", [](request_received &r) { r.field_2 = 4464; }, "10 F0 A2 04"},
        {"field 3", [](request_received &r) { r.field_3 = 0xFFFFFFFF; }, "18 FF FF FF FF 0F"},
        {"a session",
            [](request_received &r) {
                r.field_4_count = 1;
                r.field_4[0].session_value_1 = 7;
                set_text(r.field_4[0].session_name, "a");
            },
            "22 07 08 07 52 03 2A 01 61"},
        {"an empty session", [](request_received &r) { r.field_4_count = 1; }, "22 00"},
        {"field 5 in 8 bits", [](request_received &r) { r.field_5 = 44; }, "28 AC 02"},
        {"field 6", [](request_received &r) { set_text(r.field_6, "ab"); }, "32 02 61 62"},
    });
}

TEST(nal_reconciliation_replay, the_text_of_a_request_moves_from_the_first_bytes_to_the_end)
{
    request_sent record = zero_record<request_sent>();
    set_text(record.field_6, "moved");
    received<request_received> got(sent(record));
    EXPECT_EQ(std::memcmp(&record, "moved", 6), 0);
    const char *bytes = reinterpret_cast<const char *>(&*got);
    EXPECT_EQ(std::memcmp(bytes + 8865, "moved", 6), 0);
    EXPECT_EQ(std::memcmp(bytes, "\0\0\0\0\0", 5), 0);
}

TEST(nal_reconciliation_replay, a_session_in_a_request_follows_the_rules_of_sessions)
{
    const request_sent record = full_rec_sess_replay_req();
    const byte_vector wire = sent(record);
    const byte_vector expected = wire_builder()
                                     .varint(1, record.field_1)
                                     .varint(2, record.field_2)
                                     .varint(3, record.field_3)
                                     .length_delimited(4, sent(full_session()))
                                     .varint(5, record.field_5)
                                     .text(6, record.field_6);
    EXPECT_EQ(wire, expected);
    EXPECT_EQ(first_difference(received<request_received>(wire)->field_4[0], full_session()), -1);
}

TEST(nal_reconciliation_replay, of_two_sessions_the_first_arrives)
{
    received<request_received> got("22 02 08 07 22 02 08 08 28 05");
    EXPECT_EQ(got->field_4_count, 1u);
    EXPECT_EQ(got->field_4[0].session_value_1, 7u);
    EXPECT_EQ(got->field_5, 5u);
}

TEST(nal_reconciliation_replay, a_session_that_fails_does_not_arrive)
{
    expect_received<request_received>({{"a wrong wire type", [](request_received &r) { r.field_1 = 7; },
        "08 07 22 07 08 07 52 05 2A 01 61 0D 28 05"}});
}

TEST(nal_reconciliation_replay, a_replaced_record_of_a_session_leaves_nothing_behind)
{
    received<request_received> got("22 0D 52 06 2A 01 61 3A 01 63 52 03 2A 01 62");
    request_received expected = zero_record<request_received>();
    expected.field_4_count = 1;
    set_text(expected.field_4[0].session_name, "b");
    EXPECT_EQ(first_difference(*got, expected), -1);
}

// ---- rec_sess_replay_resp ----

TEST(nal_reconciliation_replay, each_row_of_an_answer_is_sent_and_received)
{
    expect_both_ways<replay_answer>({
        {"nothing: the numbers are always sent", [](replay_answer &) {}, "08 00 28 00"},
        {"field 1", [](replay_answer &r) { r.field_1 = 300; }, "08 AC 02 28 00"},
        {"a failure: all its fields are always sent", [](replay_answer &r) { r.field_2_count = 1; },
            "08 00 12 06 08 00 10 00 1A 00 28 00"},
        {"a failure",
            [](replay_answer &r) {
                r.field_2_count = 1;
                r.field_2[0].field_1 = ~uint64_t{0};
                r.field_2[0].field_2 = 300;
                r.field_2[0].field_3.value_2 = 2;
            },
            "08 00 12 12 08 FF FF FF FF FF FF FF FF FF 01 10 AC 02 1A 02 10 02 28 00"},
        {"a start, whose numbers are always sent", [](replay_answer &r) { r.field_3_count = 1; },
            "08 00 1A 08 08 00 10 00 18 00 20 00 28 00"},
        {"the numbers of a start",
            [](replay_answer &r) {
                r.field_3_count = 1;
                r.field_3[0].field_1 = uint64_t{1} << 63;
                r.field_3[0].field_2 = 2;
                r.field_3[0].field_3 = 3;
                r.field_3[0].field_4 = 300;
            },
            "08 00 1A 12 08 80 80 80 80 80 80 80 80 80 01 10 02 18 03 20 AC 02 28 00"},
        {"the texts of a start, empty ones too",
            [](replay_answer &r) {
                r.field_3_count = 1;
                r.field_3[0].field_5_count = 3;
                set_text(r.field_3[0].field_5[0], "a");
                set_text(r.field_3[0].field_5[2], "bc");
            },
            "08 00 1A 11 08 00 10 00 18 00 20 00 2A 01 61 2A 00 2A 02 62 63 28 00"},
        {"field 4", [](replay_answer &r) { set_text(r.field_4, "a"); }, "08 00 22 01 61 28 00"},
        {"field 5", [](replay_answer &r) { r.field_5 = 0xFFFFFFFF; }, "08 00 28 FF FF FF FF 0F"},
    });
}

TEST(nal_reconciliation_replay, texts_of_a_start_beyond_its_count_are_not_sent)
{
    replay_answer record = full_rec_sess_replay_resp();
    record.field_2_count = 0;
    record.field_3[0].field_5_count = 0;
    received<replay_answer> got(sent(record));
    EXPECT_EQ(got->field_3[0].field_4, record.field_3[0].field_4);
    EXPECT_EQ(got->field_3[0].field_5_count, 0u);
    EXPECT_EQ(got->field_3[0].field_5[0][0], '\0');
}

TEST(nal_reconciliation_replay, of_two_failures_and_two_starts_the_first_arrive)
{
    expect_received<replay_answer>({{"two of each",
        [](replay_answer &r) {
            r.field_2_count = 1;
            r.field_2[0].field_2 = 1;
            r.field_3_count = 1;
            r.field_3[0].field_2 = 3;
            r.field_5 = 5;
        },
        "12 02 10 01 12 02 10 02 1A 02 10 03 1A 02 10 04 28 05"}});
}

TEST(nal_reconciliation_replay, starts_may_arrive_before_failures)
{
    expect_received<replay_answer>({{"the other way round",
        [](replay_answer &r) {
            r.field_2_count = 1;
            r.field_2[0].field_2 = 1;
            r.field_3_count = 1;
            r.field_3[0].field_2 = 3;
        },
        "1A 02 10 03 12 02 10 01"}});
}

TEST(nal_reconciliation_replay, of_nine_texts_of_a_start_the_first_eight_arrive)
{
    wire_builder start;
    for (int i = 0; i < 9; ++i)
        start.text(5, "t" + std::to_string(i));
    received<replay_answer> got(wire_builder().length_delimited(3, start).varint(5, 7));
    EXPECT_EQ(got->field_3[0].field_5_count, 8u);
    EXPECT_STREQ(got->field_3[0].field_5[7], "t7");
    EXPECT_STREQ(got->field_4, "");
    EXPECT_EQ(got->field_5, 7u);
}

TEST(nal_reconciliation_replay, of_258_texts_of_a_start_the_count_is_2)
{
    wire_builder start;
    for (int i = 0; i < 258; ++i)
        start.text(5, "t");
    received<replay_answer> got(wire_builder().length_delimited(3, start));
    EXPECT_EQ(got->field_3[0].field_5_count, 2u);
    EXPECT_STREQ(got->field_3[0].field_5[1], "t");
    EXPECT_STREQ(got->field_3[0].field_5[2], "");
}

TEST(nal_reconciliation_replay, statistics_that_a_failure_holds_without_marking_them_arrive)
{
    // If the failure in a codec record has values but no bit for field 3, field 3 is still sent, and the values arrive.
    mava_tum_rec_sess_replay_fail failure = {};
    failure.field_3.field_2 = 7;
    failure.field_3.presence_mask = 0x02;
    mava_tum_rec_sess_replay_resp message = {};
    message.field_2 = &failure;
    message.field_2_count = 1;
    message.presence_mask = 0x02;
    uint8_t wire[32];
    const uint64_t size = mava_tum_rec_sess_replay_resp_encode_ext(&message, wire, sizeof wire, nullptr, nullptr);
    ASSERT_EQ(hex_of(wire, size), "12 04 1A 02 10 07");
    received<replay_answer> got(byte_vector(wire, wire + size));
    EXPECT_EQ(got->field_2[0].field_3.value_2, 7u);
}

TEST(nal_reconciliation_replay, of_statistics_that_occur_twice_in_a_failure_only_the_second_arrive)
{
    received<replay_answer> got("12 12 1A 07 42 05 0A 01 61 12 00 1A 07 42 05 0A 01 62 12 00");
    EXPECT_EQ(got->field_2[0].field_3.service_count, 1u);
    EXPECT_STREQ(got->field_2[0].field_3.services[0].name, "b");
}

TEST(nal_reconciliation_replay, a_failure_that_fails_does_not_arrive)
{
    expect_received<replay_answer>({
        {"its second statistics are malformed", [](replay_answer &r) { r.field_1 = 7; },
            "08 07 12 0C 1A 07 42 05 0A 01 61 12 00 1A 01 80 28 05"},
        {"its statistics have a wrong wire type", [](replay_answer &r) { r.field_1 = 7; }, "08 07 12 04 1A 02 0D 00 28 05"},
    });
}

TEST(nal_reconciliation_replay, a_start_with_two_runs_of_texts_does_not_arrive)
{
    received<replay_answer> got("08 07 1A 08 2A 01 61 10 02 2A 01 62 28 05");
    replay_answer expected = zero_record<replay_answer>();
    expected.field_1 = 7;
    EXPECT_EQ(first_difference(*got, expected), -1);
}

} // namespace
} // namespace mava_tum_test
