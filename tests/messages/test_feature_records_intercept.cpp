// subscriber_li, and the all-scalar features: subscriber_urpf, subscriber_icmp, subscriber_mtu and subscriber_acct.
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{


using li_decode = decoded<mava_tum_subscriber_li>;

// ---- subscriber_li ----

const char *const full_li = "08 01 10 02 18 03 22 02 AA BB 28 05 30 06 3D 07 00 00 00 42 03 CC DD EE";

TEST(subscriber_li, schema_is_five_varints_two_bytes_fields_and_a_fixed32)
{
    expect_schema<mava_tum_subscriber_li>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::varint, "18 03"},
        {4, wire_type::length_delimited, "22 02 AA BB"},
        {5, wire_type::varint, "28 05"},
        {6, wire_type::varint, "30 06"},
        {7, wire_type::fixed32, "3D 07 00 00 00"},
        {8, wire_type::length_delimited, "42 00"},
    });
}

TEST(subscriber_li, decode_stores_each_value_in_its_own_member)
{
    li_decode got(full_li);
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 2u);
    EXPECT_EQ(got.record.field_3, 3u);
    EXPECT_EQ(hex_of(content_of(got.record.field_4)), "AA BB");
    EXPECT_EQ(got.record.field_5, 5u);
    EXPECT_EQ(got.record.field_6, 6u);
    EXPECT_EQ(got.record.field_7, 7u);
    EXPECT_EQ(hex_of(content_of(got.record.field_8)), "CC DD EE");
    EXPECT_EQ(got.present(), 0xFFu) << "all eight bits belong to fields";
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2, 3})) << "no room for a terminator";
}

TEST(subscriber_li, decode_wants_field_7_as_four_whole_bytes)
{
    EXPECT_EQ(li_decode("38 05").result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(li_decode("3D 01 02 03").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(li_decode("3D 01 02 03 04").record.field_7, 0x04030201u);
}

TEST(subscriber_li, decode_refuses_a_second_occurrence_of_each_bytes_field)
{
    for (const char *hex : {"22 00 22 00", "42 01 AA 42 01 AA"}) {
        EXPECT_EQ(li_decode(hex).result, MAVA_TUM_TRUNCATED) << hex;
        EXPECT_EQ(li_decode(hex, {.flags = alias}).result, MAVA_TUM_TRUNCATED) << hex;
    }
}

TEST(subscriber_li, in_alias_mode_field_4_points_into_the_input_and_free_releases_nothing)
{
    li_decode got(full_li, {.flags = alias, .allocator_given = false});
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_4.data, got.wire.data() + 8);
    EXPECT_EQ(got.record.field_8.data, got.wire.data() + got.wire.size() - 3);
    got.free_now();
    EXPECT_TRUE(got.allocator.released().empty());
    EXPECT_EQ(got.record.field_4.data, got.wire.data() + 8);
}

TEST(subscriber_li, a_present_field_4_of_length_0_is_written_and_duplicated_as_null)
{
    mava_tum_subscriber_li record{};
    mark_present(record, 4);
    EXPECT_EQ(encoded_hex(record), "22 00");
    duplicated<mava_tum_subscriber_li> copy(record);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.record.field_4.data, nullptr);
    EXPECT_EQ(copy.present(), fields(4));
    EXPECT_TRUE(copy.allocator.calls().empty());
}

TEST(subscriber_li, duplicate_loses_exactly_the_bytes_field_that_could_not_be_copied)
{
    li_decode source(full_li);
    const uint32_t lost[] = {fields(4), fields(8)};
    for (std::size_t failing = 1; failing <= 2; ++failing) {
        duplicated<mava_tum_subscriber_li> copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
        EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{2, 3}));
        EXPECT_EQ(copy.present(), 0xFFu & ~lost[failing - 1]);
        const mava_tum_bytes &empty = failing == 1 ? copy.record.field_4 : copy.record.field_8;
        EXPECT_EQ(empty.data, nullptr);
        EXPECT_EQ(empty.length, 0u);
        EXPECT_EQ(copy.record.field_7, 7u);
    }
}

TEST(subscriber_li, free_releases_fields_4_and_8_in_this_order)
{
    li_decode got(full_li);
    const std::vector<const void *> expected = {got.record.field_4.data, got.record.field_8.data};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_8.length, 3u);
    EXPECT_EQ(got.present(), 0xFFu);
}

// ---- subscriber_urpf, subscriber_icmp, subscriber_mtu, subscriber_acct ----

TEST(subscriber_urpf, schema_is_two_varints)
{
    expect_schema<mava_tum_subscriber_urpf>({{1, wire_type::varint, "08 01"}, {2, wire_type::varint, "10 02"}});
}

TEST(subscriber_urpf, decode_skips_field_3)
{
    decoded<mava_tum_subscriber_urpf> got("18 01");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 0u);
    EXPECT_EQ(got.record.field_2, 0u);
    EXPECT_EQ(got.present(), 0u);
}

TEST(subscriber_icmp, schema_is_a_varint)
{
    expect_schema<mava_tum_subscriber_icmp>({{1, wire_type::varint, "08 01"}});
}

TEST(subscriber_icmp, encode_without_a_bit_writes_nothing)
{
    mava_tum_subscriber_icmp record{};
    record.field_1 = 1;
    EXPECT_EQ(encoded_hex(record), "");
}

TEST(subscriber_mtu, schema_is_a_varint)
{
    expect_schema<mava_tum_subscriber_mtu>({{1, wire_type::varint, "08 DC 0B"}});
}

TEST(subscriber_mtu, encode_of_1500)
{
    mava_tum_subscriber_mtu record{};
    record.field_1 = 1500;
    mark_present(record, 1);
    EXPECT_EQ(encoded_hex(record), "08 DC 0B");
}

TEST(subscriber_acct, schema_is_three_varints)
{
    expect_schema<mava_tum_subscriber_acct>(
        {{1, wire_type::varint, "08 01"}, {2, wire_type::varint, "10 02"}, {3, wire_type::varint, "18 03"}});
}

TEST(subscriber_acct, decode_keeps_the_second_field_2)
{
    decoded<mava_tum_subscriber_acct> got("10 01 10 02");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_2, 2u);
    EXPECT_EQ(got.present(), fields(2));
}

template <class record_type>
class scalar_feature : public testing::Test
{
};

using scalar_features = testing::Types<mava_tum_subscriber_urpf, mava_tum_subscriber_icmp, mava_tum_subscriber_mtu,
    mava_tum_subscriber_acct>;

TYPED_TEST_SUITE(scalar_feature, scalar_features);

TYPED_TEST(scalar_feature, duplicate_copies_values_and_own_bits)
{
    decoded<TypeParam> source("08 AC 02");
    duplicated<TypeParam> copy(source.record);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.record.field_1, 300u);
    EXPECT_EQ(copy.present(), fields(1));
}

TYPED_TEST(scalar_feature, free_does_nothing)
{
    decoded<TypeParam> got("08 AC 02");
    got.free_now();
    EXPECT_EQ(encoded_hex(got.record), "08 AC 02");
    mava_tum_catalogue::message_row<TypeParam>::release(nullptr);
}

} // namespace
} // namespace mava_tum_test
