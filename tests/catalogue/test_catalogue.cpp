// The tables for programs in C++: compared with a second table, their connections, and the calls with common
// parameters.
#include "catalogue.h"
#include "model/message_tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace mava_tum_catalogue
{
namespace
{

// ---- messages ----

// A second table, typed by hand and sharing nothing with the headers, is in tests/model.
TEST(catalogue, agrees_with_the_model_about_every_message)
{
    EXPECT_EQ(all_messages().size(), mava_tum_model::all_messages().size());
    for (const mava_tum_model::message *expected : mava_tum_model::all_messages()) {
        const message *found = find_message(expected->name);
        ASSERT_NE(found, nullptr) << expected->name;
        EXPECT_EQ(found->record_bytes, expected->record_bytes) << expected->name;
        EXPECT_EQ(found->mask_offset, expected->mask_offset) << expected->name;
        EXPECT_EQ(found->mask_bytes, expected->mask_bytes) << expected->name;
        EXPECT_EQ(found->holds_bytes, expected->encode_takes_flags) << expected->name;
        EXPECT_EQ(found->fields.size(), expected->fields.size()) << expected->name;
    }
}

// The model has another kind for varints of 64 bits.
mava_tum_model::field_kind kind_in_model(const field &field)
{
    const int kind = static_cast<int>(field.kind);
    const bool is_narrow = field.kind == field_kind::varint && field.value_bits == 32;
    return static_cast<mava_tum_model::field_kind>(is_narrow ? kind : kind + 1);
}

TEST(catalogue, agrees_with_the_model_about_every_field)
{
    for (const mava_tum_model::message *of : mava_tum_model::all_messages()) {
        for (const mava_tum_model::field &expected : of->fields) {
            const field &found = find_message(of->name)->fields[expected.number - 1];
            const std::string where = std::string(of->name) + "." + found.name;
            EXPECT_EQ(found.number, expected.number) << where;
            EXPECT_EQ(found.name, mava_tum_model::member_name(expected)) << where;
            EXPECT_EQ(kind_in_model(found), expected.kind) << where;
            EXPECT_EQ(found.member_offset, expected.offset) << where;
            EXPECT_EQ(found.count_offset, expected.count_offset) << where;
            EXPECT_STREQ(found.nested ? found.nested->name : "", expected.nested ? expected.nested->name : "") << where;
        }
    }
}

TEST(catalogue, every_fixed32_field_is_an_ipv4_address)
{
    for (const message &of : all_messages())
        for (const field &each : of.fields)
            EXPECT_EQ(each.kind == field_kind::fixed32, each.address == address_kind::ipv4) << each.name;
}

TEST(catalogue, nested_records_point_at_their_own_description)
{
    EXPECT_EQ(message_of<mava_tum_sub_route>().fields[3].nested, find_message("subscriber_route_ipv4"));
    EXPECT_EQ(layout_of<tum_nal_data_sess_oper_resp>().members.back().layout, find_adapter("subscriber_stats")->sent);
    EXPECT_EQ(find_adapter("rec_start_res")->carried, find_adapter("rec_complete_res")->carried);
}

TEST(catalogue, finds_nothing_under_a_wrong_name)
{
    for (const char *name : {"", "session_contex", "mava_tum_session_context"}) {
        EXPECT_EQ(find_message(name), nullptr) << name;
        EXPECT_EQ(find_adapter(name), nullptr) << name;
    }
    EXPECT_EQ(find_adapter("subscriber_v4"), nullptr) << "a message without an adapter";
}

TEST(catalogue, a_message_that_allocates_has_a_text_bytes_or_an_array_somewhere)
{
    EXPECT_FALSE(find_message("subscriber_v4")->allocates);
    EXPECT_TRUE(find_message("subscriber_v6")->allocates);
    EXPECT_TRUE(find_message("rec_sess_replay_fail")->allocates);
    EXPECT_TRUE(find_message("rec_sess_replay_req")->holds_bytes);
    EXPECT_FALSE(find_message("rec_sess_replay_fail")->holds_bytes);
}

// ---- application records ----

std::size_t alignment_of(const record_layout &layout);

std::size_t alignment_of(const record_member &member)
{
    switch (member.kind) {
    case member_kind::number:
    case member_kind::numbers:
    case member_kind::ipv4:
    case member_kind::count:
        return member.element_bytes;
    case member_kind::record:
    case member_kind::records:
        return alignment_of(*member.layout);
    case member_kind::reserved:
        return member.size_bytes == sizeof(uint32_t) ? sizeof(uint32_t) : 1;
    default:
        return 1;
    }
}

std::size_t alignment_of(const record_layout &layout)
{
    std::size_t widest = 1;
    for (const record_member &member : layout.members)
        widest = std::max(widest, alignment_of(member));
    return widest;
}

std::size_t padded(std::size_t bytes, std::size_t alignment)
{
    return (bytes + alignment - 1) / alignment * alignment;
}

TEST(catalogue, the_members_of_each_application_record_cover_it_but_for_padding)
{
    for (const record_layout &layout : tables::records) {
        std::size_t end = 0;
        for (const record_member &member : layout.members) {
            EXPECT_EQ(member.offset, padded(end, alignment_of(member))) << layout.name << " " << member.name;
            end = member.offset + member.size_bytes;
        }
        EXPECT_EQ(padded(end, alignment_of(layout)), layout.size_bytes) << layout.name;
    }
}

// ---- calls ----

int blocks = 0;

void *give(uint64_t size, void *)
{
    ++blocks;
    return ::operator new(size);
}

void take_back(void *block, void *)
{
    --blocks;
    ::operator delete(block);
}

// Each message with a varint of 5 as field 1 goes through all four functions once.
TEST(catalogue, the_four_functions_of_each_message_work_through_the_table)
{
    for (const message &of : all_messages()) {
        const bool is_varint = of.fields.front().kind == field_kind::varint;
        const std::vector<uint8_t> wire = {
            static_cast<uint8_t>(is_varint ? 8 : 10), static_cast<uint8_t>(is_varint ? 5 : 0)};
        std::vector<uint64_t> record(of.record_bytes / 8 + 1), copy(record.size());
        ASSERT_EQ(of.decode(record.data(), wire.data(), wire.size(), give, nullptr, 0), MAVA_TUM_OK);
        ASSERT_EQ(of.duplicate(copy.data(), record.data(), give, nullptr), MAVA_TUM_OK);
        of.free(record.data(), take_back, nullptr, 0);
        std::vector<uint8_t> again(wire.size());
        EXPECT_EQ(of.encode(copy.data(), again.data(), again.size(), nullptr, nullptr, 0), wire.size());
        EXPECT_EQ(again, wire) << of.name;
        of.free(copy.data(), take_back, nullptr, 0);
        EXPECT_EQ(blocks, 0) << of.name;
    }
}

// Each combination of parameters: scalars only, texts, bytes.
TEST(catalogue, the_four_functions_of_a_message_drop_the_arguments_that_it_does_not_take)
{
    const std::vector<uint8_t> wire = {0x2A, 0x01, 0x61}; // field 5, one byte
    struct shape {
        const char *name;
        int owned;
        int owned_with_alias;
    };
    for (const shape &tested : {shape{"vlan_info", 0, 0}, shape{"subscriber_acl", 1, 1}, shape{"ppp_data", 1, 0}}) {
        const message &of = *find_message(tested.name);
        std::vector<uint64_t> record(of.record_bytes / 8 + 1), copy(record.size());
        EXPECT_EQ(of.decode(record.data(), wire.data(), wire.size(), give, nullptr, MAVA_TUM_ALIAS), MAVA_TUM_OK);
        EXPECT_EQ(blocks, tested.owned_with_alias) << tested.name;
        of.free(record.data(), take_back, nullptr, MAVA_TUM_ALIAS);
        EXPECT_EQ(of.decode(record.data(), wire.data(), wire.size(), give, nullptr, 0), MAVA_TUM_OK);
        EXPECT_EQ(of.duplicate(copy.data(), record.data(), give, nullptr), MAVA_TUM_OK);
        EXPECT_EQ(blocks, 2 * tested.owned) << tested.name;
        std::vector<uint8_t> again(wire.size());
        const uint64_t size = of.encode(copy.data(), again.data(), again.size(), nullptr, nullptr, 0);
        EXPECT_EQ(size, static_cast<uint64_t>(tested.owned) * wire.size()) << tested.name;
        EXPECT_EQ(again == wire, tested.owned == 1) << tested.name;
        of.free(record.data(), take_back, nullptr, 0);
        of.free(copy.data(), take_back, nullptr, 0);
        EXPECT_EQ(blocks, 0) << tested.name;
    }
}

TEST(catalogue, an_adapter_converts_through_the_table_what_it_converts_by_name)
{
    static const tum_nal_data_rec_res sent = {7, "a", 9}; // static: the bytes between its members are zero
    tum_nal_data_rec_res received;
    uint8_t wire[TUM_NAL_REC_START_RES_MAX_SIZE];
    const adapter &of = *find_adapter("rec_start_res");
    const uint64_t size = of.encode(&sent, wire, sizeof wire);
    EXPECT_EQ(size, tum_nal_data_gpb_encode_tum_rec_start_res(&sent, nullptr, 0));
    of.decode(wire, static_cast<uint32_t>(size), &received);
    EXPECT_EQ(std::memcmp(&received, &sent, sizeof sent), 0);
    EXPECT_EQ(of.max_size, TUM_NAL_REC_START_RES_MAX_SIZE);
    EXPECT_EQ(of.received, &layout_of<tum_nal_data_rec_res>());
}

} // namespace
} // namespace mava_tum_catalogue
