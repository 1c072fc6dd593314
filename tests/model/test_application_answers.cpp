// The model's results for the adapters, compared with results known by hand.
#include "model/application_transfer.h"
#include "model/block_log.h"
#include "model/raw_memory.h"
#include "support/hex.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mava_tum_model
{

namespace
{

using bytes_type = std::vector<uint8_t>;

bytes_type received(const char *adapter_name, const char *message_name, const bytes_type &wire)
{
    alignas(8) uint8_t codec_record[656] = {};
    block_log blocks;
    const message &of = *find_message(message_name);
    model_decode(of, codec_record, wire.data(), wire.size(), blocks.source(), alias_flag);
    const application_layout &layout = *received_layout(adapter_name);
    bytes_type record(layout.extent.bytes, 0xDD);
    model_receive(of, codec_record, layout, record.data());
    return record;
}

bytes_type received(const char *name, const char *wire_hex)
{
    return received(name, name, mava_tum_test::bytes_of(wire_hex));
}

TEST(application_model, nothing_arrives_as_zeros)
{
    EXPECT_EQ(received("srg_group_rec_start_req", ""), bytes_type(12, 0));
}

TEST(application_model, numbers_keep_their_low_bits)
{
    bytes_type expected(12, 0);
    store(expected.data(), 8, uint16_t{0x1170});
    EXPECT_EQ(received("srg_group_rec_complete_req", "18 F0 A2 04"), expected); // 70000
}

TEST(application_model, a_start_request_receives_its_third_field_as_its_first)
{
    bytes_type expected(80, 0);
    store(expected.data(), 0, uint32_t{7});
    EXPECT_EQ(received("rec_start_req", "08 05 18 07"), expected);
}

TEST(application_model, an_address_is_turned_round)
{
    const bytes_type record = received("session_context", "42 05 15 C0 00 02 01");
    EXPECT_EQ(load<uint32_t>(record.data(), 48), 0xC0000201);
}

TEST(application_model, a_text_is_cut_before_the_end_of_its_array)
{
    bytes_type wire = {0x1A, 100};
    wire.resize(102, 'x');
    const bytes_type record = received("subscriber_route_resp", "subscriber_route_resp", wire);
    const std::string text(reinterpret_cast<const char *>(record.data()) + 8);
    EXPECT_EQ(text, std::string(64, 'x'));
}

TEST(application_model, of_a_list_the_first_elements_arrive_and_are_counted)
{
    bytes_type wire;
    for (uint8_t value = 1; value <= 31; ++value)
        wire.insert(wire.end(), {0x12, 2, 8, value});
    const bytes_type record = received("rec_sess_res", "rec_sess_resp", wire);
    EXPECT_EQ(load<uint32_t>(record.data(), 4), 30u);
    EXPECT_EQ(load<uint32_t>(record.data(), 8 + 29 * 24), 30u);
}

TEST(application_model, a_byte_is_named_by_the_fields_that_lead_to_it)
{
    const application_layout &layout = *received_layout("rec_sess_replay_req");
    EXPECT_EQ(member_at(layout, 0), "1 byte 0");
    EXPECT_EQ(member_at(layout, 6), "padding");
    EXPECT_EQ(member_at(layout, 16 + 21), "4[0].unused bytes");
    EXPECT_EQ(member_at(layout, 16 + 48), "4[0].8.2 byte 0");
}

// ---- sending: records by offset, zero except for the given values ----

struct member_value {
    uint32_t offset;
    uint32_t value;
    bool is_a_byte = false; // otherwise it has four
};

bytes_type sent(const char *name, std::initializer_list<member_value> values)
{
    const application_layout &layout = *sent_layout(name);
    const message &of = *find_message(name);
    bytes_type record(layout.extent.bytes);
    for (const member_value &each : values) {
        if (each.is_a_byte)
            store(record.data(), each.offset, static_cast<uint8_t>(each.value));
        else
            store(record.data(), each.offset, each.value);
    }
    alignas(8) uint8_t codec_record[656] = {};
    send_scratch scratch;
    model_send(of, codec_record, layout, record.data(), scratch);
    bytes_type wire(model_encode(of, codec_record, {}, 0));
    model_encode(of, codec_record, {wire.data(), wire.data(), wire.size(), nullptr, nullptr}, 0);
    return wire;
}

struct sent_answer {
    const char *name;
    std::initializer_list<member_value> values;
    const char *wire;
};

TEST(application_model, sends_what_the_description_says)
{
    const sent_answer answers[] = {
        {"session_delete", {}, "08 00"},
        {"session_delete", {{0, 5}}, "08 05"},
        {"session_delete", {{0, 6}}, ""},
        {"srg_group_rec_start_req", {}, "08 00 10 00 18 00"},
        {"srg_group_rec_complete_req", {}, ""},
        {"subscriber_route_resp", {}, "08 00 10 00"},
        {"sub_route", {}, "08 00 10 00 18 00 30 00"},
        // One route: its eighth member goes into the seventh field.
        {"sub_route", {{12, 1, true}, {16 + 88, 5}, {16 + 92, 9}}, "08 00 10 00 18 00 22 04 08 00 38 09 30 00"},
        {"rec_sess_req", {}, "08 00 10 00"},
        // The switch of the second block is not sent, its empty block is.
        {"subscriber_stats", {{28 + 72 + 4 + 8 * 140, 7}}, "52 00"},
        {"session_context", {}, "08 00 10 00 18 00 20 00 28 00 38 00 52 02 1A 00"},
        // The bit of the IPv4 address without one, and with one.
        {"session_context", {{16, 1 << 9}}, "08 00 10 00 18 00 20 00 28 80 04 38 00 52 02 1A 00"},
        {"session_context", {{16, 1 << 9}, {48, 0xC0000201}},
            "08 00 10 00 18 00 20 00 28 80 04 38 00 42 07 08 00 15 C0 00 02 01 52 02 1A 00"},
    };
    for (const sent_answer &answer : answers)
        EXPECT_EQ(sent(answer.name, answer.values), mava_tum_test::bytes_of(answer.wire)) << answer.name;
}

} // namespace

} // namespace mava_tum_model
