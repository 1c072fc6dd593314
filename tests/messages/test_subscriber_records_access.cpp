// ppp_data, l2tp_data and vlan_info: how a subscriber reaches the network.
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{


using ppp_decode = decoded<mava_tum_ppp_data>;
using l2tp_decode = decoded<mava_tum_l2tp_data>;
using vlan_decode = decoded<mava_tum_vlan_info>;

// ---- ppp_data ----

TEST(ppp_data, schema_is_five_varints_around_a_bytes_field)
{
    expect_schema<mava_tum_ppp_data>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::varint, "18 03"},
        {4, wire_type::varint, "20 04"},
        {5, wire_type::length_delimited, "2A 09 01 02 03 04 05 06 07 08 09"},
        {6, wire_type::varint, "30 FF FF FF FF 0F"},
    });
}

TEST(ppp_data, decode_stores_each_value_in_its_own_member)
{
    ppp_decode got("08 01 10 02 18 03 20 04 2A 02 AA BB 30 06");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 2u);
    EXPECT_EQ(got.record.field_3, 3u);
    EXPECT_EQ(got.record.field_4, 4u);
    EXPECT_EQ(hex_of(content_of(got.record.field_5)), "AA BB");
    EXPECT_EQ(got.record.field_6, 6u);
}

TEST(ppp_data, decode_refuses_a_second_field_5)
{
    ppp_decode got("2A 02 AA BB 2A 00");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(hex_of(content_of(got.record.field_5)), "AA BB");
    EXPECT_EQ(got.present(), fields(5));
}

TEST(ppp_data, duplicate_goes_on_after_a_failed_field_5)
{
    ppp_decode source("08 01 20 04 2A 02 AA BB 30 06");
    duplicated<mava_tum_ppp_data> copy(source.record, {.failing_call = 1});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{2}));
    EXPECT_EQ(copy.record.field_1, 1u);
    EXPECT_EQ(copy.record.field_4, 4u);
    EXPECT_EQ(copy.record.field_5.data, nullptr);
    EXPECT_EQ(copy.record.field_6, 6u);
    EXPECT_EQ(copy.present(), fields(1, 4, 6));
}

TEST(ppp_data, free_releases_field_5_only_with_the_alias_bit_clear)
{
    ppp_decode copied("2A 02 AA BB");
    const void *block = copied.record.field_5.data;
    copied.free_now();
    EXPECT_EQ(copied.allocator.released(), (std::vector<const void *>{block}));
    EXPECT_EQ(copied.record.field_5.data, nullptr);

    ppp_decode aliased("2A 02 AA BB", {.flags = alias});
    aliased.free_now();
    EXPECT_TRUE(aliased.allocator.released().empty());
}

// ---- l2tp_data ----

const std::vector<field_row> l2tp_rows = {
    {1, wire_type::varint, "08 01"},
    {2, wire_type::fixed32, "15 0A 00 00 01"},
    {3, wire_type::fixed32, "1D 0A 00 00 02"},
    {4, wire_type::length_delimited, "22 02 AA BB"},
    {5, wire_type::length_delimited, "2A 01 CC"},
    {6, wire_type::varint, "30 06"},
    {7, wire_type::varint, "38 07"},
    {8, wire_type::varint, "40 08"},
    {9, wire_type::varint, "48 09"},
    {10, wire_type::varint, "50 0A"},
    {11, wire_type::varint, "58 0B"},
    {12, wire_type::varint, "60 0C"},
    {13, wire_type::varint, "68 0D"},
    {14, wire_type::varint, "70 0E"},
    {15, wire_type::varint, "78 0F"},
    {16, wire_type::varint, "80 01 10"},
    {17, wire_type::varint, "88 01 11"},
    {18, wire_type::varint, "90 01 12"},
    {19, wire_type::length_delimited, "9A 01 03 61 62 63"},
};

byte_vector full_l2tp()
{
    byte_vector wire;
    for (const field_row &row : l2tp_rows)
        wire = joined({wire, bytes_of(row.sample)});
    return wire;
}

TEST(l2tp_data, schema_is_19_fields_with_two_byte_tags_from_16)
{
    expect_schema<mava_tum_l2tp_data>(l2tp_rows);
}

TEST(l2tp_data, decode_stores_each_value_in_its_own_member)
{
    l2tp_decode got(full_l2tp());
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    const mava_tum_l2tp_data &record = got.record;
    EXPECT_EQ(record.field_1, 1u);
    EXPECT_EQ(record.field_2, 0x0100000Au);
    EXPECT_EQ(record.field_3, 0x0200000Au);
    EXPECT_EQ(hex_of(content_of(record.field_4)), "AA BB");
    EXPECT_EQ(hex_of(content_of(record.field_5)), "CC");
    const uint32_t scalars[] = {record.field_6, record.field_7, record.field_8, record.field_9, record.field_10,
        record.field_11, record.field_12, record.field_13, record.field_14, record.field_15, record.field_16,
        record.field_17, record.field_18};
    for (uint32_t i = 0; i < 13; ++i)
        EXPECT_EQ(scalars[i], i + 6);
    EXPECT_STREQ(record.field_19, "abc");
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2, 1, 4}));
}

TEST(l2tp_data, decode_copies_and_terminates_field_19_in_both_modes)
{
    for (uint32_t flags : {0u, alias}) {
        l2tp_decode got("9A 01 03 61 62 63", {.flags = flags});
        EXPECT_EQ(got.result, MAVA_TUM_OK);
        ASSERT_TRUE(got.allocator.is_outstanding(got.record.field_19)) << "a fresh block";
        EXPECT_EQ(hex_of(reinterpret_cast<const uint8_t *>(got.record.field_19), 4), "61 62 63 00");
        EXPECT_EQ(got.present(), fields(19));
        EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{4}));
    }
}

TEST(l2tp_data, decode_of_field_19_without_an_allocator_fails_whatever_the_flags)
{
    for (uint32_t flags : {0u, alias, 0xFFFFFFFFu}) {
        l2tp_decode got("9A 01 03 61 62 63", {.flags = flags, .allocator_given = false});
        EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
        EXPECT_EQ(got.record.field_19, nullptr);
        EXPECT_EQ(got.present(), 0u);
    }
}

TEST(l2tp_data, decode_reads_field_16_as_a_varint_and_refuses_it_as_a_fixed32)
{
    l2tp_decode got("80 01 05");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_16, 5u);
    EXPECT_EQ(l2tp_decode("85 01 00 00 00 00").result, MAVA_TUM_WRONG_WIRE_TYPE);
}

TEST(l2tp_data, decode_keeps_an_address_in_network_order)
{
    l2tp_decode got("15 0A 00 00 01");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_2, 0x0100000Au); // on every host
}

TEST(l2tp_data, encode_writes_nothing_for_a_present_null_field_19)
{
    mava_tum_l2tp_data record{};
    mark_present(record, 19);
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u);
}

TEST(l2tp_data, duplicate_of_a_present_null_field_19_stays_null_and_present)
{
    mava_tum_l2tp_data source{};
    mark_present(source, 19);
    duplicated<mava_tum_l2tp_data> copy(source, {.allocator_given = false});
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.record.field_19, nullptr);
    EXPECT_EQ(copy.present(), fields(19));
}

TEST(l2tp_data, duplicate_takes_fields_4_5_and_19_and_survives_the_failure_of_any)
{
    l2tp_decode source(full_l2tp());
    const uint32_t all = all_own_bits<mava_tum_l2tp_data>;
    const uint32_t lost[] = {0, fields(4), fields(5), fields(19)};
    for (std::size_t failing = 0; failing <= 3; ++failing) {
        duplicated<mava_tum_l2tp_data> copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, failing == 0 ? MAVA_TUM_OK : MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{2, 1, 4})) << failing;
        EXPECT_EQ(copy.present(), all & ~lost[failing]) << failing;
        EXPECT_EQ(copy.record.field_18, 18u) << failing;
    }
}

TEST(l2tp_data, free_releases_fields_4_5_and_19_in_this_order)
{
    l2tp_decode got(full_l2tp());
    const std::vector<const void *> expected = {got.record.field_4.data, got.record.field_5.data, got.record.field_19};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
}

TEST(l2tp_data, free_with_the_alias_bit_releases_field_19_alone)
{
    l2tp_decode got(full_l2tp(), {.flags = alias});
    const void *text = got.record.field_19;
    got.free_now();
    EXPECT_EQ(got.allocator.released(), (std::vector<const void *>{text}));
    EXPECT_NE(got.record.field_4.data, nullptr);
}

// ---- vlan_info ----

TEST(vlan_info, schema_is_two_varints)
{
    expect_schema<mava_tum_vlan_info>({
        {1, wire_type::varint, "08 64"},
        {2, wire_type::varint, "10 C8 01"},
    });
}

TEST(vlan_info, decode_reads_both_values)
{
    vlan_decode got("08 64 10 C8 01");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 100u);
    EXPECT_EQ(got.record.field_2, 200u);
}

TEST(vlan_info, decode_refuses_field_2_as_a_fixed32)
{
    EXPECT_EQ(vlan_decode("15 00 00 00 00").result, MAVA_TUM_WRONG_WIRE_TYPE);
}

TEST(vlan_info, duplicate_copies_both_values)
{
    vlan_decode source("08 64 10 C8 01");
    duplicated<mava_tum_vlan_info> copy(source.record);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(encoded_hex(copy.record), "08 64 10 C8 01");
    mava_tum_vlan_info_free_ext(nullptr);
}

} // namespace
} // namespace mava_tum_test
