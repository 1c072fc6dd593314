// Received batches of routes: with longer and shorter values, with more or fewer routes than slots, and malformed.
#include "nal/adapter_calls.h"
#include "nal/sample_session.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace mava_tum_test
{
namespace
{

using routes = tum_nal_data_sub_route;

template <class fill_call>
void expect_routes(std::string_view wire_hex, fill_call &&fill)
{
    routes expected = zero_record<routes>();
    fill(expected);
    received_routes got(wire_hex);
    EXPECT_EQ(first_difference(*got, expected), -1) << wire_hex;
}

void expect_part_of(const routes &got, const routes &whole, const std::string &what)
{
    routes compared = got;
    EXPECT_LE(got.ipv4_route_count, whole.ipv4_route_count) << what;
    EXPECT_LE(got.ipv6_route_count, whole.ipv6_route_count) << what;
    compared.ipv4_route_count = 0;
    compared.ipv6_route_count = 0;
    EXPECT_EQ(first_foreign_byte(compared, whole), -1) << what;
}

TEST(nal_routes_receiving, an_input_of_length_0_gives_an_all_zero_record)
{
    expect_routes("", [](routes &) {});
}

TEST(nal_routes_receiving, field_8_arrives_in_field_8_for_both_kinds)
{
    expect_routes("22 04 38 05 40 09 2A 04 38 06 40 0A", [](routes &r) {
        r.ipv4_route_count = 1;
        r.ipv4_routes[0].field_7 = 5;
        r.ipv4_routes[0].field_8 = 9;
        r.ipv6_route_count = 1;
        r.ipv6_routes[0].field_7 = 6;
        r.ipv6_routes[0].field_8 = 10;
    });
}

TEST(nal_routes_receiving, members_narrower_than_their_field_keep_the_low_bits)
{
    expect_routes("10 C5 C6 04 22 04 20 C5 C6 04 2A 04 20 C5 C6 04", [](routes &r) {
        r.field_2 = 0x2345;
        r.ipv4_route_count = 1;
        r.ipv4_routes[0].field_4 = 0x45;
        r.ipv6_route_count = 1;
        r.ipv6_routes[0].field_4 = 0x45;
    });
}

TEST(nal_routes_receiving, texts_are_cut_to_32_32_and_64_characters)
{
    for (std::size_t length :
        std::initializer_list<std::size_t>{0, 1, 31, 32, 33, 35, 36, 40, 63, 64, 65, 67, 68, 1000}) {
        const std::string text(length, 't');
        const wire_builder route = wire_builder().text(2, text).text(6, text).text(9, text);
        received_routes got(wire_builder().length_delimited(4, route).length_delimited(5, route));
        routes expected = zero_record<routes>();
        expected.ipv4_route_count = 1;
        expected.ipv6_route_count = 1;
        set_text(expected.ipv4_routes[0].field_2, text.substr(0, 32));
        set_text(expected.ipv4_routes[0].field_6, text.substr(0, 32));
        set_text(expected.ipv4_routes[0].field_9, text.substr(0, 64));
        set_text(expected.ipv6_routes[0].field_2, text.substr(0, 32));
        set_text(expected.ipv6_routes[0].field_6, text.substr(0, 32));
        set_text(expected.ipv6_routes[0].field_9, text.substr(0, 64));
        EXPECT_EQ(first_difference(*got, expected), -1) << length;
    }
}

TEST(nal_routes_receiving, of_an_ipv6_address_at_most_16_bytes_arrive_and_a_shorter_one_is_followed_by_zeros)
{
    for (std::size_t length : std::initializer_list<std::size_t>{0, 1, 4, 15, 16, 17, 40, 5000}) {
        const wire_builder route = wire_builder()
                                       .length_delimited(3, byte_vector(length, 0xA3))
                                       .length_delimited(5, byte_vector(length, 0xA5));
        // In the last slot, where one byte too many would be outside the array.
        wire_builder wire;
        for (int i = 0; i < 49; ++i)
            wire.raw("2A 00");
        received_routes got(wire.length_delimited(5, route));
        routes expected = zero_record<routes>();
        expected.ipv6_route_count = 50;
        const std::size_t kept = std::min<std::size_t>(length, 16);
        std::memset(expected.ipv6_routes[49].field_3, 0xA3, kept);
        std::memset(expected.ipv6_routes[49].field_5, 0xA5, kept);
        EXPECT_EQ(first_difference(*got, expected), -1) << length;
    }
}

TEST(nal_routes_receiving, a_count_is_taken_modulo_256_and_then_kept_within_the_slots)
{
    for (std::size_t count :
        std::initializer_list<std::size_t>{1, 49, 50, 51, 255, 256, 257, 258, 300, 306, 307, 512, 600}) {
        wire_builder ipv4;
        wire_builder ipv6;
        for (std::size_t i = 0; i < count; ++i) {
            ipv4.length_delimited(4, wire_builder().varint(1, i + 1));
            ipv6.length_delimited(5, wire_builder().varint(1, i + 1001));
        }
        const uint8_t kept = static_cast<uint8_t>(std::min<std::size_t>(count % 256, 50));
        routes expected = zero_record<routes>();
        expected.ipv4_route_count = kept;
        expected.ipv6_route_count = kept;
        expected.field_6 = 6;
        for (uint8_t i = 0; i < kept; ++i) {
            expected.ipv4_routes[i].field_1 = i + 1u;
            expected.ipv6_routes[i].field_1 = i + 1001u;
        }
        received_routes got(wire_builder().raw(ipv4.bytes()).raw(ipv6.bytes()).varint(6, 6));
        EXPECT_EQ(first_difference(*got, expected), -1) << count;
    }
}

TEST(nal_routes_receiving, a_list_of_empty_elements_is_counted)
{
    expect_routes("22 00 22 00 22 00 2A 00", [](routes &r) {
        r.ipv4_route_count = 3;
        r.ipv6_route_count = 1;
    });
}

TEST(nal_routes_receiving, a_second_run_ends_the_message_and_what_came_before_arrives)
{
    expect_routes("22 02 08 01 08 07 22 02 08 02 30 06", [](routes &r) {
        r.ipv4_route_count = 1;
        r.ipv4_routes[0].field_1 = 1;
        r.field_1 = 7;
    });
}

TEST(nal_routes_receiving, a_list_with_a_failing_element_does_not_arrive)
{
    expect_routes("08 07 22 03 12 01 61 22 01 08 30 06", [](routes &r) { r.field_1 = 7; });
    expect_routes("08 07 2A 03 12 01 61 2A 02 0D 00 30 06", [](routes &r) { r.field_1 = 7; });
    expect_routes("08 07 22 02 08 01 22 09 30 06", [](routes &r) { r.field_1 = 7; });
}

TEST(nal_routes_receiving, every_cut_of_a_message_delivers_a_part_of_it)
{
    routes whole = full_routes();
    whole.ipv4_route_count = 3;
    whole.ipv6_route_count = 3;
    const byte_vector wire = sent(whole);
    for (std::size_t length = 0; length < wire.size(); ++length) {
        received_routes got(byte_vector(wire.begin(), wire.begin() + static_cast<std::ptrdiff_t>(length)));
        expect_part_of(*got, whole, "cut at " + std::to_string(length));
        ASSERT_EQ(got->field_1, length >= 6 ? whole.field_1 : 0u) << length;
        ASSERT_EQ(got->field_6, 0u) << length;
    }
}

TEST(nal_routes_receiving, of_two_lists_the_one_before_the_fault_arrives_and_the_one_with_it_does_not)
{
    routes whole = full_routes();
    byte_vector wire = sent(whole);
    received_routes got(wire);
    // The length of the last text in the last element reaches beyond the element.
    const byte_vector last_text = wire_builder().text(9, whole.ipv6_routes[49].field_9);
    const auto at = std::search(wire.begin(), wire.end(), last_text.begin(), last_text.end());
    ASSERT_NE(at, wire.end());
    at[1] = static_cast<uint8_t>(at[1] + 1);
    whole.ipv6_route_count = 0;
    std::memset(static_cast<void *>(whole.ipv6_routes), 0, sizeof whole.ipv6_routes);
    whole.field_6 = 0; // behind the lists
    EXPECT_EQ(first_difference(*received_routes(wire), whole), -1);
}

TEST(nal_routes_receiving, damaged_messages_stay_inside_the_record)
{
    routes whole = full_routes();
    whole.ipv4_route_count = 5;
    whole.ipv6_route_count = 5;
    const byte_vector wire = sent(whole);
    std::mt19937 random(22);
    std::size_t changed = 0;
    for (int round = 0; round < 3000; ++round) {
        byte_vector damaged = wire;
        for (std::size_t hits = random() % 6 + 1; hits > 0; --hits)
            damaged[random() % damaged.size()] = static_cast<uint8_t>(random());
        received_routes got(damaged);
        changed += first_difference(*got, *received_routes(wire)) != -1;
        ASSERT_LE(got->ipv4_route_count, 50);
        ASSERT_LE(got->ipv6_route_count, 50);
        ASSERT_GE(sent(*got).size(), 8u);
    }
    EXPECT_GT(changed, 2000u);
}

} // namespace
} // namespace mava_tum_test
