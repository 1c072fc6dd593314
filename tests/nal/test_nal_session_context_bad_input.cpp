// Malformed messages, and messages that repeat a field: the fields before the fault arrive, no byte is written outside
// the record, no allocator is called (`received` checks both).
#include "nal/adapter_calls.h"
#include "nal/sample_session.h"

#include <gtest/gtest.h>

#include <random>

namespace mava_tum_test
{
namespace
{

using session = tum_nal_data_session_context;

template <class fill_call>
void expect_session(std::string_view wire_hex, fill_call &&fill)
{
    session expected = zero_record<session>();
    fill(expected);
    received_session got(wire_hex);
    EXPECT_EQ(first_difference(*got, expected), -1) << wire_hex;
}

// Whether `got` can be the result of a truncated message of `whole`: each byte arrived or is zero, no count is larger.
void expect_part_of(const session &got, const session &whole, const std::string &what)
{
    session compared = got;
    EXPECT_LE(got.qos_count, whole.qos_count) << what;
    EXPECT_LE(got.ipv4_route_count, whole.ipv4_route_count) << what;
    EXPECT_LE(got.ipv6_route_count, whole.ipv6_route_count) << what;
    compared.qos_count = 0;
    compared.ipv4_route_count = 0;
    compared.ipv6_route_count = 0;
    EXPECT_EQ(first_foreign_byte(compared, whole), -1) << what;
}

TEST(nal_session_context_bad_input, fields_before_the_fault_arrive)
{
    expect_session("08 07 10 08 1D", [](session &s) { // field 3 with the wire type of fixed32
        s.session_value_1 = 7;
        s.session_value_2 = 8;
    });
    expect_session("08 07 CB 01 10 08", [](session &s) { s.session_value_1 = 7; }); // an unknown group
    expect_session("FF FF FF", [](session &) {});
}

TEST(nal_session_context_bad_input, a_nested_record_that_fails_delivers_its_fields_before_the_fault)
{
    expect_session("42 04 08 07 10 00", [](session &s) { s.ipv4_value_1 = 7; });
    expect_session("4A 04 08 07 10 00", [](session &s) { s.ipv6_value_1 = 7; });
    expect_session("62 07 08 07 12 01 61 18 00", [](session &s) {
        s.acl_value_1 = 7;
        set_text(s.acl_text_2, "a");
    });
    expect_session("6A 07 08 07 12 01 61 12 00", [](session &s) { // a second text in the place of the first
        s.redirect_value_1 = 7;
        set_text(s.redirect_text_2, "a");
    });
    expect_session("72 07 08 07 22 01 AA 22 00", [](session &s) {
        s.intercept_value_1 = 7;
        s.intercept_identifier[0] = 0xAA;
    });
    expect_session("7A 03 08 07 0D", [](session &s) { s.urpf_1_value_1 = 7; });
    expect_session("B2 01 03 08 07 0D", [](session &s) { s.accounting_flags = 7; });
}

TEST(nal_session_context_bad_input, two_levels_down_a_record_that_fails_delivers_its_fields_too)
{
    expect_session("52 06 1A 04 08 07 2A 09", [](session &s) { s.ppp_value_1 = 7; });
    expect_session("52 0A 22 08 08 07 9A 01 01 61 60 80", [](session &s) {
        s.l2tp_kind = 7;
        set_text(s.l2tp_name, "a");
    });
    expect_session("52 05 52 03 08 07 0D", [](session &s) { s.vlan_value_1 = 7; });
}

TEST(nal_session_context_bad_input, a_list_with_a_failing_element_does_not_arrive)
{
    // Two elements with texts, the second truncated inside its length; the fields after it do not arrive.
    expect_session("08 07 5A 03 1A 01 61 5A 05 1A 01 62 22 09 62 02 08 01", [](session &s) { s.session_value_1 = 7; });
    expect_session("08 07 BA 01 03 12 01 61 BA 01 02 0D 00", [](session &s) { s.session_value_1 = 7; });
    expect_session("08 07 C2 01 03 12 01 61 C2 01 02 0D 00", [](session &s) { s.session_value_1 = 7; });
}

TEST(nal_session_context_bad_input, a_list_whose_last_element_or_the_tag_after_it_is_cut_does_not_arrive)
{
    expect_session("08 07 5A 03 1A 01 61 5A 05 1A", [](session &s) { s.session_value_1 = 7; });
    expect_session("08 07 5A 03 1A 01 61 DA", [](session &s) { s.session_value_1 = 7; });
}

TEST(nal_session_context_bad_input, a_second_run_of_a_list_ends_the_message)
{
    expect_session("5A 02 08 01 08 07 5A 02 08 02 10 08", [](session &s) {
        s.qos_count = 1;
        s.qos[0].value_1 = 1;
        s.session_value_1 = 7;
    });
}

TEST(nal_session_context_bad_input, of_a_record_that_occurs_twice_the_second_arrives_and_nothing_of_the_first)
{
    expect_session("52 06 2A 01 61 3A 01 62 52 03 2A 01 63", [](session &s) { set_text(s.session_name, "c"); });
    expect_session("62 06 12 01 61 1A 01 62 62 03 12 01 63", [](session &s) { set_text(s.acl_text_2, "c"); });
    expect_session("6A 05 08 07 12 01 61 6A 03 12 01 63", [](session &s) { set_text(s.redirect_text_2, "c"); });
    expect_session("4A 05 08 07 12 01 61 4A 03 1A 01 63", [](session &s) { s.ipv6_part_3[0] = 0x63; });
    expect_session("72 05 08 07 22 01 61 72 03 42 01 63", [](session &s) { s.intercept_ipv6_address[0] = 0x63; });
}

TEST(nal_session_context_bad_input, of_records_that_occur_twice_inside_the_session_data_too)
{
    expect_session("52 0E 22 06 9A 01 03 61 61 61 22 04 9A 01 01 62", [](session &s) { set_text(s.l2tp_name, "b"); });
    // The whole session data again, after a nested record with a text.
    expect_session("52 06 22 04 9A 01 01 61 52 09 22 04 9A 01 01 62 2A 01 63", [](session &s) {
        set_text(s.l2tp_name, "b");
        set_text(s.session_name, "c");
    });
    expect_session("52 0A 1A 03 2A 01 61 1A 03 08 07 0D", [](session &s) { s.ppp_value_1 = 7; });
}

TEST(nal_session_context_bad_input, a_second_occurrence_that_fails_still_replaces_the_first)
{
    expect_session("62 06 12 01 61 1A 01 62 62 06 22 01 63 12 05 64", [](session &s) { set_text(s.acl_text_4, "c"); });
    expect_session("52 03 2A 01 61 52 05 3A 01 62 2A 7F", [](session &s) { set_text(s.session_label, "b"); });
}

TEST(nal_session_context_bad_input, of_many_occurrences_of_a_record_the_last_arrives)
{
    byte_vector wire;
    for (int i = 0; i < 1000; ++i)
        wire = joined({wire, bytes_of("52 09 22 04 9A 01 01 61 2A 01 62 62 03 12 01 63")});
    received_session got(wire);
    session expected = zero_record<session>();
    set_text(expected.l2tp_name, "a");
    set_text(expected.session_name, "b");
    set_text(expected.acl_text_2, "c");
    EXPECT_EQ(first_difference(*got, expected), -1);
}

TEST(nal_session_context_bad_input, every_cut_of_a_full_message_delivers_a_part_of_it)
{
    const session whole = full_session();
    const byte_vector wire = sent(whole);
    for (std::size_t length = 0; length < wire.size(); ++length) {
        received_session got(byte_vector(wire.begin(), wire.begin() + static_cast<std::ptrdiff_t>(length)));
        expect_part_of(*got, whole, "cut at " + std::to_string(length));
        ASSERT_EQ(got->session_value_1, length >= 2 ? 4u : 0u) << length;
        ASSERT_EQ(first_difference(*got, whole) != -1, true) << length;
    }
}

TEST(nal_session_context_bad_input, a_text_longer_than_its_record_leaves_itself_and_all_later_fields_empty)
{
    expect_session("08 07 52 03 2A 02 61 10 08", [](session &s) { s.session_value_1 = 7; });
    expect_session("08 07 52 06 2A 01 61 3A 05 62 10 08", [](session &s) {
        s.session_value_1 = 7;
        set_text(s.session_name, "a");
    });
}

TEST(nal_session_context_bad_input, damaged_messages_stay_inside_the_record)
{
    const byte_vector wire = sent(full_session());
    std::mt19937 random(20);
    std::size_t changed = 0;
    for (int round = 0; round < 5000; ++round) {
        byte_vector damaged = wire;
        for (std::size_t hits = random() % 8 + 1; hits > 0; --hits)
            damaged[random() % damaged.size()] = static_cast<uint8_t>(random());
        if (random() % 4 == 0)
            damaged.resize(random() % damaged.size());
        received_session got(damaged);
        changed += first_difference(*got, full_session()) != -1;
        // Every result is a record that can be sent again.
        ASSERT_LE(got->qos_count, 8);
        ASSERT_LE(got->ipv4_route_count, 4);
        ASSERT_LE(got->ipv6_route_count, 4);
        const byte_vector again = sent(*got);
        ASSERT_EQ(sent(*received_session(again)), again);
    }
    EXPECT_GT(changed, 4000u);
}

TEST(nal_session_context_bad_input, bytes_without_any_order_stay_inside_the_record)
{
    std::mt19937 random(21);
    for (int round = 0; round < 5000; ++round) {
        byte_vector noise(random() % 64);
        for (uint8_t &byte : noise)
            byte = static_cast<uint8_t>(random());
        received_session got(noise);
        ASSERT_LE(got->qos_count, 8);
        ASSERT_EQ(got->reserved_10 | got->reserved_11, 0u);
    }
}

} // namespace
} // namespace mava_tum_test
