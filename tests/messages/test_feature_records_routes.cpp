// subscriber_route_ipv4 and subscriber_route_ipv6: one route of each address family.
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{


using ipv4_decode = decoded<mava_tum_subscriber_route_ipv4>;
using ipv6_decode = decoded<mava_tum_subscriber_route_ipv6>;

// ---- subscriber_route_ipv4 ----

const char *const full_ipv4_route =
    "08 01 12 01 61 1D 0A 00 00 01 20 04 2D 0A 00 00 02 32 02 62 62 38 07 40 08 4A 03 63 63 63";

TEST(subscriber_route_ipv4, schema_is_four_varints_two_fixed32_and_three_texts)
{
    expect_schema<mava_tum_subscriber_route_ipv4>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::length_delimited, "12 01 61"},
        {3, wire_type::fixed32, "1D 0A 00 00 01"},
        {4, wire_type::varint, "20 04"},
        {5, wire_type::fixed32, "2D 0A 00 00 02"},
        {6, wire_type::length_delimited, "32 00"},
        {7, wire_type::varint, "38 07"},
        {8, wire_type::varint, "40 08"},
        {9, wire_type::length_delimited, "4A 02 62 62"},
    });
}

TEST(subscriber_route_ipv4, decode_stores_each_value_in_its_own_member)
{
    ipv4_decode got(full_ipv4_route);
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_STREQ(got.record.field_2, "a");
    EXPECT_EQ(got.record.field_3, 0x0100000Au);
    EXPECT_EQ(got.record.field_4, 4u);
    EXPECT_EQ(got.record.field_5, 0x0200000Au);
    EXPECT_STREQ(got.record.field_6, "bb");
    EXPECT_EQ(got.record.field_7, 7u);
    EXPECT_EQ(got.record.field_8, 8u);
    EXPECT_STREQ(got.record.field_9, "ccc");
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2, 3, 4}));
}

TEST(subscriber_route_ipv4, encode_writes_an_address_in_network_order)
{
    mava_tum_subscriber_route_ipv4 record{};
    record.field_3 = 0x0100000A;
    mark_present(record, 3);
    EXPECT_EQ(encoded_hex(record), "1D 0A 00 00 01");
}

TEST(subscriber_route_ipv4, decode_refuses_field_3_as_a_varint_and_cut_short)
{
    EXPECT_EQ(ipv4_decode("18 05").result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(ipv4_decode("1D 0A 00 00").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(ipv4_decode("2D 0A 00 00").result, MAVA_TUM_TRUNCATED);
}

TEST(subscriber_route_ipv4, decode_takes_the_last_scalar_and_refuses_a_second_text)
{
    ipv4_decode scalars("1D 01 00 00 00 1D 02 00 00 00 20 01 20 02");
    EXPECT_EQ(scalars.result, MAVA_TUM_OK);
    EXPECT_EQ(scalars.record.field_3, 2u);
    EXPECT_EQ(scalars.record.field_4, 2u);
    for (const char *hex : {"12 00 12 00", "32 00 32 00", "4A 00 4A 00"})
        EXPECT_EQ(ipv4_decode(hex).result, MAVA_TUM_TRUNCATED) << hex;
}

TEST(subscriber_route_ipv4, decode_does_not_narrow_field_4)
{
    EXPECT_EQ(ipv4_decode("20 AC 02").record.field_4, 300u) << "the application side holds it in 8 bits, not the codec";
}

TEST(subscriber_route_ipv4, duplicate_loses_exactly_the_text_that_could_not_be_copied)
{
    ipv4_decode source(full_ipv4_route);
    const uint32_t text_fields[] = {2, 6, 9};
    for (std::size_t failing = 1; failing <= 3; ++failing) {
        duplicated<mava_tum_subscriber_route_ipv4> copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
        EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{2, 3, 4}));
        EXPECT_EQ(copy.present(), 0x1FFu & ~fields(text_fields[failing - 1]));
        EXPECT_EQ(copy.record.field_8, 8u);
    }
}

TEST(subscriber_route_ipv4, free_releases_fields_2_6_and_9_in_this_order)
{
    ipv4_decode got(full_ipv4_route);
    const std::vector<const void *> expected = {got.record.field_2, got.record.field_6, got.record.field_9};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
}

// ---- subscriber_route_ipv6 ----

const char *const full_ipv6_route = "08 01 12 01 61 1A 10 20 01 0D B8 00 00 00 00 00 00 00 00 00 00 00 01 20 40 "
                                    "2A 04 20 01 0D B8 32 02 62 62 38 07 40 08 4A 03 63 63 63";

TEST(subscriber_route_ipv6, schema_is_four_varints_two_bytes_fields_and_three_texts)
{
    expect_schema<mava_tum_subscriber_route_ipv6>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::length_delimited, "12 01 61"},
        {3, wire_type::length_delimited, "1A 02 AA BB"},
        {4, wire_type::varint, "20 04"},
        {5, wire_type::length_delimited, "2A 00"},
        {6, wire_type::length_delimited, "32 00"},
        {7, wire_type::varint, "38 07"},
        {8, wire_type::varint, "40 08"},
        {9, wire_type::length_delimited, "4A 02 62 62"},
    });
}

TEST(subscriber_route_ipv6, decode_stores_each_value_in_its_own_member)
{
    ipv6_decode got(full_ipv6_route);
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_STREQ(got.record.field_2, "a");
    EXPECT_EQ(hex_of(content_of(got.record.field_3)), "20 01 0D B8 00 00 00 00 00 00 00 00 00 00 00 01");
    EXPECT_EQ(got.record.field_4, 64u);
    EXPECT_EQ(hex_of(content_of(got.record.field_5)), "20 01 0D B8");
    EXPECT_STREQ(got.record.field_6, "bb");
    EXPECT_EQ(got.record.field_7, 7u);
    EXPECT_EQ(got.record.field_8, 8u);
    EXPECT_STREQ(got.record.field_9, "ccc");
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2, 16, 4, 3, 4}));
}

TEST(subscriber_route_ipv6, decode_takes_an_address_of_four_bytes)
{
    ipv6_decode got("1A 04 C0 00 02 01");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_3.length, 4u);
    EXPECT_EQ(got.present(), fields(3));
}

TEST(subscriber_route_ipv6, decode_refuses_a_second_address_or_text)
{
    for (const char *hex : {"12 00 12 00", "1A 00 1A 00", "2A 01 AA 2A 01 AA", "32 00 32 00", "4A 00 4A 00"})
        EXPECT_EQ(ipv6_decode(hex).result, MAVA_TUM_TRUNCATED) << hex;
    EXPECT_EQ(ipv6_decode("1A 00 1A 00", {.flags = alias}).result, MAVA_TUM_TRUNCATED);
}

TEST(subscriber_route_ipv6, decoded_and_freed_in_alias_mode_it_releases_only_its_texts)
{
    ipv6_decode got(full_ipv6_route, {.flags = alias});
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_3.data, got.wire.data() + 7);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2, 3, 4}));
    const std::vector<const void *> texts = {got.record.field_2, got.record.field_6, got.record.field_9};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), texts);
}

TEST(subscriber_route_ipv6, duplicate_loses_exactly_what_could_not_be_copied)
{
    ipv6_decode source(full_ipv6_route);
    const uint32_t owning_fields[] = {2, 3, 5, 6, 9};
    for (std::size_t failing = 1; failing <= 5; ++failing) {
        duplicated<mava_tum_subscriber_route_ipv6> copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
        EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{2, 16, 4, 3, 4}));
        EXPECT_EQ(copy.present(), 0x1FFu & ~fields(owning_fields[failing - 1]));
    }
    duplicated<mava_tum_subscriber_route_ipv6> without(source.record, {.allocator_given = false});
    EXPECT_EQ(without.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(encoded_hex(without.record), "08 01 20 40 38 07 40 08");
}

TEST(subscriber_route_ipv6, free_releases_fields_2_3_5_6_and_9_in_this_order)
{
    ipv6_decode got(full_ipv6_route);
    const mava_tum_subscriber_route_ipv6 before = got.record;
    got.free_now();
    EXPECT_EQ(got.allocator.released(), (std::vector<const void *>{before.field_2, before.field_3.data,
                                            before.field_5.data, before.field_6, before.field_9}));
}

} // namespace
} // namespace mava_tum_test
