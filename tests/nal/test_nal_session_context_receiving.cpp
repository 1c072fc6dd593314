// Rules for received sessions: presence bits, truncated texts and bytes, narrow members.
#include "nal/adapter_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace mava_tum_test
{
namespace
{

using session = tum_nal_data_session_context;

// The record that is received from `wire` is the all-zero record after `fill`.
template <class fill_call>
void expect_context(std::string_view wire_hex, fill_call &&fill)
{
    session expected = zero_record<session>();
    fill(expected);
    received_session got(wire_hex);
    EXPECT_EQ(first_difference(*got, expected), -1) << wire_hex;
}

TEST(nal_session_context_receiving, ipv6_values_arrive_with_their_part_and_not_without_it)
{
    expect_context("4A 04 28 05 38 07", [](session &) {});
    expect_context("4A 02 1A 00", [](session &) {});
    expect_context("4A 04 1A 00 28 05", [](session &s) { s.ipv6_value_5 = 5; });
    expect_context("4A 06 1A 00 28 05 38 07", [](session &s) { s.ipv6_value_5 = 5; });
    expect_context("4A 04 38 07 32 00", [](session &s) { s.ipv6_value_7 = 7; });
}

TEST(nal_session_context_receiving, conditions_of_the_sender_do_not_bind_the_receiver)
{
    // IPv4 value without an address, both pairs of L2TP end points, L2TP 16 and 18 without 15 and 17.
    expect_context("42 02 08 07", [](session &s) { s.ipv4_value_1 = 7; });
    expect_context("52 0D 22 0B 15 C0 00 02 02 22 01 AA 80 01 10", [](session &s) {
        s.l2tp_ipv4_2 = 0xC0000202;
        s.l2tp_ipv6_4[0] = 0xAA;
        s.l2tp_value_16 = 16;
    });
    expect_context("52 05 22 03 90 01 12", [](session &s) { s.l2tp_value_18 = 18; });
    // Identifier and value 9 without a session kind; accounting values without flags.
    expect_context("52 05 32 01 EE 48 09", [](session &s) {
        s.session_identifier[0] = 0xEE;
        s.session_value_9 = 9;
    });
    expect_context("B2 01 04 10 02 18 03", [](session &s) {
        s.accounting_value_2 = 2;
        s.accounting_value_3 = 3;
    });
}

TEST(nal_session_context_receiving, fields_without_a_member_are_dropped)
{
    expect_context("32 02 AA BB", [](session &) {});
    expect_context("5A 05 4A 01 69 52 00", [](session &s) { s.qos_count = 1; });
    expect_context("CA 01 02 08 07", [](session &) {}); // field 25 is unknown
}

TEST(nal_session_context_receiving, field_8_of_an_ipv4_route_arrives_in_field_8)
{
    expect_context("BA 01 04 38 05 40 09", [](session &s) {
        s.ipv4_route_count = 1;
        s.ipv4_routes[0].field_7 = 5;
        s.ipv4_routes[0].field_8 = 9;
    });
}

TEST(nal_session_context_receiving, a_member_narrower_than_its_field_keeps_the_low_bits)
{
    // 0x12345 as a varint is C5 C6 04.
    expect_context("4A 0C 1A 00 28 C5 C6 04 32 00 38 C5 C6 04", [](session &s) {
        s.ipv6_value_5 = 0x45;
        s.ipv6_value_7 = 0x45;
    });
    expect_context(
        "52 1A 1A 04 30 C5 C6 04 22 08 30 C5 C6 04 38 C5 C6 04 48 C5 C6 04 52 04 08 C5 C6 04", [](session &s) {
            s.ppp_value_6 = 0x2345;
            s.l2tp_value_6 = 0x2345;
            s.l2tp_value_7 = 0x2345;
            s.session_value_9 = 0x2345;
            s.vlan_value_1 = 0x2345;
        });
    expect_context("52 0E 22 0C 40 C5 C6 04 48 C5 C6 04 50 C5 C6 04", [](session &s) {
        s.l2tp_value_8 = 0x2345;
        s.l2tp_value_9 = 0x2345;
        s.l2tp_value_10 = 0x45;
    });
    expect_context("52 06 52 04 10 C5 C6 04", [](session &s) { s.vlan_value_2 = 0x2345; });
    expect_context("72 04 18 C5 C6 04", [](session &s) { s.intercept_value_3 = 0x2345; });
    expect_context("5A 08 30 C5 C6 04 38 C5 C6 04", [](session &s) {
        s.qos_count = 1;
        s.qos[0].value_6 = 0x2345;
        s.qos[0].value_7 = 0x2345;
    });
    expect_context("BA 01 04 20 C5 C6 04 C2 01 04 20 C5 C6 04", [](session &s) {
        s.ipv4_route_count = 1;
        s.ipv4_routes[0].field_4 = 0x45;
        s.ipv6_route_count = 1;
        s.ipv6_routes[0].field_4 = 0x45;
    });
}

// ---- texts and bytes of any length ----

// The path of a text or bytes value on the wire, from the outermost field, and its place in the record.
struct member_place {
    std::vector<uint32_t> path;
    std::size_t offset;
    std::size_t kept_bytes; // of a text: its characters, without the NUL
};

byte_vector wire_with(const member_place &place, const byte_vector &content)
{
    byte_vector wire = content;
    for (auto field = place.path.rbegin(); field != place.path.rend(); ++field)
        wire = wire_builder().length_delimited(*field, wire);
    return wire;
}

std::string member_bytes(const session &record, const member_place &place, std::size_t count)
{
    return std::string(reinterpret_cast<const char *>(&record) + place.offset, count);
}

std::vector<member_place> text_places()
{
    const std::size_t qos = offsetof(session, qos);
    const std::size_t ipv4 = offsetof(session, ipv4_routes);
    const std::size_t ipv6 = offsetof(session, ipv6_routes);
    return {{{10, 4, 19}, offsetof(session, l2tp_name), 32}, {{10, 5}, offsetof(session, session_name), 64},
        {{10, 7}, offsetof(session, session_label), 32}, {{10, 8}, offsetof(session, session_text), 64},
        {{11, 3}, qos + offsetof(tum_nal_data_qos_element, text_3), 64},
        {{11, 4}, qos + offsetof(tum_nal_data_qos_element, text_4), 255},
        {{11, 5}, qos + offsetof(tum_nal_data_qos_element, text_5), 255},
        {{11, 10}, qos + offsetof(tum_nal_data_qos_element, text_10), 64},
        {{11, 11}, qos + offsetof(tum_nal_data_qos_element, text_11), 64},
        {{11, 12}, qos + offsetof(tum_nal_data_qos_element, text_12), 64}, {{12, 2}, offsetof(session, acl_text_2), 64},
        {{12, 3}, offsetof(session, acl_text_3), 64}, {{12, 4}, offsetof(session, acl_text_4), 64},
        {{12, 5}, offsetof(session, acl_text_5), 64}, {{13, 2}, offsetof(session, redirect_text_2), 255},
        {{23, 2}, ipv4 + offsetof(tum_nal_data_ipv4_route, field_2), 32},
        {{23, 6}, ipv4 + offsetof(tum_nal_data_ipv4_route, field_6), 32},
        {{23, 9}, ipv4 + offsetof(tum_nal_data_ipv4_route, field_9), 64},
        {{24, 2}, ipv6 + offsetof(tum_nal_data_ipv6_route, field_2), 32},
        {{24, 6}, ipv6 + offsetof(tum_nal_data_ipv6_route, field_6), 32},
        {{24, 9}, ipv6 + offsetof(tum_nal_data_ipv6_route, field_9), 64}};
}

TEST(nal_session_context_receiving, a_text_is_cut_to_its_array_and_terminated)
{
    for (const member_place &place : text_places()) {
        for (std::size_t length : {std::size_t{0}, std::size_t{1}, place.kept_bytes - 1, place.kept_bytes,
                 place.kept_bytes + 1, place.kept_bytes + 6, std::size_t{100}, std::size_t{1000}}) {
            const std::size_t kept = std::min(length, place.kept_bytes);
            std::string expected = std::string(kept, 't') + std::string(place.kept_bytes + 1 - kept, '\0');
            received_session got(wire_with(place, byte_vector(length, 't')));
            EXPECT_EQ(member_bytes(*got, place, place.kept_bytes + 1), expected) << place.offset << ": " << length;
        }
    }
}

TEST(nal_session_context_receiving, a_text_ends_at_a_nul_inside_it)
{
    expect_context("52 07 2A 05 61 62 00 63 64", [](session &s) { set_text(s.session_name, "ab"); });
}

std::vector<member_place> bytes_places()
{
    const std::size_t ipv6 = offsetof(session, ipv6_routes);
    return {{{9, 2}, offsetof(session, ipv6_part_2), 16}, {{9, 3}, offsetof(session, ipv6_part_3), 16},
        {{9, 4}, offsetof(session, ipv6_part_4), 16}, {{9, 6}, offsetof(session, ipv6_part_6), 16},
        {{10, 3, 5}, offsetof(session, ppp_identifier), 9}, {{10, 4, 4}, offsetof(session, l2tp_ipv6_4), 16},
        {{10, 4, 5}, offsetof(session, l2tp_ipv6_5), 16}, {{10, 6}, offsetof(session, session_identifier), 7},
        {{14, 4}, offsetof(session, intercept_identifier), 8}, {{14, 8}, offsetof(session, intercept_ipv6_address), 16},
        {{24, 3}, ipv6 + offsetof(tum_nal_data_ipv6_route, field_3), 16},
        {{24, 5}, ipv6 + offsetof(tum_nal_data_ipv6_route, field_5), 16}};
}

TEST(nal_session_context_receiving,
    of_a_longer_bytes_value_the_first_bytes_arrive_and_a_shorter_one_is_followed_by_zeros)
{
    for (const member_place &place : bytes_places()) {
        for (std::size_t length : {std::size_t{0}, std::size_t{1}, std::size_t{4}, place.kept_bytes - 1,
                 place.kept_bytes, place.kept_bytes + 1, std::size_t{40}, std::size_t{5000}}) {
            const std::size_t kept = std::min(length, place.kept_bytes);
            session expected = zero_record<session>();
            if (place.path[0] == 24)
                expected.ipv6_route_count = 1;
            std::memset(reinterpret_cast<uint8_t *>(&expected) + place.offset, 'b', kept);
            received_session got(wire_with(place, byte_vector(length, 'b')));
            EXPECT_EQ(first_difference(*got, expected), -1) << place.offset << ": " << length;
        }
    }
}

// ---- counts ----

TEST(nal_session_context_receiving, a_count_is_taken_modulo_256_and_then_kept_within_the_slots)
{
    struct list {
        uint32_t field;
        std::size_t count_offset;
        std::size_t first_value_offset;
        std::size_t stride;
        std::size_t slots;
    };
    const list lists[] = {
        {11, offsetof(session, qos_count), offsetof(session, qos), sizeof(tum_nal_data_qos_element), 8},
        {23, offsetof(session, ipv4_route_count), offsetof(session, ipv4_routes), sizeof(tum_nal_data_ipv4_route), 4},
        {24, offsetof(session, ipv6_route_count), offsetof(session, ipv6_routes), sizeof(tum_nal_data_ipv6_route), 4}};
    for (const list &one : lists) {
        for (std::size_t count :
            std::initializer_list<std::size_t>{1, 3, 4, 5, 8, 9, 50, 255, 256, 257, 258, 260, 300, 511, 512, 1000}) {
            wire_builder wire;
            for (std::size_t i = 0; i < count; ++i)
                wire.length_delimited(one.field, wire_builder().varint(1, i + 1));
            const std::size_t kept = std::min(count % 256, one.slots);
            session expected = zero_record<session>();
            uint8_t *bytes = reinterpret_cast<uint8_t *>(&expected);
            bytes[one.count_offset] = static_cast<uint8_t>(kept);
            for (uint32_t value = 1; value <= kept; ++value)
                std::memcpy(bytes + one.first_value_offset + (value - 1) * one.stride, &value, sizeof value);
            received_session got(wire);
            EXPECT_EQ(first_difference(*got, expected), -1) << one.field << ": " << count;
        }
    }
}

TEST(nal_session_context_receiving, a_list_of_empty_elements_is_counted)
{
    expect_context("5A 00 5A 00 5A 00 BA 01 00 C2 01 00 C2 01 00", [](session &s) {
        s.qos_count = 3;
        s.ipv4_route_count = 1;
        s.ipv6_route_count = 2;
    });
}

} // namespace
} // namespace mava_tum_test
