// A session in both directions, row by row and as a whole. The files beside this one have the rules for one direction,
// and malformed input.
#include "nal/adapter_calls.h"
#include "nal/sample_session.h"
#include "nal/session_rows.h"

#include <gtest/gtest.h>

#include <random>

namespace mava_tum_test
{
namespace
{

using session = tum_nal_data_session_context;

TEST(nal_session_context, an_all_zero_record_is_sent_as_its_values_and_an_empty_ppp)
{
    EXPECT_EQ(sent_hex(zero_record<session>()), "08 00 10 00 18 00 20 00 28 00 38 00 52 02 1A 00");
}

TEST(nal_session_context, each_row_is_sent_as_its_bytes)
{
    for (const session_row &row : symmetric_rows())
        EXPECT_EQ(sent_hex(record_of(row)), hex_of(wire_of(row))) << row.what;
}

TEST(nal_session_context, the_bytes_of_each_row_are_received_as_its_record)
{
    for (const session_row &row : symmetric_rows()) {
        received_session got(wire_of(row));
        EXPECT_EQ(first_difference(*got, record_of(row)), -1) << row.what;
    }
}

TEST(nal_session_context, what_a_feature_selects_is_not_sent_without_it)
{
    std::size_t rows_with_features = 0;
    for (const session_row &row : symmetric_rows()) {
        if (row.features == 0)
            continue;
        ++rows_with_features;
        session record = record_of(row);
        record.feature_mask = 0;
        EXPECT_EQ(sent_hex(record), "08 00 10 00 18 00 20 00 28 00 38 00 52 02 1A 00") << row.what;
    }
    EXPECT_GT(rows_with_features, 40u);
}

TEST(nal_session_context, what_a_feature_selects_is_received_without_it)
{
    for (session_row row : symmetric_rows()) {
        session expected = record_of(row);
        expected.feature_mask = 0;
        row.features = 0;
        received_session got(wire_of(row));
        EXPECT_EQ(first_difference(*got, expected), -1) << row.what;
    }
}

TEST(nal_session_context, a_record_whose_members_all_have_content_comes_back)
{
    const session record = full_session();
    received_session got(sent(record));
    EXPECT_EQ(first_difference(*got, record), -1);
}

TEST(nal_session_context, l2tp_ipv6_end_points_come_back)
{
    session record = full_session();
    record.l2tp_kind = TUM_NAL_L2TP_IPV6;
    record.l2tp_ipv4_2 = 0;
    record.l2tp_ipv4_3 = 0;
    set_bytes(record.l2tp_ipv6_4, "20010DB8 00000000 00000000 00000004");
    set_bytes(record.l2tp_ipv6_5, "20010DB8 00000000 00000000 00000005");
    received_session got(sent(record));
    EXPECT_EQ(first_difference(*got, record), -1);
}

TEST(nal_session_context, field_8_of_an_ipv4_route_comes_back_as_field_7)
{
    session record = full_session();
    record.ipv4_routes[2].field_7 = 5;
    record.ipv4_routes[2].field_8 = 9;
    session expected = record;
    expected.ipv4_routes[2].field_7 = 9;
    expected.ipv4_routes[2].field_8 = 0;
    received_session got(sent(record));
    EXPECT_EQ(first_difference(*got, expected), -1);
}

TEST(nal_session_context, what_was_received_is_sent_again_as_the_same_bytes)
{
    std::mt19937 random(19);
    for (int round = 0; round < 1000; ++round) {
        session record = full_session();
        record.feature_mask = static_cast<uint32_t>(random());
        record.session_value_1 = static_cast<uint32_t>(random() % 6);
        record.l2tp_kind = static_cast<uint32_t>(random() % 4);
        record.l2tp_value_15 = static_cast<uint32_t>(random() % 2);
        record.l2tp_value_17 = static_cast<uint32_t>(random() % 2);
        record.accounting_flags = static_cast<uint32_t>(random() % 4);
        record.qos_count = static_cast<uint8_t>(random() % 9);
        record.ipv4_route_count = static_cast<uint8_t>(random() % 5);
        record.ipv6_route_count = static_cast<uint8_t>(random() % 5);
        record.ipv4_routes[0].field_8 = static_cast<uint32_t>(random() % 2);
        const byte_vector wire = sent(record);
        ASSERT_EQ(sent(*received_session(wire)), wire) << "feature mask " << record.feature_mask;
    }
}

TEST(nal_session_context, reserved_members_are_not_sent_and_come_back_as_zero)
{
    session record = zero_record<session>();
    set_bytes(record.reserved_6, "FFFFFFFF FFFFFFFF FFFFFFFF FFFFFFFF FFFFFFFF");
    record.reserved_10 = 0xFFFFFFFF;
    record.reserved_11 = 0xFFFFFFFF;
    record.feature_mask = 0xFFFFFFFF;
    session without = record;
    set_bytes(without.reserved_6, "");
    without.reserved_10 = 0;
    without.reserved_11 = 0;
    EXPECT_EQ(sent_hex(record), sent_hex(without));
    EXPECT_EQ(first_difference(*received_session(sent(record)), *received_session(sent(without))), -1);
    EXPECT_EQ(received_session(sent(record))->reserved_10, 0u);
}

TEST(nal_session_context, an_input_of_length_0_gives_an_all_zero_record)
{
    received_session got(byte_vector{});
    EXPECT_EQ(first_difference(*got, zero_record<session>()), -1);
    session record = full_session();
    tum_nal_data_gpb_decode_tum_session_context(nullptr, 0, &record);
    EXPECT_EQ(first_difference(record, zero_record<session>()), -1);
}

TEST(nal_session_context, a_buffer_of_length_0_still_gives_the_size)
{
    const session record = full_session();
    guarded_buffer buffer(0);
    const uint64_t size = sent(record).size();
    EXPECT_GT(size, 5000u);
    EXPECT_EQ(call_encode_adapter(record, buffer.data(), 0), size);
    EXPECT_EQ(call_encode_adapter(record, nullptr, 0), size);
    EXPECT_TRUE(buffer.guards_intact());
}

TEST(nal_session_context, a_text_and_a_list_with_a_text_arrive_without_an_allocation)
{
    // A name of 3 characters, then two QoS entries, the second with a text of 1.
    received_session got("52 05 2A 03 61 62 63 5A 02 08 01 5A 03 1A 01 64");
    session expected = zero_record<session>();
    set_text(expected.session_name, "abc");
    expected.qos_count = 2;
    expected.qos[0].value_1 = 1;
    set_text(expected.qos[1].text_3, "d");
    EXPECT_EQ(first_difference(*got, expected), -1);
}

} // namespace
} // namespace mava_tum_test
