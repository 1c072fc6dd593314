// session_context: decode and encode.
#include "support/expect_schema.h"
#include "support/full_session_context.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using context_decode = decoded<mava_tum_session_context>;


TEST(session_context, schema_is_24_fields_with_two_byte_tags_from_16)
{
    constexpr wire_type nested = wire_type::length_delimited;
    expect_schema<mava_tum_session_context>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::varint, "18 03"},
        {4, wire_type::varint, "20 04"},
        {5, wire_type::varint, "28 FF FF FF FF 0F"},
        {6, wire_type::length_delimited, "32 02 AA BB"},
        {7, wire_type::varint, "38 07"},
        {8, nested, "42 07 08 01 15 01 02 03 04"},
        {9, nested, "4A 03 12 01 AA"},
        {10, nested, "52 05 22 03 80 01 05"},
        {11, nested, "5A 03 1A 01 61 5A 00"},
        {12, nested, "62 03 12 01 61"},
        {13, nested, "6A 03 12 01 61"},
        {14, nested, "72 03 22 01 AA"},
        {15, nested, "7A 02 10 01"},
        {16, nested, "82 01 02 10 02"},
        {17, nested, "8A 01 02 08 03"},
        {18, nested, "92 01 02 08 04"},
        {19, nested, "9A 01 02 08 05"},
        {20, nested, "A2 01 02 08 06"},
        {21, nested, "AA 01 02 08 07"},
        {22, nested, "B2 01 02 18 08"},
        {23, nested, "BA 01 02 40 09 BA 01 00"},
        {24, nested, "C2 01 02 40 0A"},
    });
}

TEST(session_context, decode_stores_each_value_in_its_own_member)
{
    context_decode got(full_session_context());
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    const mava_tum_session_context &record = got.record;
    EXPECT_EQ(record.field_1, 1u);
    EXPECT_EQ(record.field_2, 2u);
    EXPECT_EQ(record.field_3, 3u);
    EXPECT_EQ(record.field_4, 4u);
    EXPECT_EQ(record.feature_mask, 5u);
    EXPECT_EQ(record.field_6.length, 1u);
    EXPECT_EQ(record.field_7, 7u);
    EXPECT_EQ(record.subscriber_v4.field_1, 8u);
    EXPECT_EQ(record.subscriber_v6.field_2.length, 2u);
    EXPECT_EQ(record.session_data.field_2, 102u);
    EXPECT_EQ(record.session_data.vlan.field_1, 103u);
    EXPECT_EQ(record.qos_count, 2u);
    EXPECT_EQ(record.urpf_1.field_1, 15u);
    EXPECT_EQ(record.urpf_2.field_1, 16u);
    EXPECT_EQ(record.icmp_1.field_1, 17u);
    EXPECT_EQ(record.icmp_2.field_1, 18u);
    EXPECT_EQ(record.mtu_1.field_1, 19u);
    EXPECT_EQ(record.mtu_2.field_1, 20u);
    EXPECT_EQ(record.mtu_3.field_1, 21u);
    EXPECT_EQ(record.acct.field_1, 22u);
    EXPECT_EQ(record.route_ipv4_count, 2u);
    EXPECT_EQ(record.route_ipv6_count, 2u);
    EXPECT_EQ(got.present(), all_own_bits<mava_tum_session_context>);
}

TEST(session_context, encode_of_a_decoded_record_gives_the_same_bytes_in_both_modes)
{
    const byte_vector wire = full_session_context();
    for (uint32_t flags : {0u, alias}) {
        context_decode got(wire, {.flags = flags});
        EXPECT_EQ(hex_of(encoded(got.record)), hex_of(wire));
    }
}

// Sets every presence bit of the record and of its inline records, so that an encode writes every value.
void mark_everything(mava_tum_session_context &record)
{
    const auto mark = [](auto &nested) {
        using record_type = std::remove_reference_t<decltype(nested)>;
        nested.presence_mask = static_cast<decltype(nested.presence_mask)>(all_own_bits<record_type>);
    };
    mark(record);
    mark(record.subscriber_v4);
    mark(record.subscriber_v6);
    mark(record.session_data);
    mark(record.session_data.ppp);
    mark(record.session_data.l2tp);
    mark(record.session_data.vlan);
    mark(record.acl);
    mark(record.httpr);
    mark(record.li);
    mark(record.urpf_1);
    mark(record.urpf_2);
    mark(record.icmp_1);
    mark(record.icmp_2);
    mark(record.mtu_1);
    mark(record.mtu_2);
    mark(record.mtu_3);
    mark(record.acct);
}

TEST(session_context, decode_of_an_empty_span_resets_every_member_at_every_depth)
{
    context_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.present(), 0u);
    EXPECT_EQ(got.record.field_6.data, nullptr);
    EXPECT_EQ(got.record.subscriber_v6.field_6.data, nullptr);
    EXPECT_EQ(got.record.session_data.ppp.field_5.data, nullptr);
    EXPECT_EQ(got.record.session_data.l2tp.field_5.data, nullptr);
    EXPECT_EQ(got.record.session_data.l2tp.field_19, nullptr);
    EXPECT_EQ(got.record.session_data.field_8, nullptr);
    EXPECT_EQ(got.record.qos, nullptr);
    EXPECT_EQ(got.record.acl.field_5, nullptr);
    EXPECT_EQ(got.record.httpr.field_2, nullptr);
    EXPECT_EQ(got.record.li.field_8.data, nullptr);
    EXPECT_EQ(got.record.route_ipv4, nullptr);
    EXPECT_EQ(got.record.route_ipv6, nullptr);

    mava_tum_session_context zeros{};
    mark_everything(zeros);
    mark_everything(got.record);
    EXPECT_EQ(encoded_hex(got.record), encoded_hex(zeros));
}

TEST(session_context, decode_keeps_the_top_eight_bits_of_the_mask)
{
    mava_tum_session_context record{};
    record.presence_mask = 0xA5FFFFFF;
    const byte_vector wire = bytes_of("08 01");
    EXPECT_EQ(mava_tum_session_context_decode_ext(&record, wire.data(), wire.size(), nullptr, nullptr, 0), MAVA_TUM_OK);
    EXPECT_EQ(record.presence_mask, 0xA5000001u);
}

TEST(session_context, decode_refuses_a_second_run_of_qos_after_another_field)
{
    context_decode got("5A 02 08 01 5A 02 08 02 08 07 5A 02 08 03");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.record.field_1, 7u);
    ASSERT_EQ(got.record.qos_count, 2u) << "the first run stays";
    EXPECT_EQ(got.record.qos[1].field_1, 2u);
    EXPECT_EQ(got.present(), fields(1, 11));
}

TEST(session_context, decode_of_one_run_gives_one_array)
{
    context_decode got("5A 02 08 01 5A 02 08 02 5A 02 08 03");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.qos_count, 3u);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{3 * sizeof(mava_tum_subscriber_qos)}));
}

TEST(session_context, decode_reads_a_qos_entry_with_a_varint_wire_type_as_if_it_were_length_delimited)
{
    context_decode got("5A 00 58 00");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.qos_count, 2u);

    EXPECT_EQ(context_decode("58 00").result, MAVA_TUM_WRONG_WIRE_TYPE) << "the first entry";
}

TEST(session_context, a_nested_record_with_content_but_a_clear_bit_arrives_with_its_bit_set)
{
    mava_tum_session_context record{};
    record.subscriber_v4.field_1 = 1;
    mark_present(record.subscriber_v4, 1);
    record.acct.field_3 = 2;
    mark_present(record.acct, 3);
    EXPECT_EQ(encoded_hex(record), "42 02 08 01 B2 01 02 18 02");

    context_decode received(encoded(record));
    EXPECT_EQ(received.present(), fields(8, 22));
    EXPECT_EQ(received.record.subscriber_v4.field_1, 1u);
}

TEST(session_context, present_empty_nested_records_are_written_as_tag_and_00)
{
    mava_tum_session_context record{};
    mark_present(record, 8);
    EXPECT_EQ(encoded_hex(record), "42 00");
    mark_present(record, 9, 10, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22);
    EXPECT_EQ(encoded_hex(record), "42 00 4A 00 52 00 62 00 6A 00 72 00 7A 00 82 01 00 8A 01 00 92 01 00 9A 01 00 "
                                   "A2 01 00 AA 01 00 B2 01 00");
    context_decode received(encoded(record));
    EXPECT_EQ(received.result, MAVA_TUM_OK);
    EXPECT_EQ(own_bits(received.record), own_bits(record));
}

TEST(session_context, field_6_is_written_when_present_even_if_empty)
{
    mava_tum_session_context record{};
    mark_present(record, 6);
    EXPECT_EQ(encoded_hex(record), "32 00");
}

TEST(session_context, decode_skips_fields_25_and_up_and_0)
{
    context_decode got("C8 01 05 CA 01 02 08 01 00 05 F8 FF FF FF 0F 01 08 07");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.present(), fields(1));
    EXPECT_EQ(context_decode("CB 01").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
}

TEST(session_context, decode_refuses_a_second_field_6)
{
    for (uint32_t flags : {0u, alias})
        EXPECT_EQ(context_decode("32 00 32 00", {.flags = flags}).result, MAVA_TUM_TRUNCATED);
}

TEST(session_context, decode_without_an_allocator_takes_exactly_what_needs_none)
{
    // In alias mode: bytes fields at all depths, and everything scalar.
    for (const char *hex : {"32 01 AA", "42 02 08 01", "4A 03 12 01 AA", "52 03 32 01 AA", "52 05 1A 03 2A 01 AA",
             "62 02 08 01", "6A 02 08 01", "72 03 22 01 AA", "7A 02 08 01", "8A 01 02 08 01", "B2 01 02 08 01"}) {
        EXPECT_EQ(context_decode(hex, {.flags = alias, .allocator_given = false}).result, MAVA_TUM_OK) << hex;
    }
    for (const char *hex : {"5A 00", "62 03 12 01 61", "6A 03 12 01 61", "52 03 2A 01 61", "BA 01 00", "C2 01 00"}) {
        EXPECT_EQ(context_decode(hex, {.flags = alias, .allocator_given = false}).result, MAVA_TUM_NO_MEMORY) << hex;
    }
    // In copy mode, bytes fields also need one.
    for (const char *hex : {"32 01 AA", "4A 03 12 01 AA", "52 03 32 01 AA", "72 03 22 01 AA"})
        EXPECT_EQ(context_decode(hex, {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY) << hex;
    EXPECT_EQ(context_decode("42 02 08 01 7A 00", {.allocator_given = false}).result, MAVA_TUM_OK);
}

TEST(session_context, decode_asks_for_its_blocks_in_wire_order)
{
    std::vector<uint64_t> all_sizes;
    std::vector<uint64_t> sizes_without_bytes;
    for (const allocation_row &row : full_session_context_allocations()) {
        all_sizes.push_back(row.size);
        if (!row.bytes)
            sizes_without_bytes.push_back(row.size);
    }
    context_decode copied(full_session_context());
    EXPECT_EQ(copied.allocator.requested_sizes(), all_sizes);
    context_decode aliased(full_session_context(), {.flags = alias});
    EXPECT_EQ(aliased.allocator.requested_sizes(), sizes_without_bytes);
}

TEST(session_context, each_allocation_that_fails_ends_the_decode_at_its_field)
{
    const std::vector<allocation_row> &rows = full_session_context_allocations();
    for (std::size_t failing = 1; failing <= rows.size(); ++failing) {
        const allocation_row &row = rows[failing - 1];
        context_decode got(full_session_context(), {.failing_call = failing});
        EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(got.present(), fields(row.field) - 1) << "the fields before it, and no later one, " << failing;
        EXPECT_EQ(got.allocator.calls().size(), failing);
        EXPECT_EQ(got.allocator.outstanding_count(), failing - 1);
        got.free_now();
        EXPECT_EQ(got.allocator.outstanding_count(), 0u) << failing;
    }
}

} // namespace
} // namespace mava_tum_test
