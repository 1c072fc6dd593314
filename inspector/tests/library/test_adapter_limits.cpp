// Compares every limit with the adapter: a message at the limit must arrive completely, one above it must not.
#include "arrived_values.h"
#include "inspect_calls.h"
#include "inspector/library/message_table.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace
{

using namespace mava_tum_inspect;
using namespace mava_tum_test;

// Puts the bytes of a field into the records around it.
using wrapper = std::function<byte_vector(const byte_vector &)>;

struct tested_limit {
    const adapter_description &adapter;
    const message_description &record; // that has the field
    const member_limit &limit;
    const wrapper &in_message;
    std::string path; // for failures
};

// ---- all limits of an adapter ----

void for_each_limit(const adapter_description &adapter, const message_description &record,
    std::span<const member_limit> members, const wrapper &in_message, const std::string &path,
    const std::function<void(const tested_limit &)> &test)
{
    for (const member_limit &limit : members) {
        const field_description &field = *find_field(record, limit.number);
        const std::string own_path = path + "." + field.name;
        test({adapter, record, limit, in_message, own_path});
        if (field.nested == nullptr)
            continue;
        const wrapper inner = [&](const byte_vector &content) {
            return in_message(wire_builder().length_delimited(limit.number, content));
        };
        for_each_limit(adapter, *field.nested, limit.members, inner, own_path, test);
    }
}

void for_each_limit(const std::function<void(const tested_limit &)> &test)
{
    const wrapper bare = [](const byte_vector &content) { return content; };
    for (const adapter_description &adapter : all_adapters())
        for_each_limit(adapter, *adapter.carried, adapter.received->limits, bare, adapter.name, test);
}

// ---- expectations ----

void expect_fits(const tested_limit &tested, const byte_vector &field)
{
    const byte_vector input = tested.in_message(field);
    EXPECT_EQ(check(tested.adapter.name, input).texts(), "") << tested.path;
    EXPECT_EQ(lost_in(tested.adapter, input), std::vector<std::string>()) << tested.path;
}

void expect_finding(const tested_limit &tested, const byte_vector &field, int32_t kind)
{
    const byte_vector input = tested.in_message(field);
    const checked found = check(tested.adapter.name, input);
    ASSERT_EQ(found.findings.size(), 1u) << tested.path << "\n" << found.texts();
    EXPECT_EQ(found.findings[0].kind, kind) << tested.path;
    EXPECT_NE(lost_in(tested.adapter, input), std::vector<std::string>()) << tested.path;
}

byte_vector text_of(uint64_t characters)
{
    return byte_vector(characters, 'x');
}

// ---- numbers ----

byte_vector number_field(const tested_limit &tested, uint64_t value)
{
    wire_builder wire;
    if (tested.limit.only_with != 0) // the field that it goes with
        wire.length_delimited(tested.limit.only_with, byte_vector(16, 0xAB));
    if (find_field(tested.record, tested.limit.number)->kind == field_kind::fixed32)
        return wire.fixed32(tested.limit.number, static_cast<uint32_t>(value));
    return wire.varint(tested.limit.number, value);
}

uint64_t largest(uint64_t bits)
{
    return bits >= 64 ? UINT64_MAX : (uint64_t{1} << bits) - 1;
}

TEST(adapter_limits, a_number_of_the_width_of_its_member_arrives_and_one_bit_more_is_lost)
{
    std::size_t narrow = 0;
    for_each_limit([&](const tested_limit &tested) {
        if (tested.limit.kind != limit_kind::number)
            return;
        const uint64_t most = largest(tested.limit.allowed);
        expect_fits(tested, number_field(tested, most));
        if (tested.limit.allowed >= find_field(tested.record, tested.limit.number)->value_bits)
            return;
        expect_finding(tested, number_field(tested, most + 1), MAVA_TUM_INSPECT_NUMBER_CUT);
        ++narrow;
    });
    EXPECT_GT(narrow, 20u);
}

TEST(adapter_limits, a_number_that_goes_with_another_field_is_lost_without_it)
{
    std::size_t bound = 0;
    for_each_limit([&](const tested_limit &tested) {
        if (tested.limit.only_with == 0)
            return;
        expect_finding(tested, wire_builder().varint(tested.limit.number, 1), MAVA_TUM_INSPECT_PART_MISSING);
        expect_fits(tested, wire_builder().varint(tested.limit.number, 0));
        ++bound;
    });
    EXPECT_EQ(bound, 4u); // two of a session, which is also inside a replay request
}

// ---- texts and bytes ----

TEST(adapter_limits, a_text_of_as_many_characters_as_are_taken_arrives_and_one_more_is_lost)
{
    std::size_t texts = 0;
    for_each_limit([&](const tested_limit &tested) {
        const bool is_text = tested.limit.kind == limit_kind::text;
        if (!is_text && tested.limit.kind != limit_kind::texts)
            return;
        const uint64_t most = is_text ? tested.limit.allowed : tested.limit.text_characters;
        const uint32_t number = tested.limit.number;
        expect_fits(tested, wire_builder().length_delimited(number, text_of(most)));
        expect_finding(tested, wire_builder().length_delimited(number, text_of(most + 1)), MAVA_TUM_INSPECT_TEXT_CUT);
        expect_finding(tested, wire_builder().length_delimited(number, {'a', 'b', 0, 'c'}), MAVA_TUM_INSPECT_TEXT_ENDS);
        ++texts;
    });
    EXPECT_GT(texts, 40u);
}

TEST(adapter_limits, bytes_that_fill_their_array_arrive_and_one_more_or_less_changes_them)
{
    std::size_t arrays = 0;
    for_each_limit([&](const tested_limit &tested) {
        if (tested.limit.kind != limit_kind::bytes)
            return;
        const auto bytes = [&](uint64_t length) {
            return wire_builder().length_delimited(tested.limit.number, byte_vector(length, 0xAB));
        };
        expect_fits(tested, bytes(tested.limit.allowed));
        expect_fits(tested, bytes(0));
        expect_finding(tested, bytes(tested.limit.allowed + 1), MAVA_TUM_INSPECT_BYTES_CUT);
        expect_finding(tested, bytes(tested.limit.allowed - 1), MAVA_TUM_INSPECT_BYTES_PADDED);
        ++arrays;
    });
    EXPECT_GT(arrays, 20u);
}

// ---- lists ----

byte_vector empty_elements(uint32_t number, uint64_t elements)
{
    wire_builder wire;
    for (uint64_t i = 0; i < elements; ++i)
        wire.length_delimited(number, {});
    return wire;
}

TEST(adapter_limits, a_list_that_fills_its_slots_arrives_and_one_element_more_is_lost)
{
    std::size_t lists = 0;
    for_each_limit([&](const tested_limit &tested) {
        if (tested.limit.kind != limit_kind::list && tested.limit.kind != limit_kind::texts)
            return;
        const uint32_t number = tested.limit.number;
        expect_fits(tested, empty_elements(number, tested.limit.allowed));
        expect_finding(tested, empty_elements(number, tested.limit.allowed + 1), MAVA_TUM_INSPECT_LIST_CUT);
        if (tested.limit.count_bits == 8)
            expect_finding(tested, empty_elements(number, 256), MAVA_TUM_INSPECT_LIST_CUT);
        ++lists;
    });
    EXPECT_GT(lists, 10u);
}

// ---- fields without a member ----

byte_vector any_value(const field_description &field, bool is_empty)
{
    if (field.kind == field_kind::varint)
        return wire_builder().varint(field.number, is_empty ? 0 : 1);
    return wire_builder().length_delimited(field.number, is_empty ? byte_vector() : text_of(3));
}

void expect_dropped(const adapter_description &adapter, const field_description &field)
{
    const byte_vector input = any_value(field, false);
    const checked found = check(adapter.name, input);
    ASSERT_EQ(found.findings.size(), 1u) << adapter.name << "." << field.name;
    EXPECT_EQ(found.findings[0].kind, MAVA_TUM_INSPECT_NO_MEMBER);
    EXPECT_EQ(decode_record(adapter, input), decode_record(adapter, {})) << adapter.name << "." << field.name;
    EXPECT_EQ(check(adapter.name, any_value(field, true)).texts(), "") << adapter.name << "." << field.name;
}

TEST(adapter_limits, a_field_without_a_member_leaves_no_trace_unless_it_is_zero)
{
    std::size_t dropped = 0;
    for (const adapter_description &adapter : all_adapters())
        for (const field_description &field : adapter.carried->fields)
            if (find_limit(adapter.received->limits, field.number) == nullptr) {
                expect_dropped(adapter, field);
                ++dropped;
            }
    EXPECT_EQ(dropped, 4u); // of session_context, sess_oper_resp, and two of rec_start_req
}

TEST(adapter_limits, field_9_of_a_qos_entry_has_no_member)
{
    const adapter_description &session = *find_adapter("session_context");
    const byte_vector input = bytes_of("5A 03 4A 01 41");
    EXPECT_EQ(check("session_context", input).texts(),
        "`qos[0].field_9` at byte 2 does not arrive: the record has no member for it\n");
    EXPECT_EQ(decode_record(session, input), decode_record(session, bytes_of("5A 00")));
}

TEST(adapter_limits, every_field_is_taken_or_known_to_be_dropped)
{
    std::size_t without_member = 0;
    for_each_limit([&](const tested_limit &tested) {
        const field_description &field = *find_field(tested.record, tested.limit.number);
        if (field.nested == nullptr)
            return;
        for (const field_description &inner : field.nested->fields)
            without_member += find_limit(tested.limit.members, inner.number) == nullptr ? 1 : 0;
    });
    // Field 9 of a QoS entry, once in a session and once in a session that is replayed, whose field 6 is the third.
    EXPECT_EQ(without_member, 3u);
}

// ---- the table ----

TEST(adapter_limits, names_the_19_adapters)
{
    EXPECT_EQ(all_adapters().size(), 19u);
    EXPECT_STREQ(find_adapter("rec_start_res")->carried->name, "rec_resp");
    EXPECT_STREQ(find_adapter("rec_sess_resp")->name, "rec_sess_res");
    EXPECT_EQ(find_adapter("rec_resp"), nullptr) << "two adapters carry it";
    EXPECT_EQ(find_adapter("subscriber_v4"), nullptr);
}

TEST(adapter_limits, ipv6_addresses_are_the_bytes_fields_that_arrive_in_arrays_of_16)
{
    for_each_limit([&](const tested_limit &tested) {
        const field_description &field = *find_field(tested.record, tested.limit.number);
        if (field.kind != field_kind::bytes)
            return;
        EXPECT_EQ(field.address == address_kind::ipv6, tested.limit.allowed == 16) << tested.path;
    });
}

} // namespace
