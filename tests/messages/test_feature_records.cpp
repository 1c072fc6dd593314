// subscriber_qos, subscriber_acl and subscriber_httpr: features made of scalars and texts.
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using qos_decode = decoded<mava_tum_subscriber_qos>;
using acl_decode = decoded<mava_tum_subscriber_acl>;
using httpr_decode = decoded<mava_tum_subscriber_httpr>;

// ---- subscriber_qos ----

const std::vector<field_row> qos_rows = {
    {1, wire_type::varint, "08 01"},
    {2, wire_type::varint, "10 02"},
    {3, wire_type::length_delimited, "1A 00"},
    {4, wire_type::length_delimited, "22 01 61"},
    {5, wire_type::length_delimited, "2A 02 62 62"},
    {6, wire_type::varint, "30 06"},
    {7, wire_type::varint, "38 07"},
    {8, wire_type::varint, "40 08"},
    {9, wire_type::length_delimited, "4A 03 63 63 63"},
    {10, wire_type::length_delimited, "52 04 64 64 64 64"},
    {11, wire_type::length_delimited, "5A 05 65 65 65 65 65"},
    {12, wire_type::length_delimited, "62 06 66 66 66 66 66 66"},
};

const std::vector<uint64_t> qos_sizes = {1, 2, 3, 4, 5, 6, 7};

byte_vector full_qos()
{
    byte_vector wire;
    for (const field_row &row : qos_rows)
        wire = joined({wire, bytes_of(row.sample)});
    return wire;
}

TEST(subscriber_qos, schema_is_five_varints_and_seven_texts)
{
    expect_schema<mava_tum_subscriber_qos>(qos_rows);
}

TEST(subscriber_qos, decode_stores_each_value_in_its_own_member)
{
    qos_decode got(full_qos());
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 2u);
    EXPECT_STREQ(got.record.field_3, "");
    EXPECT_STREQ(got.record.field_4, "a");
    EXPECT_STREQ(got.record.field_5, "bb");
    EXPECT_EQ(got.record.field_6, 6u);
    EXPECT_EQ(got.record.field_7, 7u);
    EXPECT_EQ(got.record.field_8, 8u);
    EXPECT_STREQ(got.record.field_9, "ccc");
    EXPECT_STREQ(got.record.field_10, "dddd");
    EXPECT_STREQ(got.record.field_11, "eeeee");
    EXPECT_STREQ(got.record.field_12, "ffffff");
    EXPECT_EQ(got.allocator.requested_sizes(), qos_sizes);
}

TEST(subscriber_qos, decode_of_an_empty_span_gives_a_record_of_zeros)
{
    qos_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.present(), 0u);
    EXPECT_EQ(
        got.record.field_1 | got.record.field_2 | got.record.field_6 | got.record.field_7 | got.record.field_8, 0u);
    for (const char *text : {got.record.field_3, got.record.field_4, got.record.field_5, got.record.field_9,
             got.record.field_10, got.record.field_11, got.record.field_12})
        EXPECT_EQ(text, nullptr);
}

TEST(subscriber_qos, decode_refuses_a_second_text_but_takes_the_last_scalar)
{
    for (const char *hex : {"1A 01 61 1A 01 62", "62 00 08 01 62 00"})
        EXPECT_EQ(qos_decode(hex).result, MAVA_TUM_TRUNCATED) << hex;
    qos_decode scalar("08 01 08 02");
    EXPECT_EQ(scalar.result, MAVA_TUM_OK);
    EXPECT_EQ(scalar.record.field_1, 2u);
}

TEST(subscriber_qos, decode_refuses_field_1_as_length_delimited)
{
    EXPECT_EQ(qos_decode("0A 01 61").result, MAVA_TUM_WRONG_WIRE_TYPE);
}

TEST(subscriber_qos, decode_skips_field_13_of_any_wire_type_that_can_be_skipped)
{
    for (const char *hex : {"68 05", "69 01 02 03 04 05 06 07 08", "6A 02 08 01", "6D 01 02 03 04"}) {
        qos_decode got(joined({bytes_of(hex), bytes_of("10 02")}));
        EXPECT_EQ(got.result, MAVA_TUM_OK) << hex;
        EXPECT_EQ(got.present(), fields(2)) << hex;
    }
    for (const char *hex : {"6B", "6C", "6E", "6F"})
        EXPECT_EQ(qos_decode(hex).result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE) << hex;
}

TEST(subscriber_qos, encode_writes_all_ones_in_five_bytes)
{
    mava_tum_subscriber_qos record{};
    record.field_1 = 0xFFFFFFFF;
    mark_present(record, 1);
    EXPECT_EQ(encoded_hex(record), "08 FF FF FF FF 0F");
}

TEST(subscriber_qos, encode_omits_a_present_null_text_and_writes_an_empty_one)
{
    mava_tum_subscriber_qos record{};
    mark_present(record, 3);
    EXPECT_EQ(encoded_hex(record), "");
    std::string empty;
    record.field_3 = empty.data();
    EXPECT_EQ(encoded_hex(record), "1A 00");
}

TEST(subscriber_qos, each_allocation_that_fails_ends_the_decode_at_its_field)
{
    const uint32_t text_fields[] = {3, 4, 5, 9, 10, 11, 12};
    for (std::size_t failing = 1; failing <= 7; ++failing) {
        qos_decode got(full_qos(), {.failing_call = failing});
        EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(got.present(), fields(text_fields[failing - 1]) - 1) << "all fields before it, " << failing;
        EXPECT_EQ(got.allocator.outstanding_count(), failing - 1);
    }
}

TEST(subscriber_qos, duplicate_loses_exactly_the_texts_that_could_not_be_copied)
{
    qos_decode source(full_qos());
    const uint32_t text_fields[] = {3, 4, 5, 9, 10, 11, 12};
    const uint32_t all = all_own_bits<mava_tum_subscriber_qos>;
    for (std::size_t failing = 1; failing <= 7; ++failing) {
        duplicated<mava_tum_subscriber_qos> copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(copy.allocator.requested_sizes(), qos_sizes) << failing;
        EXPECT_EQ(copy.present(), all & ~fields(text_fields[failing - 1])) << failing;
    }
    duplicated<mava_tum_subscriber_qos> without(source.record, {.allocator_given = false});
    EXPECT_EQ(without.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(without.present(), fields(1, 2, 6, 7, 8));
    EXPECT_EQ(encoded_hex(without.record), "08 01 10 02 30 06 38 07 40 08");
}

TEST(subscriber_qos, free_releases_the_texts_in_schema_order)
{
    qos_decode got(full_qos());
    const mava_tum_subscriber_qos before = got.record;
    const std::vector<const void *> expected = {before.field_3, before.field_4, before.field_5, before.field_9,
        before.field_10, before.field_11, before.field_12};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_12, nullptr);
    EXPECT_EQ(got.record.field_8, 8u);
    EXPECT_EQ(got.record.presence_mask, before.presence_mask);
}

// ---- subscriber_acl ----

TEST(subscriber_acl, schema_is_a_varint_and_four_texts)
{
    expect_schema<mava_tum_subscriber_acl>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::length_delimited, "12 01 61"},
        {3, wire_type::length_delimited, "1A 02 62 62"},
        {4, wire_type::length_delimited, "22 00"},
        {5, wire_type::length_delimited, "2A 03 63 63 63"},
    });
}

TEST(subscriber_acl, decode_stores_each_value_in_its_own_member)
{
    acl_decode got("08 01 12 01 61 1A 01 62 22 01 63 2A 01 64");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_STREQ(got.record.field_2, "a");
    EXPECT_STREQ(got.record.field_3, "b");
    EXPECT_STREQ(got.record.field_4, "c");
    EXPECT_STREQ(got.record.field_5, "d");
}

TEST(subscriber_acl, free_releases_the_texts_in_schema_order)
{
    acl_decode got("2A 01 64 22 01 63 1A 01 62 12 01 61");
    const mava_tum_subscriber_acl before = got.record;
    got.free_now();
    EXPECT_EQ(got.allocator.released(),
        (std::vector<const void *>{before.field_2, before.field_3, before.field_4, before.field_5}));
}

// ---- subscriber_httpr ----

TEST(subscriber_httpr, schema_is_a_varint_and_a_text)
{
    expect_schema<mava_tum_subscriber_httpr>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::length_delimited, "12 03 61 62 63"},
    });
}

TEST(subscriber_httpr, decode_of_its_text_needs_an_allocator_and_only_one_occurrence)
{
    EXPECT_EQ(httpr_decode("12 01 61 12 01 61").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(httpr_decode("12 01 61", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(httpr_decode("08 01", {.allocator_given = false}).result, MAVA_TUM_OK);
}

TEST(subscriber_httpr, encode_with_a_present_null_text_writes_field_1_only)
{
    mava_tum_subscriber_httpr record{};
    record.field_1 = 5;
    mark_present(record, 1, 2);
    EXPECT_EQ(encoded_hex(record), "08 05");
}

TEST(subscriber_httpr, duplicate_copies_its_text)
{
    httpr_decode source("08 05 12 03 61 62 63");
    duplicated<mava_tum_subscriber_httpr> copy(source.record);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{4}));
    EXPECT_EQ(encoded_hex(copy.record), "08 05 12 03 61 62 63");
}

} // namespace
} // namespace mava_tum_test
