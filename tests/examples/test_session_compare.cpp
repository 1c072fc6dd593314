// The comparison in session_setup: it must report every difference of a received record.
#include "run_program.h"
#include "session_compare.h"
#include "session_record.h"
#include "subscriber_file.h"
#include "subscriber_lines.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <set>

namespace
{

using application_record = tum_nal_data_session_context;
using examples::session_setup::compare_session;

examples::subscriber subscriber_of(const cells &values)
{
    const scratch_folder scratch;
    const std::string names = examples::column_names();
    return examples::read_subscribers(scratch.file("one.csv", names + "\n" + line_of(values, names))).front();
}

application_record across_the_wire(const examples::subscriber &who)
{
    application_record sent, received;
    examples::fill_session_record(sent, who);
    std::vector<uint8_t> wire(16384);
    const uint64_t size = tum_nal_data_gpb_encode_tum_session_context(&sent, wire.data(), 16384);
    EXPECT_LE(size, wire.size());
    tum_nal_data_gpb_decode_tum_session_context(wire.data(), static_cast<uint32_t>(size), &received);
    return received;
}

// The bytes between the end of one member and the beginning of the next one.
void add_gap(std::set<size_t> &gaps, size_t base, size_t begin, size_t end)
{
    for (size_t i = begin; i < end; ++i)
        gaps.insert(base + i);
}

#define END_OF(record, member) (offsetof(record, member) + sizeof(record::member))

template <typename Route>
void add_route_gaps(std::set<size_t> &gaps, size_t base)
{
    add_gap(gaps, base, END_OF(Route, field_4), offsetof(Route, field_5));
    add_gap(gaps, base, END_OF(Route, field_6), offsetof(Route, field_7));
}

void add_list_gaps(std::set<size_t> &gaps)
{
    using element = tum_nal_data_qos_element;
    for (size_t i = 0; i < TUM_NAL_SESSION_QOS_ENTRIES; ++i) {
        const size_t base = offsetof(application_record, qos) + i * sizeof(element);
        add_gap(gaps, base, END_OF(element, text_5), offsetof(element, value_6));
        add_gap(gaps, base, END_OF(element, value_7), offsetof(element, value_8));
        add_gap(gaps, base, END_OF(element, text_11), sizeof(element));
    }
    for (size_t i = 0; i < TUM_NAL_SESSION_IPV4_ROUTES; ++i) {
        add_route_gaps<tum_nal_data_ipv4_route>(
            gaps, offsetof(application_record, ipv4_routes) + i * sizeof(tum_nal_data_ipv4_route));
        add_route_gaps<tum_nal_data_ipv6_route>(
            gaps, offsetof(application_record, ipv6_routes) + i * sizeof(tum_nal_data_ipv6_route));
    }
}

// The bytes of the record that belong to no member.
std::set<size_t> padding()
{
    using record = application_record;
    std::set<size_t> gaps;
    add_gap(gaps, 0, END_OF(record, ipv6_value_7), offsetof(record, session_data_value_1));
    add_gap(gaps, 0, END_OF(record, ppp_identifier), offsetof(record, ppp_value_6));
    add_gap(gaps, 0, END_OF(record, ppp_value_6), offsetof(record, l2tp_kind));
    add_gap(gaps, 0, END_OF(record, l2tp_value_10), offsetof(record, l2tp_value_11));
    add_gap(gaps, 0, END_OF(record, session_text), offsetof(record, session_value_9));
    add_gap(gaps, 0, END_OF(record, vlan_value_2), offsetof(record, session_data_value_11));
    add_gap(gaps, 0, END_OF(record, qos_count), offsetof(record, acl_value_1));
    add_gap(gaps, 0, END_OF(record, acl_text_5), offsetof(record, redirect_value_1));
    add_gap(gaps, 0, END_OF(record, intercept_value_3), offsetof(record, intercept_identifier));
    add_gap(gaps, 0, END_OF(record, intercept_identifier), offsetof(record, intercept_value_5));
    add_gap(gaps, 0, END_OF(record, ipv6_route_count), offsetof(record, ipv4_routes));
    add_gap(gaps, 0, END_OF(record, ipv6_routes), sizeof(record));
    add_list_gaps(gaps);
    return gaps;
}

std::string names_of(const std::vector<examples::session_setup::mismatch> &mismatches)
{
    std::string names;
    for (const examples::session_setup::mismatch &each : mismatches)
        names += (names.empty() ? "" : " ") + each.member;
    return names;
}

// Each byte of the record changed in turn, whichever values `who` has.
void expect_every_changed_byte_noticed(const examples::subscriber &who)
{
    application_record received = across_the_wire(who);
    ASSERT_EQ(names_of(compare_session(who, received)), "");
    std::set<size_t> unnoticed;
    auto *bytes = reinterpret_cast<uint8_t *>(&received);
    for (size_t i = 0; i < sizeof received; ++i) {
        bytes[i] ^= 0x01;
        if (compare_session(who, received).empty())
            unnoticed.insert(i);
        bytes[i] ^= 0x01;
    }
    EXPECT_EQ(unnoticed, padding());
}

cells without_features()
{
    return full_cells_but("features", "");
}

} // namespace

TEST(session_compare, notices_every_changed_byte_of_a_session_with_everything)
{
    expect_every_changed_byte_noticed(subscriber_of(full_cells()));
}

TEST(session_compare, notices_every_changed_byte_of_a_session_without_features)
{
    expect_every_changed_byte_noticed(subscriber_of(without_features()));
}

TEST(session_compare, names_the_member_and_both_values)
{
    const examples::subscriber who = subscriber_of(full_cells());
    application_record received = across_the_wire(who);
    received.qos[2].value_6 = 99;
    const std::vector<examples::session_setup::mismatch> mismatches = compare_session(who, received);
    ASSERT_EQ(mismatches.size(), 1U);
    EXPECT_EQ(mismatches[0].member, "qos[2].value_6");
    EXPECT_EQ(mismatches[0].wanted, "3");
    EXPECT_EQ(mismatches[0].received, "99");
}

TEST(session_compare, refuses_values_of_a_feature_that_is_off)
{
    const examples::subscriber on = subscriber_of(full_cells());
    const examples::subscriber off =
        subscriber_of(full_cells_but("features", "qos;acl;redirect;intercept;urpf;icmp;mtu;routes"));
    EXPECT_EQ(names_of(compare_session(off, across_the_wire(on))),
        "feature_mask accounting_flags accounting_value_2 accounting_value_3");
}

TEST(session_compare, wants_what_an_ipv4_route_calls_field_8_in_field_7)
{
    const examples::subscriber who = subscriber_of(full_cells());
    const application_record received = across_the_wire(who);
    EXPECT_EQ(who.ipv4_routes[0].value_8, 8U);
    EXPECT_EQ(received.ipv4_routes[0].field_7, 8U);
    EXPECT_EQ(received.ipv4_routes[0].field_8, 0U);
    EXPECT_EQ(received.ipv6_routes[0].field_7, 7U);
    EXPECT_EQ(received.ipv6_routes[0].field_8, 8U);
}

// Members that the sender may fill but must not send, one row per condition.
TEST(session_compare, wants_zero_where_a_condition_for_sending_does_not_hold)
{
    const std::pair<const char *, const char *> rows[] = {
        {"kind", "2"}, // neither identifier nor value_9
        {"kind", "1"}, // no value_9
        {"accounting", "0|2|3"},
        {"accounting", "1|2|3"},
        {"accounting", "2|2|3"},
        {"ipv4", "0.0.0.0|1"},
        {"l2tp", "tunnel|||6|7|8|9|10|11|12|13|14|0|16|0|18"},
        {"l2tp", "tunnel|2001:db8::1|2001:db8::2"},
    };
    for (const auto &[column, cell] : rows) {
        const examples::subscriber who = subscriber_of(full_cells_but(column, cell));
        EXPECT_EQ(names_of(compare_session(who, across_the_wire(who))), "") << column << " " << cell;
    }
    const examples::subscriber all = subscriber_of(full_cells());
    const examples::subscriber kind_2 = subscriber_of(full_cells_but("kind", "2"));
    EXPECT_EQ(
        names_of(compare_session(kind_2, across_the_wire(all))), "session_value_1 session_identifier session_value_9");
}
