// A subscriber's statistics, in both directions. The same rules apply to the answer to an operation and to a replay
// failure.
#include "nal/record_rows.h"
#include "nal/sample_records.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

using stats = tum_nal_data_subscriber_stats;
using row = record_row<stats>;

// ---- rows ----

const std::vector<row> symmetric_rows = {
    {"nothing", [](stats &) {}, ""},
    {"value 1 in 64 bits", [](stats &s) { s.value_1 = ~uint64_t{0}; }, "08 FF FF FF FF FF FF FF FF FF 01"},
    {"value 2", [](stats &s) { s.value_2 = 300; }, "10 AC 02"},
    {"value 3", [](stats &s) { s.value_3 = 3; }, "18 03"},
    {"value 4", [](stats &s) { s.value_4 = 4; }, "20 04"},
    {"value 5", [](stats &s) { s.value_5 = 0xFFFFFFFF; }, "28 FF FF FF FF 0F"},
    {"value 6, whose block is sent with it", [](stats &s) { s.value_6 = 6; }, "30 06 3A 00"},
    {"a block with its first and its last counter",
        [](stats &s) {
            s.value_6 = 6;
            s.block_7.counter[0] = 1;
            s.block_7.counter[17] = 300;
        },
        "30 06 3A 06 08 01 90 01 AC 02"},
    {"a service without a name", [](stats &s) { s.service_count = 1; }, "42 04 0A 00 12 00"},
    {"a service",
        [](stats &s) {
            s.service_count = 1;
            set_text(s.services[0].name, "gold");
            s.services[0].stats.counter[1] = 2;
        },
        "42 0A 0A 04 67 6F 6C 64 12 02 10 02"},
    {"services are entries in their order",
        [](stats &s) {
            s.service_count = 2;
            set_text(s.services[0].name, "a");
            set_text(s.services[1].name, "b");
        },
        "42 05 0A 01 61 12 00 42 05 0A 01 62 12 00"},
};

TEST(nal_statistics, each_row_is_sent_and_received)
{
    expect_both_ways(symmetric_rows);
}

TEST(nal_statistics, counter_k_is_field_k_of_its_block)
{
    for (uint32_t k = 1; k <= TUM_NAL_STATS_COUNTERS; ++k) {
        stats record = zero_record<stats>();
        record.value_6 = 1;
        record.block_7.counter[k - 1] = 1000 + k;
        const byte_vector block = wire_builder().varint(k, 1000 + k);
        const byte_vector wire = wire_builder().varint(6, 1).length_delimited(7, block);
        EXPECT_EQ(sent_hex(record), hex_of(wire)) << k;
        EXPECT_EQ(first_difference(*received<stats>(wire), record), -1) << k;
    }
}

TEST(nal_statistics, a_counter_of_zero_that_is_on_the_wire_arrives_as_zero)
{
    received<stats> got("3A 04 08 00 10 05");
    EXPECT_EQ(got->block_7.counter[0], 0u);
    EXPECT_EQ(got->block_7.counter[1], 5u);
}

// ---- the two switches ----

TEST(nal_statistics, the_switches_send_their_block_and_not_themselves)
{
    expect_sent<stats>({
        {"switch 10", [](stats &s) { s.block_10_switch = 7; }, "52 00"},
        {"switch 12", [](stats &s) { s.block_12_switch = 7; }, "62 00"},
        {"block 10",
            [](stats &s) {
                s.block_10_switch = 7;
                s.block_10.counter[0] = 9;
            },
            "52 02 08 09"},
        {"block 12",
            [](stats &s) {
                s.block_12_switch = 7;
                s.block_12.counter[17] = 9;
            },
            "62 03 90 01 09"},
    });
}

TEST(nal_statistics, a_block_whose_value_is_zero_is_not_sent_whatever_it_counts)
{
    expect_sent<stats>({
        {"block 7", [](stats &s) { s.block_7.counter[3] = 1; }, ""},
        {"block 10", [](stats &s) { s.block_10.counter[3] = 1; }, ""},
        {"block 12", [](stats &s) { s.block_12.counter[3] = 1; }, ""},
    });
}

TEST(nal_statistics, a_switch_does_not_come_back)
{
    stats record = zero_record<stats>();
    record.block_10_switch = 7;
    record.block_12_switch = 8;
    record.block_12.counter[0] = 9;
    received<stats> got(sent(record));
    EXPECT_EQ(got->block_10_switch, 0u);
    EXPECT_EQ(got->block_12_switch, 0u);
    EXPECT_EQ(got->block_12.counter[0], 9u);
}

TEST(nal_statistics, fields_9_and_11_arrive_in_the_switches)
{
    expect_received<stats>({
        {"field 9", [](stats &s) { s.block_10_switch = 7; }, "48 07"},
        {"field 11", [](stats &s) { s.block_12_switch = 300; }, "58 AC 02"},
    });
}

TEST(nal_statistics, a_block_arrives_without_the_value_before_it)
{
    expect_received<stats>({
        {"block 7", [](stats &s) { s.block_7.counter[0] = 1; }, "3A 02 08 01"},
        {"block 10", [](stats &s) { s.block_10.counter[0] = 1; }, "52 02 08 01"},
        {"block 12", [](stats &s) { s.block_12.counter[0] = 1; }, "62 02 08 01"},
    });
}

// ---- services ----

TEST(nal_statistics, a_name_whose_first_byte_is_0_is_sent_as_an_empty_one)
{
    stats record = full_statistics();
    record.service_count = 1;
    record.services[0].name[0] = '\0';
    record.services[0].stats = {};
    record.value_6 = 0;
    record.block_10_switch = 0;
    record.block_12_switch = 0;
    const byte_vector wire = sent(record);
    EXPECT_EQ(hex_of(wire.data() + wire.size() - 6, 6), "42 04 0A 00 12 00");
}

TEST(nal_statistics, a_service_without_its_fields_arrives_empty)
{
    received<stats> got("42 00 42 02 12 00 42 02 0A 00");
    stats expected = zero_record<stats>();
    expected.service_count = 3;
    EXPECT_EQ(first_difference(*got, expected), -1);
}

TEST(nal_statistics, of_258_services_the_count_is_2_and_two_arrive)
{
    wire_builder wire;
    for (uint32_t i = 0; i < 258; ++i)
        wire.length_delimited(8, wire_builder().text(1, "s" + std::to_string(i)));
    received<stats> got(wire);
    EXPECT_EQ(got->service_count, 2u);
    EXPECT_STREQ(got->services[0].name, "s0");
    EXPECT_STREQ(got->services[1].name, "s1");
    EXPECT_STREQ(got->services[2].name, "");
}

TEST(nal_statistics, of_9_services_the_first_8_arrive)
{
    wire_builder wire;
    for (uint32_t i = 0; i < 9; ++i)
        wire.length_delimited(8, wire_builder().text(1, "s" + std::to_string(i)));
    received<stats> got(wire.varint(9, 7));
    EXPECT_EQ(got->service_count, 8u);
    EXPECT_STREQ(got->services[7].name, "s7");
    EXPECT_EQ(got->block_10_switch, 7u);
}

TEST(nal_statistics, services_split_by_another_field_end_the_message)
{
    received<stats> got("42 03 0A 01 61 10 02 42 03 0A 01 62 18 03");
    stats expected = zero_record<stats>();
    expected.service_count = 1;
    set_text(expected.services[0].name, "a");
    expected.value_2 = 2;
    EXPECT_EQ(first_difference(*got, expected), -1);
}

// ---- bad input ----

TEST(nal_statistics, a_block_that_fails_delivers_its_counters_before_the_fault)
{
    expect_received<stats>({
        {"block 7", [](stats &s) { s.block_7.counter[0] = 7; }, "3A 03 08 07 15"},
        {"block 10", [](stats &s) { s.block_10.counter[0] = 7; }, "52 03 08 07 15 10 02"},
        {"block 12", [](stats &s) { s.block_12.counter[0] = 7; }, "62 03 08 07 10 10 02"},
    });
}

TEST(nal_statistics, a_block_that_occurs_twice_is_replaced_not_merged)
{
    expect_received<stats>({
        {"block 7", [](stats &s) { s.block_7.counter[1] = 8; }, "3A 02 08 07 3A 02 10 08"},
    });
    // Also inside a service.
    received<stats> got("42 08 12 02 08 07 12 02 10 08");
    EXPECT_EQ(got->services[0].stats.counter[0], 0u);
    EXPECT_EQ(got->services[0].stats.counter[1], 8u);
}

TEST(nal_statistics, a_second_name_in_a_service_loses_the_list)
{
    received<stats> got("10 02 42 06 0A 01 61 0A 01 62 18 03");
    stats expected = zero_record<stats>();
    expected.value_2 = 2;
    EXPECT_EQ(first_difference(*got, expected), -1);
}

} // namespace
} // namespace mava_tum_test
