// Deliberate leniency of the decoders. The numbers are permanent: code cites them, docs/leniency.md lists them.
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace mava_tum_test
{
namespace
{

TEST(leniency, L1_an_over_long_varint_is_truncated_to_the_width_of_its_field)
{
    decoded<mava_tum_subscriber_v4> negative("08 FF FF FF FF FF FF FF FF FF 01");
    EXPECT_EQ(negative.result, MAVA_TUM_OK);
    EXPECT_EQ(negative.record.field_1, 0xFFFFFFFF);

    decoded<mava_tum_subscriber_v4> surplus_bits("08 81 80 80 80 F0 FF FF FF FF FF FF 7F 15 01 00 00 00");
    EXPECT_EQ(surplus_bits.result, MAVA_TUM_OK);
    EXPECT_EQ(surplus_bits.record.field_1, 1u);
    EXPECT_EQ(surplus_bits.record.ipv4_address, 1u);

    decoded<mava_tum_session_data> wide("10 81 80 80 80 80 80 80 80 80 FE FF 7F 08 02");
    EXPECT_EQ(wide.result, MAVA_TUM_OK);
    EXPECT_EQ(wide.record.field_2, 1u);
    EXPECT_EQ(wide.record.field_1, 2u);

    decoded<mava_tum_subscriber_httpr> length("12 82 80 80 80 F0 00 61 62 08 03");
    EXPECT_EQ(length.result, MAVA_TUM_OK);
    EXPECT_STREQ(length.record.field_2, "ab");
    EXPECT_EQ(length.record.field_1, 3u);
}

TEST(leniency, L2_an_over_long_tag_is_accepted_and_loses_its_bits_above_32)
{
    for (const char *hex :
        {"88 00 05", "88 80 80 80 00 05", "88 80 80 80 70 05", "88 80 80 80 80 80 80 80 80 80 01 05"}) {
        decoded<mava_tum_subscriber_v4> got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_OK) << hex;
        EXPECT_EQ(got.record.field_1, 5u) << hex;
        EXPECT_EQ(got.present(), fields(1)) << hex;
    }
}

// Each of these ends inside an unknown field. The fields before it are kept, and the result is success.
void expect_success_after_field_1(std::initializer_list<const char *> cut_fields)
{
    for (const char *cut : cut_fields) {
        decoded<mava_tum_subscriber_v4> got(joined({bytes_of("08 07"), bytes_of(cut)}));
        EXPECT_EQ(got.result, MAVA_TUM_OK) << cut;
        EXPECT_EQ(got.record.field_1, 7u) << cut;
        EXPECT_EQ(got.present(), fields(1)) << cut;
    }
}

TEST(leniency, L3_an_unknown_fixed64_that_is_cut_short_ends_the_message_with_success)
{
    expect_success_after_field_1({"19", "19 01", "19 01 02 03 04 05 06 07", "19 15 01 00 00 00"});
}

TEST(leniency, L3_an_unknown_fixed32_that_is_cut_short_ends_the_message_with_success)
{
    expect_success_after_field_1({"1D", "1D 01", "1D 01 02 03"});
}

TEST(leniency, L3_an_unknown_length_delimited_field_that_is_cut_short_ends_the_message_with_success)
{
    expect_success_after_field_1({"1A 01", "1A 7F 15 01", "1A FF FF FF FF 0F 15 01 00 00 00"});
}

TEST(leniency, L3_holds_for_a_nested_record_whose_parent_goes_on_behind_it)
{
    decoded<mava_tum_session_context> got("42 03 08 07 1D 7A 03 08 08 19 28 05");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.subscriber_v4.field_1, 7u);
    EXPECT_EQ(got.record.urpf_1.field_1, 8u);
    EXPECT_EQ(got.record.feature_mask, 5u);
    EXPECT_EQ(got.present(), fields(5, 8, 15));
}

TEST(leniency, L4_field_number_0_is_skipped_like_any_unknown_field)
{
    decoded<mava_tum_subscriber_v4> got("00 00 02 01 AA 05 01 02 03 04 01 01 02 03 04 05 06 07 08 08 07");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 7u);
    EXPECT_EQ(got.present(), fields(1));
}

TEST(leniency, L5_the_wire_type_of_the_later_entries_of_a_run_is_not_looked_at)
{
    // All eight wire types of field 4, each followed by a length and a body.
    decoded<mava_tum_sub_route> got(
        "22 02 08 01 20 02 08 02 21 02 08 03 23 02 08 04 24 02 08 05 25 02 08 06 26 02 08 07 27 02 08 08");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    ASSERT_EQ(got.record.ipv4_route_count, 8u);
    for (uint32_t i = 0; i < 8; ++i)
        EXPECT_EQ(got.record.ipv4_routes[i].field_1, i + 1);
}

TEST(leniency, L5_holds_for_a_run_of_texts)
{
    decoded<mava_tum_sess_svc_start> got("2A 01 61 28 01 62 29 01 63 2B 01 64 2C 01 65 2D 01 66 2E 01 67 2F 01 68");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(encoded_hex(got.record), "2A 01 61 2A 01 62 2A 01 63 2A 01 64 2A 01 65 2A 01 66 2A 01 67 2A 01 68");
}

TEST(leniency, L8_a_nul_inside_a_text_is_copied_and_ends_the_text_when_it_is_written_again)
{
    decoded<mava_tum_subscriber_httpr> got("12 05 61 62 00 63 64");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{6}));
    EXPECT_EQ(hex_of(reinterpret_cast<const uint8_t *>(got.record.field_2), 6), "61 62 00 63 64 00");
    EXPECT_EQ(encoded_hex(got.record), "12 02 61 62");
    duplicated<mava_tum_subscriber_httpr> copy(got.record);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{3})) << "a copy ends there too";
}

TEST(leniency, L9_a_text_may_hold_bytes_that_are_no_utf_8)
{
    decoded<mava_tum_subscriber_httpr> got("12 04 FF C0 AF 80");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_STREQ(got.record.field_2, "\xFF\xC0\xAF\x80");
    EXPECT_EQ(encoded_hex(got.record), "12 04 FF C0 AF 80");
}

TEST(leniency, L11_a_second_occurrence_of_a_record_replaces_the_first_without_merging)
{
    decoded<mava_tum_session_data> got("52 04 08 01 10 02 52 02 10 03");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.vlan.field_1, 0u);
    EXPECT_EQ(got.record.vlan.field_2, 3u);
    EXPECT_EQ(own_bits(got.record.vlan), fields(2));
}

TEST(leniency, L11_a_second_occurrence_of_a_record_drops_the_memory_of_the_first)
{
    decoded<mava_tum_session_data> got("1A 04 2A 02 AA BB 22 05 9A 01 02 61 62 1A 02 08 01 22 00");
    got.allocator.allow_outstanding();
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.ppp.field_5.data, nullptr);
    EXPECT_EQ(got.record.l2tp.field_19, nullptr);
    got.free_now();
    EXPECT_TRUE(got.allocator.released().empty());
    EXPECT_EQ(got.allocator.outstanding_count(), 2u) << "only the caller's allocator still knows these blocks";
}

TEST(leniency, L13_an_address_may_have_any_length)
{
    for (std::size_t length : {0u, 1u, 4u, 15u, 16u, 17u, 300u}) {
        decoded<mava_tum_subscriber_route_ipv6> route(wire_builder().length_delimited(3, byte_vector(length, 0xAB)));
        EXPECT_EQ(route.result, MAVA_TUM_OK) << length;
        EXPECT_EQ(route.record.field_3.length, length);

        decoded<mava_tum_subscriber_v6> address(wire_builder().length_delimited(2, byte_vector(length, 0xAB)));
        EXPECT_EQ(address.result, MAVA_TUM_OK) << length;
        EXPECT_EQ(address.record.field_2.length, length);
    }
}

TEST(leniency, L14_arrays_have_no_maximum)
{
    // Two bytes of input for each element, which has 88 bytes with 64-bit addresses. The adapters keep 8 of them.
    wire_builder wire;
    for (int i = 0; i < 10'000; ++i)
        wire.raw("5A 00");
    decoded<mava_tum_session_context> got(wire);
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.qos_count, 10'000u);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{10'000 * sizeof(mava_tum_subscriber_qos)}));
}

TEST(leniency, L14_a_list_of_empty_sessions_asks_for_328_times_its_bytes)
{
    wire_builder wire;
    for (int i = 0; i < 1'000; ++i)
        wire.raw("22 00");
    decoded<mava_tum_rec_sess_replay_req> got(wire);
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_4_count, 1'000u);
    const uint64_t asked = 1'000 * sizeof(mava_tum_session_context);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{asked}));
    if (sizeof(void *) == 8) {
        EXPECT_EQ(asked, 328 * wire.bytes().size());
    }
}

} // namespace
} // namespace mava_tum_test
