// subscriber_v4 and subscriber_v6: the addresses of a subscriber.
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{


using v4_decode = decoded<mava_tum_subscriber_v4>;
using v6_decode = decoded<mava_tum_subscriber_v6>;

// ---- subscriber_v4: the reference case of the whole codec ----

mava_tum_subscriber_v4 reference_v4()
{
    mava_tum_subscriber_v4 record{};
    record.field_1 = 150;
    record.ipv4_address = 0x04030201;
    mark_present(record, 1, 2);
    return record;
}

TEST(subscriber_v4, schema_is_a_varint_and_a_fixed32)
{
    expect_schema<mava_tum_subscriber_v4>({
        {1, wire_type::varint, "08 96 01"},
        {2, wire_type::fixed32, "15 01 02 03 04"},
    });
}

TEST(subscriber_v4, decode_reads_both_fields)
{
    v4_decode got("08 96 01 15 01 02 03 04");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 150u);
    EXPECT_EQ(got.record.ipv4_address, 0x04030201u);
    EXPECT_EQ(got.present(), fields(1, 2));
}

TEST(subscriber_v4, decode_of_an_empty_span_clears_the_record_and_leaves_bits_2_to_7)
{
    mava_tum_subscriber_v4 record;
    fill_with_ones(record);
    record.presence_mask = 0xAF;
    EXPECT_EQ(mava_tum_subscriber_v4_decode_ext(&record, nullptr, 0), MAVA_TUM_OK);
    EXPECT_EQ(record.field_1, 0u);
    EXPECT_EQ(record.ipv4_address, 0u);
    EXPECT_EQ(record.presence_mask, 0xAC);
}

TEST(subscriber_v4, decode_refuses_a_cut_varint_and_a_cut_fixed32)
{
    EXPECT_EQ(v4_decode("08 96").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(v4_decode("15 01 02 03").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(v4_decode("08 80 80 80 80 80").result, MAVA_TUM_TRUNCATED) << "continuation bits to the end";
}

TEST(subscriber_v4, decode_refuses_a_known_field_of_another_wire_type)
{
    EXPECT_EQ(v4_decode("0D 01 02 03 04").result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(v4_decode("10 05").result, MAVA_TUM_WRONG_WIRE_TYPE);
}

TEST(subscriber_v4, decode_skips_an_unknown_varint)
{
    v4_decode got("18 05 08 07");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 7u);
    EXPECT_EQ(got.present(), fields(1));
}

TEST(subscriber_v4, decode_refuses_an_unknown_group_and_an_undefined_wire_type)
{
    EXPECT_EQ(v4_decode("1B 08 07").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(v4_decode("1F").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
}

TEST(subscriber_v4, decode_skips_past_the_end_without_reading_what_the_skip_covers)
{
    v4_decode fixed64("19 01 08 07");
    EXPECT_EQ(fixed64.result, MAVA_TUM_OK);
    EXPECT_EQ(fixed64.record.field_1, 0u);
    EXPECT_EQ(fixed64.present(), 0u);

    v4_decode claims_127_bytes("1A 7F 08 07");
    EXPECT_EQ(claims_127_bytes.result, MAVA_TUM_OK);
    EXPECT_EQ(claims_127_bytes.present(), 0u);
}

TEST(subscriber_v4, decode_skips_tag_0)
{
    v4_decode got("00 00");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.present(), 0u);
}

TEST(subscriber_v4, decode_truncates_a_ten_byte_varint)
{
    v4_decode got("08 FF FF FF FF FF FF FF FF FF 01");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 0xFFFFFFFF);
}

TEST(subscriber_v4, decode_takes_the_last_occurrence)
{
    v4_decode got("08 01 08 02");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 2u);
}

TEST(subscriber_v4, encode_writes_both_fields)
{
    EXPECT_EQ(encoded_hex(reference_v4()), "08 96 01 15 01 02 03 04");
}

TEST(subscriber_v4, encode_into_three_bytes_leaves_the_rest_untouched_and_returns_eight)
{
    const mava_tum_subscriber_v4 record = reference_v4();
    guarded_buffer buffer(8, 0xEE);
    EXPECT_EQ(mava_tum_subscriber_v4_encode_ext(&record, buffer.data(), 3, nullptr, nullptr), 8u);
    EXPECT_EQ(hex_of(buffer.content()), "08 96 01 EE EE EE EE EE");
    EXPECT_TRUE(buffer.guards_intact());
    EXPECT_EQ(mava_tum_subscriber_v4_encode_ext(&record, nullptr, 0, nullptr, nullptr), 8u);
}

TEST(subscriber_v4, encode_writes_all_ones_in_five_bytes)
{
    mava_tum_subscriber_v4 record{};
    record.field_1 = 0xFFFFFFFF;
    mark_present(record, 1);
    EXPECT_EQ(encoded_hex(record), "08 FF FF FF FF 0F");
}

TEST(subscriber_v4, encode_with_a_list_of_four_segments_reports_one)
{
    const mava_tum_subscriber_v4 record = reference_v4();
    uint8_t buffer[8];
    mava_tum_segment segments[4] = {};
    uint32_t count = 4;
    EXPECT_EQ(mava_tum_subscriber_v4_encode_ext(&record, buffer, sizeof buffer, segments, &count), 8u);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(segments[0].data, buffer);
    EXPECT_EQ(segments[0].length, 8u);
    EXPECT_EQ(segments[1].data, nullptr);
}

TEST(subscriber_v4, duplicate_copies_both_fields_and_keeps_bits_2_to_7)
{
    mava_tum_subscriber_v4 source = reference_v4();
    source.presence_mask = 0x0D; // field 1 only, and two reserved bits
    mava_tum_subscriber_v4 copy{};
    copy.presence_mask = 0xA2;
    EXPECT_EQ(mava_tum_subscriber_v4_duplicate(&copy, &source), MAVA_TUM_OK);
    EXPECT_EQ(copy.field_1, 150u);
    EXPECT_EQ(copy.ipv4_address, 0x04030201u);
    EXPECT_EQ(copy.presence_mask, 0xA1);
}

TEST(subscriber_v4, free_does_nothing)
{
    mava_tum_subscriber_v4 record = reference_v4();
    mava_tum_subscriber_v4_free_ext(&record);
    EXPECT_EQ(encoded_hex(record), "08 96 01 15 01 02 03 04");
    mava_tum_subscriber_v4_free_ext(nullptr);
}

// ---- subscriber_v6 ----

const char *const sixteen_bytes = "20 01 0D B8 00 00 00 00 00 00 00 00 00 00 00 01";

TEST(subscriber_v6, schema_is_three_varints_and_four_bytes_fields)
{
    expect_schema<mava_tum_subscriber_v6>({
        {1, wire_type::varint, "08 96 01"},
        {2, wire_type::length_delimited, "12 10 20 01 0D B8 00 00 00 00 00 00 00 00 00 00 00 01"},
        {3, wire_type::length_delimited, "1A 01 AA"},
        {4, wire_type::length_delimited, "22 00"},
        {5, wire_type::varint, "28 40"},
        {6, wire_type::length_delimited, "32 02 BB CC"},
        {7, wire_type::varint, "38 AC 02"},
    });
}

TEST(subscriber_v6, decode_copies_an_address_of_16_bytes_with_one_allocation)
{
    v6_decode got(joined({bytes_of("12 10"), bytes_of(sixteen_bytes)}));
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(hex_of(content_of(got.record.field_2)), sixteen_bytes);
    EXPECT_EQ(got.present(), fields(2));
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{16}));
}

TEST(subscriber_v6, decode_with_the_alias_bit_points_two_bytes_into_the_input)
{
    v6_decode got(joined({bytes_of("12 10"), bytes_of(sixteen_bytes)}), {.flags = alias});
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_2.data, got.wire.data() + 2);
    EXPECT_EQ(got.record.field_2.length, 16u);
    EXPECT_EQ(got.present(), fields(2));
    EXPECT_TRUE(got.allocator.calls().empty());
}

TEST(subscriber_v6, decode_refuses_a_second_occurrence_of_each_bytes_field)
{
    for (const char *hex : {"12 00 12 00", "1A 01 AA 1A 01 AA", "22 00 22 01 AA", "32 00 38 01 32 00"}) {
        EXPECT_EQ(v6_decode(hex).result, MAVA_TUM_TRUNCATED) << hex;
        EXPECT_EQ(v6_decode(hex, {.flags = alias}).result, MAVA_TUM_TRUNCATED) << hex << ", alias";
    }
}

TEST(subscriber_v6, decode_without_an_allocator_fails_at_the_first_bytes_field_only)
{
    v6_decode scalars("28 40", {.allocator_given = false});
    EXPECT_EQ(scalars.result, MAVA_TUM_OK);
    EXPECT_EQ(scalars.record.field_5, 64u);
    EXPECT_EQ(scalars.present(), fields(5));

    v6_decode bytes("28 40 12 01 AA 38 07", {.allocator_given = false});
    EXPECT_EQ(bytes.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(bytes.record.field_5, 64u);
    EXPECT_EQ(bytes.present(), fields(5));

    EXPECT_EQ(v6_decode("12 01 AA", {.flags = alias, .allocator_given = false}).result, MAVA_TUM_OK);
}

TEST(subscriber_v6, decode_refuses_scalars_that_arrive_length_delimited)
{
    EXPECT_EQ(v6_decode("0A 00").result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(v6_decode("2A 00").result, MAVA_TUM_WRONG_WIRE_TYPE);
}

TEST(subscriber_v6, decode_leaves_bit_7_set)
{
    mava_tum_subscriber_v6 record{};
    record.presence_mask = 0x80;
    const byte_vector wire = bytes_of("38 07");
    EXPECT_EQ(mava_tum_subscriber_v6_decode_ext(&record, wire.data(), wire.size(), nullptr, nullptr, 0), MAVA_TUM_OK);
    EXPECT_EQ(record.presence_mask, 0xC0);
}

TEST(subscriber_v6, decode_keeps_earlier_bytes_fields_after_a_failure_for_free_to_release)
{
    v6_decode got("12 01 AA 1A 01 BB 0A 00");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(got.present(), fields(2, 3));
    EXPECT_EQ(got.allocator.outstanding_count(), 2u);
    got.free_now();
    EXPECT_EQ(got.allocator.outstanding_count(), 0u);
}

TEST(subscriber_v6, encode_of_field_7_alone)
{
    mava_tum_subscriber_v6 record{};
    record.field_7 = 300;
    mark_present(record, 7);
    EXPECT_EQ(encoded_hex(record), "38 AC 02");
}

TEST(subscriber_v6, encode_one_byte_short_of_an_address_copies_none_of_it)
{
    byte_vector address = bytes_of(sixteen_bytes);
    mava_tum_subscriber_v6 record{};
    record.field_2 = bytes_field(address);
    mark_present(record, 2);
    const write_trace trace = encode_trace(record, 17, 18);
    EXPECT_EQ(hex_of(trace), "12 10 -- -- -- -- -- -- -- -- -- -- -- -- -- -- --");
    EXPECT_TRUE(trace.guards_intact);
}

TEST(subscriber_v6, duplicate_without_an_allocator_copies_all_but_the_address)
{
    byte_vector address = bytes_of(sixteen_bytes);
    mava_tum_subscriber_v6 source{};
    source.field_1 = 1;
    source.field_2 = bytes_field(address);
    source.field_5 = 5;
    source.field_7 = 7;
    mark_present(source, 1, 2, 3, 5, 7);
    duplicated<mava_tum_subscriber_v6> copy(source, {.allocator_given = false});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.record.field_1, 1u);
    EXPECT_EQ(copy.record.field_2.data, nullptr);
    EXPECT_EQ(copy.record.field_2.length, 0u);
    EXPECT_EQ(copy.record.field_5, 5u);
    EXPECT_EQ(copy.record.field_7, 7u);
    EXPECT_EQ(copy.present(), fields(1, 3, 5, 7));
}

TEST(subscriber_v6, duplicate_and_free_take_the_bytes_fields_in_schema_order)
{
    v6_decode source("32 04 01 02 03 04 22 03 01 02 03 1A 02 01 02 12 01 01");
    duplicated<mava_tum_subscriber_v6> copy(source.record);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{1, 2, 3, 4}));
    EXPECT_EQ(encoded(copy.record), encoded(source.record));

    const std::vector<const void *> expected = {
        source.record.field_2.data, source.record.field_3.data, source.record.field_4.data, source.record.field_6.data};
    source.free_now();
    EXPECT_EQ(source.allocator.released(), expected);
}

} // namespace
} // namespace mava_tum_test
