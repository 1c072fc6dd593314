#include "inspect/message_table.h"

#include "mava_tum.h"
#include "model/message_tables.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <set>
#include <string>
#include <vector>

namespace
{

using namespace mava_tum_inspect;

const field_description &field_of(const char *message, uint32_t number)
{
    return *find_field(*find_message(message), number);
}

TEST(message_table, has_the_40_messages_each_once)
{
    std::set<std::string> names;
    for (const message_description &message : all_messages())
        names.insert(message.name);
    EXPECT_EQ(all_messages().size(), 40u);
    EXPECT_EQ(names.size(), 40u);
}

// A second table, typed by hand and sharing nothing with the library, stands in tests/model.
TEST(message_table, agrees_with_the_model_about_every_message)
{
    for (const mava_tum_model::message *expected : mava_tum_model::all_messages()) {
        const message_description *message = find_message(expected->name);
        ASSERT_NE(message, nullptr) << expected->name;
        EXPECT_EQ(message->record_bytes, expected->record_bytes) << expected->name;
        EXPECT_EQ(message->mask_offset, expected->mask_offset) << expected->name;
        EXPECT_EQ(message->mask_bytes, expected->mask_bytes) << expected->name;
        EXPECT_EQ(message->holds_bytes, expected->encode_takes_flags) << expected->name;
        EXPECT_EQ(message->fields.size(), expected->fields.size()) << expected->name;
    }
}

// The model has a kind of its own for varints of 64 bits.
mava_tum_model::field_kind kind_in_model(const field_description &field)
{
    const int kind = static_cast<int>(field.kind);
    const bool is_narrow = field.kind == field_kind::varint && field.value_bits == 32;
    return static_cast<mava_tum_model::field_kind>(is_narrow ? kind : kind + 1);
}

TEST(message_table, agrees_with_the_model_about_every_field)
{
    for (const mava_tum_model::message *message : mava_tum_model::all_messages()) {
        for (const mava_tum_model::field &expected : message->fields) {
            const field_description &field = field_of(message->name, expected.number);
            const std::string where = std::string(message->name) + "." + field.name;
            EXPECT_EQ(field.number, expected.number) << where;
            EXPECT_EQ(field.name, mava_tum_model::member_name(expected)) << where;
            EXPECT_EQ(kind_in_model(field), expected.kind) << where;
            EXPECT_EQ(field.member_offset, expected.offset) << where;
            EXPECT_EQ(field.count_offset, expected.count_offset) << where;
            EXPECT_STREQ(field.nested ? field.nested->name : "", expected.nested ? expected.nested->name : "") << where;
        }
    }
}

TEST(message_table, names_members_as_the_headers_do)
{
    EXPECT_STREQ(field_of("subscriber_v4", 2).name, "ipv4_address");
    EXPECT_STREQ(field_of("session_context", 24).name, "route_ipv6");
    EXPECT_STREQ(field_of("sub_route", 4).name, "ipv4_routes");
    EXPECT_EQ(field_of("sub_route", 4).count_offset, offsetof(mava_tum_sub_route, ipv4_route_count));
    EXPECT_STREQ(field_of("stats", 18).name, "field_18");
}

TEST(message_table, nested_records_point_at_their_own_description)
{
    EXPECT_EQ(field_of("rec_sess_replay_req", 4).nested, find_message("session_context"));
    EXPECT_EQ(field_of("session_context", 11).nested, find_message("subscriber_qos"));
}

TEST(message_table, finds_nothing_under_a_wrong_name_or_number)
{
    EXPECT_EQ(find_message("session_contex"), nullptr);
    EXPECT_EQ(find_message(""), nullptr);
    EXPECT_EQ(find_field(*find_message("subscriber_v4"), 0u), nullptr);
    EXPECT_EQ(find_field(*find_message("subscriber_v4"), 3u), nullptr);
    EXPECT_EQ(find_field(*find_message("subscriber_v4"), "field_2"), nullptr);
}

TEST(message_table, every_fixed32_field_is_an_ipv4_address)
{
    for (const message_description &message : all_messages())
        for (const field_description &field : message.fields)
            EXPECT_EQ(field.kind == field_kind::fixed32, field.address == address_kind::ipv4) << field.name;
}

TEST(message_table, a_message_that_allocates_has_a_text_bytes_or_an_array_somewhere)
{
    EXPECT_FALSE(find_message("subscriber_v4")->allocates);
    EXPECT_TRUE(find_message("subscriber_v6")->allocates);
    EXPECT_TRUE(find_message("rec_sess_replay_fail")->allocates);
    EXPECT_FALSE(find_message("rec_sess_replay_fail")->holds_bytes);
}

// ---- the four functions in one shape ----

void *give(uint64_t size, void *)
{
    return ::operator new(size);
}

void take_back(void *pointer, void *)
{
    ::operator delete(pointer);
}

// Each message with a varint of 5 in field 1, or what stands there, goes once through all four.
TEST(message_table, the_four_functions_of_each_message_work_through_the_table)
{
    for (const message_description &message : all_messages()) {
        const field_description &first = message.fields.front();
        const uint32_t type = wire_type_number(first.kind);
        const std::vector<uint8_t> wire = {static_cast<uint8_t>(8 + type), static_cast<uint8_t>(type == 0 ? 5 : 0)};
        std::vector<uint64_t> record(message.record_bytes / 8 + 1), copy(record.size());
        ASSERT_EQ(message.calls.decode(record.data(), wire.data(), wire.size(), give, nullptr, 0), MAVA_TUM_OK);
        ASSERT_EQ(message.calls.duplicate(copy.data(), record.data(), give, nullptr), MAVA_TUM_OK);
        message.calls.free(record.data(), take_back, nullptr, 0);
        std::vector<uint8_t> again(wire.size());
        EXPECT_EQ(message.calls.encode(copy.data(), again.data(), again.size(), nullptr, nullptr, 0), wire.size());
        EXPECT_EQ(again, wire) << message.name;
        message.calls.free(copy.data(), take_back, nullptr, 0);
    }
}

} // namespace
