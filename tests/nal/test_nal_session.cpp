// The removal of a session and the answer to an operation, in both directions.
#include "nal/record_rows.h"
#include "nal/sample_records.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

using removal = tum_nal_data_session_delete;
using operation = tum_nal_data_sess_oper_resp;

// ---- session_delete ----

TEST(nal_session, each_row_of_a_removal_is_sent_and_received)
{
    expect_both_ways<removal>({
        {"nothing", [](removal &) {}, "08 00"},
        {"field 1", [](removal &r) { r.field_1 = 5; }, "08 05"},
        {"field 2", [](removal &r) { r.field_2 = 300; }, "08 00 10 AC 02"},
        {"field 3", [](removal &r) { r.field_3 = 65535; }, "08 00 18 FF FF 03"},
        {"field 4 in 64 bits", [](removal &r) { r.field_4 = ~uint64_t{0}; }, "08 00 20 FF FF FF FF FF FF FF FF FF 01"},
        {"field 5", [](removal &r) { r.field_5 = 0xFFFFFFFF; }, "08 00 28 FF FF FF FF 0F"},
    });
}

TEST(nal_session, the_first_field_of_a_removal_is_sent_up_to_5_and_left_out_above)
{
    for (uint32_t value = 0; value <= 5; ++value) {
        removal record = zero_record<removal>();
        record.field_1 = value;
        EXPECT_EQ(sent_hex(record), "08 0" + std::to_string(value));
    }
    for (uint32_t value : {6u, 7u, 255u, 256u, 0x80000000u, 0xFFFFFFFFu}) {
        removal record = zero_record<removal>();
        record.field_1 = value;
        record.field_2 = 1;
        EXPECT_EQ(sent_hex(record), "10 01") << value;
        EXPECT_EQ(received<removal>(sent(record))->field_1, 0u) << value;
    }
}

TEST(nal_session, a_larger_first_field_of_a_removal_is_received_all_the_same)
{
    expect_received<removal>({{"6", [](removal &r) { r.field_1 = 6; }, "08 06"}});
}

TEST(nal_session, field_3_of_a_removal_keeps_16_bits)
{
    expect_received<removal>({{"70000", [](removal &r) { r.field_3 = 4464; }, "18 F0 A2 04"}});
}

// ---- sess_oper_resp ----

TEST(nal_session, each_row_of_an_answer_is_sent_and_received)
{
    expect_both_ways<operation>({
        {"nothing", [](operation &) {}, "08 00 4A 00"},
        {"field 1", [](operation &r) { r.field_1 = 300; }, "08 AC 02 4A 00"},
        {"field 2", [](operation &r) { r.field_2 = 2; }, "08 00 10 02 4A 00"},
        {"field 3", [](operation &r) { r.field_3 = 3; }, "08 00 18 03 4A 00"},
        {"field 4 in 64 bits", [](operation &r) { r.field_4 = uint64_t{1} << 63; },
            "08 00 20 80 80 80 80 80 80 80 80 80 01 4A 00"},
        {"field 5", [](operation &r) { r.field_5 = 5; }, "08 00 28 05 4A 00"},
        {"field 6", [](operation &r) { set_text(r.field_6, "a"); }, "08 00 32 01 61 4A 00"},
        {"field 7", [](operation &r) { set_text(r.field_7, "bc"); }, "08 00 3A 02 62 63 4A 00"},
        {"field 8", [](operation &r) { set_text(r.field_8, "d"); }, "08 00 42 01 64 4A 00"},
        {"statistics",
            [](operation &r) {
                r.field_9.value_2 = 2;
                r.field_9.service_count = 1;
                set_text(r.field_9.services[0].name, "s");
            },
            "08 00 4A 09 10 02 42 05 0A 01 73 12 00"},
    });
}

TEST(nal_session, the_statistics_of_an_answer_follow_the_rules_of_statistics)
{
    operation record = zero_record<operation>();
    record.field_9 = full_statistics();
    const byte_vector wire = wire_builder().varint(1, 0).length_delimited(9, sent(record.field_9));
    EXPECT_EQ(sent(record), wire);
    EXPECT_EQ(first_difference(received<operation>(wire)->field_9, without_switches(record.field_9)), -1);
}

TEST(nal_session, an_answer_without_statistics_leaves_them_zero)
{
    received<operation> got("08 07 10 02");
    EXPECT_EQ(got->field_1, 7u);
    EXPECT_EQ(first_difference(got->field_9, zero_record<tum_nal_data_subscriber_stats>()), -1);
}

TEST(nal_session, field_10_of_an_answer_is_dropped)
{
    received<operation> got("08 07 52 03 61 62 63 10 02");
    operation expected = zero_record<operation>();
    expected.field_1 = 7;
    expected.field_2 = 2;
    EXPECT_EQ(first_difference(*got, expected), -1);
}

TEST(nal_session, a_text_of_70_characters_in_an_answer_arrives_cut_to_64)
{
    for (uint32_t field : {6u, 7u, 8u}) {
        received<operation> got(wire_builder().text(field, std::string(70, 'x')));
        const char *texts[] = {got->field_6, got->field_7, got->field_8};
        EXPECT_EQ(std::string(texts[field - 6]), std::string(64, 'x'));
    }
}

TEST(nal_session, a_text_of_an_answer_whose_first_byte_is_0_is_absent_whatever_follows)
{
    operation record = full_sess_oper_resp();
    record.field_9 = zero_record<tum_nal_data_subscriber_stats>();
    operation without = record;
    for (char *text : {record.field_6, record.field_7, record.field_8})
        text[0] = '\0';
    for (char *text : {without.field_6, without.field_7, without.field_8})
        std::memset(text, 0, sizeof without.field_6);
    EXPECT_NE(std::memcmp(&record, &without, sizeof record), 0);
    EXPECT_EQ(sent(record), sent(without));
}

TEST(nal_session, statistics_that_fail_part_way_deliver_what_they_held)
{
    expect_received<operation>({
        {"a wrong wire type after a value", [](operation &r) { r.field_9.value_2 = 7; }, "4A 03 10 07 1D 10 02"},
        {"a block that is cut",
            [](operation &r) {
                r.field_9.value_2 = 7;
                r.field_9.block_7.counter[0] = 8;
            },
            "4A 07 10 07 3A 03 08 08 10 10 02"},
        {"a list that fails", [](operation &r) { r.field_9.value_2 = 7; }, "4A 09 10 07 42 02 0A 00 42 01 0D"},
    });
}

TEST(nal_session, of_statistics_that_occur_twice_only_the_second_arrive)
{
    received<operation> got("4A 09 10 07 42 05 0A 01 61 12 00 4A 07 42 05 0A 01 62 12 00");
    operation expected = zero_record<operation>();
    expected.field_9.service_count = 1;
    set_text(expected.field_9.services[0].name, "b");
    EXPECT_EQ(first_difference(*got, expected), -1);
}

TEST(nal_session, of_many_occurrences_of_the_statistics_the_last_arrives)
{
    wire_builder wire;
    for (int i = 0; i < 1000; ++i)
        wire.raw("4A 0C 42 05 0A 01 61 12 00 42 03 0A 01 62");
    received<operation> got(wire);
    operation expected = zero_record<operation>();
    expected.field_9.service_count = 2;
    set_text(expected.field_9.services[0].name, "a");
    set_text(expected.field_9.services[1].name, "b");
    EXPECT_EQ(first_difference(*got, expected), -1);
}

TEST(nal_session, a_second_text_in_an_answer_ends_the_message)
{
    received<operation> got("32 01 61 32 01 62 10 02");
    operation expected = zero_record<operation>();
    set_text(expected.field_6, "a");
    EXPECT_EQ(first_difference(*got, expected), -1);
}

} // namespace
} // namespace mava_tum_test
