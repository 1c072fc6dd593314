// Batches of routes, in both directions. The same rules apply to routes in a session.
#include "nal/adapter_calls.h"
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

using routes = tum_nal_data_sub_route;

// ---- rows ----

struct route_row {
    const char *what;
    void (*fill)(routes &record);
    const char *wire; // between field 3 and field 6, which are zero
};

std::vector<route_row> ipv4_rows()
{
    return {
        {"no routes", [](routes &) {}, ""},
        {"an empty route", [](routes &r) { r.ipv4_route_count = 1; }, "22 02 08 00"},
        {"scalars of a route",
            [](routes &r) {
                r.ipv4_route_count = 1;
                r.ipv4_routes[0].field_1 = 300;
                r.ipv4_routes[0].field_4 = 255;
                r.ipv4_routes[0].field_7 = 0xFFFFFFFF;
            },
            "22 0C 08 AC 02 20 FF 01 38 FF FF FF FF 0F"},
        {"addresses of a route",
            [](routes &r) {
                r.ipv4_route_count = 1;
                r.ipv4_routes[0].field_3 = 0xC0000200;
                r.ipv4_routes[0].field_5 = 0xC6336401;
            },
            "22 0C 08 00 1D C0 00 02 00 2D C6 33 64 01"},
        {"texts of a route",
            [](routes &r) {
                r.ipv4_route_count = 1;
                set_text(r.ipv4_routes[0].field_2, "ab");
                set_text(r.ipv4_routes[0].field_6, "c");
                set_text(r.ipv4_routes[0].field_9, "def");
            },
            "22 0E 08 00 12 02 61 62 32 01 63 4A 03 64 65 66"},
        {"two routes are two entries",
            [](routes &r) {
                r.ipv4_route_count = 2;
                r.ipv4_routes[0].field_1 = 1;
                r.ipv4_routes[1].field_1 = 200;
            },
            "22 02 08 01 22 03 08 C8 01"},
    };
}

std::vector<route_row> ipv6_rows()
{
    return {
        {"an empty route", [](routes &r) { r.ipv6_route_count = 1; }, "2A 02 08 00"},
        {"scalars of a route",
            [](routes &r) {
                r.ipv6_route_count = 1;
                r.ipv6_routes[0].field_1 = 300;
                r.ipv6_routes[0].field_4 = 128;
                r.ipv6_routes[0].field_7 = 7;
                r.ipv6_routes[0].field_8 = 8;
            },
            "2A 0A 08 AC 02 20 80 01 38 07 40 08"},
        {"the first address, non-zero in its last byte",
            [](routes &r) {
                r.ipv6_route_count = 1;
                r.ipv6_routes[0].field_3[15] = 1;
            },
            "2A 14 08 00 1A 10 00000000 00000000 00000000 00000001"},
        {"the second address, non-zero in its first byte",
            [](routes &r) {
                r.ipv6_route_count = 1;
                r.ipv6_routes[0].field_5[0] = 0x20;
            },
            "2A 14 08 00 2A 10 20000000 00000000 00000000 00000000"},
        {"texts of a route",
            [](routes &r) {
                r.ipv6_route_count = 1;
                set_text(r.ipv6_routes[0].field_2, "ab");
                set_text(r.ipv6_routes[0].field_6, "c");
                set_text(r.ipv6_routes[0].field_9, "def");
            },
            "2A 0E 08 00 12 02 61 62 32 01 63 4A 03 64 65 66"},
        {"routes of both kinds",
            [](routes &r) {
                r.ipv4_route_count = 1;
                r.ipv6_route_count = 2;
                r.ipv6_routes[1].field_1 = 9;
            },
            "22 02 08 00 2A 02 08 00 2A 02 08 09"},
    };
}

std::vector<route_row> all_rows()
{
    std::vector<route_row> rows = ipv4_rows();
    for (const route_row &row : ipv6_rows())
        rows.push_back(row);
    return rows;
}

byte_vector wire_of(const route_row &row)
{
    return joined({bytes_of("08 00 10 00 18 00"), bytes_of(row.wire), bytes_of("30 00")});
}

routes record_of(const route_row &row)
{
    routes record = zero_record<routes>();
    row.fill(record);
    return record;
}

TEST(nal_routes, the_four_values_are_always_sent)
{
    EXPECT_EQ(sent_hex(zero_record<routes>()), "08 00 10 00 18 00 30 00");
    routes record = zero_record<routes>();
    record.field_1 = 1;
    record.field_2 = 0xFFFF;
    record.field_3 = 0xFFFFFFFF;
    record.field_6 = 300;
    EXPECT_EQ(sent_hex(record), "08 01 10 FF FF 03 18 FF FF FF FF 0F 30 AC 02");
    EXPECT_EQ(first_difference(*received_routes(sent(record)), record), -1);
}

TEST(nal_routes, each_row_is_sent_as_its_bytes)
{
    for (const route_row &row : all_rows())
        EXPECT_EQ(sent_hex(record_of(row)), hex_of(wire_of(row))) << row.what << ": " << row.wire;
}

TEST(nal_routes, the_bytes_of_each_row_are_received_as_its_record)
{
    for (const route_row &row : all_rows())
        EXPECT_EQ(first_difference(*received_routes(wire_of(row)), record_of(row)), -1) << row.what << ": " << row.wire;
}

TEST(nal_routes, a_full_batch_comes_back)
{
    const routes record = full_routes();
    received_routes got(sent(record));
    EXPECT_EQ(first_difference(*got, record), -1);
}

// ---- sending ----

TEST(nal_routes, field_8_of_an_ipv4_route_is_sent_as_field_7)
{
    routes record = zero_record<routes>();
    record.ipv4_route_count = 2;
    record.ipv4_routes[0].field_7 = 5;
    record.ipv4_routes[0].field_8 = 9;
    record.ipv4_routes[1].field_8 = 9;
    EXPECT_EQ(sent_hex(record), "08 00 10 00 18 00 22 04 08 00 38 09 22 04 08 00 38 09 30 00");
    received_routes got(sent(record));
    EXPECT_EQ(got->ipv4_routes[0].field_7, 9u);
    EXPECT_EQ(got->ipv4_routes[0].field_8, 0u);
}

TEST(nal_routes, a_text_of_35_or_67_characters_is_sent_whole)
{
    routes record = zero_record<routes>();
    record.ipv4_route_count = 1;
    record.ipv6_route_count = 1;
    set_text(record.ipv4_routes[0].field_2, std::string(35, 'a'));
    set_text(record.ipv6_routes[0].field_9, std::string(67, 'b'));
    const wire_builder ipv4 = wire_builder().varint(1, 0).text(2, std::string(35, 'a'));
    const wire_builder ipv6 = wire_builder().varint(1, 0).text(9, std::string(67, 'b'));
    const byte_vector expected =
        wire_builder().raw("08 00 10 00 18 00").length_delimited(4, ipv4).length_delimited(5, ipv6).raw("30 00");
    EXPECT_EQ(sent_hex(record), hex_of(expected));
}

TEST(nal_routes, a_text_whose_first_byte_is_0_is_absent_whatever_follows)
{
    routes record = full_routes();
    record.ipv4_route_count = 1;
    record.ipv6_route_count = 1;
    for (char *text : {record.ipv4_routes[0].field_2, record.ipv4_routes[0].field_6, record.ipv4_routes[0].field_9,
             record.ipv6_routes[0].field_2, record.ipv6_routes[0].field_6, record.ipv6_routes[0].field_9})
        text[0] = '\0';
    received_routes got(sent(record));
    EXPECT_EQ(got->ipv4_routes[0].field_1, record.ipv4_routes[0].field_1);
    for (const char *text : {got->ipv4_routes[0].field_2, got->ipv4_routes[0].field_6, got->ipv4_routes[0].field_9,
             got->ipv6_routes[0].field_2, got->ipv6_routes[0].field_6, got->ipv6_routes[0].field_9})
        EXPECT_STREQ(text, "");
}

TEST(nal_routes, counts_above_the_slots_send_the_slots)
{
    const routes all_slots = full_routes();
    for (int count : {51, 100, 255}) {
        routes record = all_slots;
        record.ipv4_route_count = static_cast<uint8_t>(count);
        record.ipv6_route_count = static_cast<uint8_t>(count);
        EXPECT_EQ(sent(record), sent(all_slots)) << count;
    }
}

TEST(nal_routes, slots_beyond_the_count_are_not_read)
{
    routes record = full_routes();
    record.ipv4_route_count = 3;
    record.ipv6_route_count = 49;
    const byte_vector wire = sent(record);
    std::memset(&record.ipv4_routes[3], 'x', 47 * sizeof record.ipv4_routes[0]); // texts without a NUL
    std::memset(&record.ipv6_routes[49], 'x', sizeof record.ipv6_routes[0]);
    EXPECT_EQ(sent(record), wire);
}

TEST(nal_routes, every_capacity_gives_the_size_and_a_prefix)
{
    routes record = full_routes();
    record.ipv4_route_count = 2;
    record.ipv6_route_count = 2;
    expect_every_capacity_gives_a_prefix(record, 64);
}

// ---- the answer to a batch ----

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
