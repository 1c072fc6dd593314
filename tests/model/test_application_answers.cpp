// What the model expects of decode adapters, against answers known by hand.
#include "model/application_receive.h"
#include "model/block_log.h"
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
    bytes_type record(extent_of(layout).bytes, 0xDD);
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
    const bytes_type record = received("srg_group_rec_complete_req", "18 F0 A2 04"); // 70000
    EXPECT_EQ(record, mava_tum_test::bytes_of("00 00 00 00 00 00 00 00 70 11 00 00"));
}

TEST(application_model, a_start_request_receives_its_third_field_as_its_first)
{
    bytes_type expected(80, 0);
    expected[0] = 7;
    EXPECT_EQ(received("rec_start_req", "08 05 18 07"), expected);
}

TEST(application_model, an_address_is_turned_round)
{
    const bytes_type record = received("session_context", "42 05 15 C0 00 02 01");
    const bytes_type address(record.begin() + 48, record.begin() + 52);
    EXPECT_EQ(address, mava_tum_test::bytes_of("01 02 00 C0"));
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
    EXPECT_EQ(record[4], 30);
    EXPECT_EQ(record[8 + 29 * 24], 30);
}

TEST(application_model, a_byte_is_named_by_the_fields_that_lead_to_it)
{
    const application_layout &layout = *received_layout("rec_sess_replay_req");
    EXPECT_EQ(member_at(layout, 0), "1 byte 0");
    EXPECT_EQ(member_at(layout, 6), "padding");
    EXPECT_EQ(member_at(layout, 16 + 21), "4[0].unused bytes");
    EXPECT_EQ(member_at(layout, 16 + 48), "4[0].8.2 byte 0");
}

} // namespace

} // namespace mava_tum_model
