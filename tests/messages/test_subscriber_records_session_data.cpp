// session_data: the values of one session, with its access records inside.
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{


using session_data_decode = decoded<mava_tum_session_data>;

// Every field; each field that owns memory has a different size: ppp.field_5 1 byte, l2tp 2 and 3 bytes and a text of
// 3, field_5 a text of 4, field_6 6 bytes, field_7 a text of 6, field_8 a text of 7.
const char *const full_session_data = "08 01 10 02 1A 03 2A 01 A1 22 0F 22 02 B1 B2 2A 03 C1 C2 C3 9A 01 03 61 61 61 "
                                      "2A 04 62 62 62 62 32 06 D1 D2 D3 D4 D5 D6 3A 06 63 63 63 63 63 63 "
                                      "42 07 64 64 64 64 64 64 64 48 09 52 04 08 64 10 65 58 0B";

const std::vector<uint64_t> full_session_data_sizes = {1, 2, 3, 4, 5, 6, 7, 8};

// The blocks of the record in schema order; without the bytes fields for a record in alias mode.
std::vector<const void *> owned_blocks(const mava_tum_session_data &record, uint32_t flags)
{
    if ((flags & alias) != 0)
        return {record.l2tp.field_19, record.field_5, record.field_7, record.field_8};
    return {record.ppp.field_5.data, record.l2tp.field_4.data, record.l2tp.field_5.data, record.l2tp.field_19,
        record.field_5, record.field_6.data, record.field_7, record.field_8};
}

TEST(session_data, schema_is_11_fields_with_three_records_inside)
{
    expect_schema<mava_tum_session_data>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 FF FF FF FF FF FF FF FF FF 01"},
        {3, wire_type::length_delimited, "1A 02 08 01"},
        {4, wire_type::length_delimited, "22 03 80 01 05"},
        {5, wire_type::length_delimited, "2A 01 61"},
        {6, wire_type::length_delimited, "32 07 01 02 03 04 05 06 07"},
        {7, wire_type::length_delimited, "3A 00"},
        {8, wire_type::length_delimited, "42 02 62 63"},
        {9, wire_type::varint, "48 AC 02"},
        {10, wire_type::length_delimited, "52 00"},
        {11, wire_type::varint, "58 00"},
    });
}

TEST(session_data, decode_stores_each_value_in_its_own_member)
{
    session_data_decode got(full_session_data);
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 2u);
    EXPECT_EQ(hex_of(content_of(got.record.ppp.field_5)), "A1");
    EXPECT_STREQ(got.record.l2tp.field_19, "aaa");
    EXPECT_STREQ(got.record.field_5, "bbbb");
    EXPECT_EQ(hex_of(content_of(got.record.field_6)), "D1 D2 D3 D4 D5 D6");
    EXPECT_STREQ(got.record.field_7, "cccccc");
    EXPECT_STREQ(got.record.field_8, "ddddddd");
    EXPECT_EQ(got.record.field_9, 9u);
    EXPECT_EQ(got.record.vlan.field_1, 100u);
    EXPECT_EQ(got.record.vlan.field_2, 101u);
    EXPECT_EQ(got.record.field_11, 11u);
    EXPECT_EQ(got.allocator.requested_sizes(), full_session_data_sizes);
    EXPECT_EQ(encoded_hex(got.record), full_session_data);
}

TEST(session_data, decode_reads_all_ten_bytes_of_field_2)
{
    session_data_decode got("10 FF FF FF FF FF FF FF FF FF 01");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_2, 0xFFFFFFFFFFFFFFFF);

    session_data_decode narrow("48 FF FF FF FF FF FF FF FF FF 01");
    EXPECT_EQ(narrow.record.field_9, 0xFFFFFFFF);
}

TEST(session_data, an_empty_ppp_is_present_and_written_again)
{
    session_data_decode got("1A 00");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.present(), fields(3));
    EXPECT_EQ(own_bits(got.record.ppp), 0u);
    EXPECT_EQ(encoded_hex(got.record), "1A 00");
}

TEST(session_data, a_defect_inside_ppp_is_the_result_and_leaves_the_bit_clear)
{
    session_data_decode got("1A 02 0A 00");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(got.present(), 0u);
}

TEST(session_data, decode_without_an_allocator_refuses_texts_in_both_modes_and_aliases_bytes)
{
    for (const char *text : {"2A 01 41", "3A 01 41", "42 01 41"}) {
        for (uint32_t flags : {0u, alias}) {
            session_data_decode got(text, {.flags = flags, .allocator_given = false});
            EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY) << text;
            EXPECT_EQ(got.present(), 0u) << text;
        }
    }
    EXPECT_EQ(session_data_decode("32 01 41", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);

    session_data_decode aliased("32 01 41", {.flags = alias, .allocator_given = false});
    EXPECT_EQ(aliased.result, MAVA_TUM_OK);
    EXPECT_EQ(aliased.record.field_6.data, aliased.wire.data() + 2);
    EXPECT_EQ(aliased.record.field_6.length, 1u);
}

TEST(session_data, decode_refuses_a_second_occurrence_of_each_text_and_of_field_6)
{
    for (const char *hex : {"2A 01 41 2A 01 42", "32 01 41 32 00", "3A 00 08 01 3A 00", "42 00 42 00"}) {
        session_data_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << hex;
        EXPECT_EQ(got.allocator.calls().size(), 1u) << hex;
    }
}

TEST(session_data, decode_fills_vlan)
{
    session_data_decode got("52 02 08 07");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.vlan.field_1, 7u);
    EXPECT_EQ(own_bits(got.record.vlan), fields(1));
    EXPECT_EQ(got.present(), fields(10));
}

TEST(session_data, each_allocation_that_fails_ends_the_decode_at_its_field)
{
    const uint32_t present_before[] = {fields(1, 2), fields(1, 2, 3), fields(1, 2, 3), fields(1, 2, 3),
        fields(1, 2, 3, 4), fields(1, 2, 3, 4, 5), fields(1, 2, 3, 4, 5, 6), fields(1, 2, 3, 4, 5, 6, 7)};
    for (std::size_t failing = 1; failing <= 8; ++failing) {
        session_data_decode got(full_session_data, {.failing_call = failing});
        EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(got.present(), present_before[failing - 1]) << failing;
        EXPECT_EQ(got.allocator.calls().size(), failing) << "nothing was asked for afterwards";
        EXPECT_EQ(got.allocator.outstanding_count(), failing - 1);
        EXPECT_EQ(got.record.field_9, 0u) << failing;
    }
}

TEST(session_data, duplicate_takes_its_blocks_in_schema_order)
{
    session_data_decode source(full_session_data);
    duplicated<mava_tum_session_data> copy(source.record);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.allocator.requested_sizes(), full_session_data_sizes);
    EXPECT_EQ(encoded_hex(copy.record), full_session_data);
}

TEST(session_data, duplicate_loses_exactly_what_could_not_be_copied)
{
    session_data_decode source(full_session_data);
    const uint32_t all = all_own_bits<mava_tum_session_data>;
    const uint32_t lost[] = {0, 0, 0, 0, fields(5), fields(6), fields(7), fields(8)};
    for (std::size_t failing = 1; failing <= 8; ++failing) {
        duplicated<mava_tum_session_data> copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(copy.allocator.requested_sizes(), full_session_data_sizes) << failing << ": it continues";
        EXPECT_EQ(copy.present(), all & ~lost[failing - 1]) << failing;
        EXPECT_EQ(own_bits(copy.record.ppp), failing == 1 ? 0u : fields(5)) << failing;
        EXPECT_EQ(copy.record.vlan.field_2, 101u) << failing;
        EXPECT_EQ(copy.record.field_11, 11u) << failing;
    }
}

TEST(session_data, free_releases_in_schema_order_and_once)
{
    for (uint32_t flags : {0u, alias}) {
        session_data_decode got(full_session_data, {.flags = flags});
        const std::vector<const void *> expected = owned_blocks(got.record, flags);
        got.free_now();
        EXPECT_EQ(got.allocator.released(), expected) << "flags " << flags;
        got.free_now();
        EXPECT_EQ(got.allocator.released().size(), expected.size()) << "flags " << flags;
        EXPECT_EQ(got.present(), all_own_bits<mava_tum_session_data>);
        EXPECT_EQ(got.record.field_11, 11u);
    }
}

TEST(session_data, free_with_the_alias_bit_leaves_field_6_and_the_bytes_of_ppp)
{
    session_data_decode got(full_session_data, {.flags = alias});
    const uint8_t *own_bytes = got.record.field_6.data;
    const uint8_t *ppp_bytes = got.record.ppp.field_5.data;
    got.free_now();
    EXPECT_EQ(got.record.field_6.data, own_bytes);
    EXPECT_EQ(got.record.ppp.field_5.data, ppp_bytes);
    EXPECT_EQ(got.record.l2tp.field_19, nullptr);
}

} // namespace
} // namespace mava_tum_test
