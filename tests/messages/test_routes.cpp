// sub_route: a batch of routes.
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

#include <array>

namespace mava_tum_test
{
namespace
{

using batch_decode = decoded<mava_tum_sub_route>;


TEST(sub_route, schema_is_four_varints_and_two_arrays)
{
    expect_schema<mava_tum_sub_route>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 AC 02"},
        {3, wire_type::varint, "18 03"},
        {4, wire_type::length_delimited, "22 02 08 01 22 00"},
        {5, wire_type::length_delimited, "2A 03 1A 01 AA 2A 02 08 02"},
        {6, wire_type::varint, "30 06"},
    });
}

TEST(sub_route, decode_stores_each_value_in_its_own_member)
{
    batch_decode got("08 01 10 F0 A2 04 18 03 22 05 1D 0A 00 00 01 22 02 08 05 2A 03 12 01 61 30 06");
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 70000u) << "32 bits wide in the codec";
    EXPECT_EQ(got.record.field_3, 3u);
    ASSERT_EQ(got.record.ipv4_route_count, 2u);
    EXPECT_EQ(got.record.ipv4_routes[0].field_3, 0x0100000Au);
    EXPECT_EQ(got.record.ipv4_routes[1].field_1, 5u);
    ASSERT_EQ(got.record.ipv6_route_count, 1u);
    EXPECT_STREQ(got.record.ipv6_routes[0].field_2, "a");
    EXPECT_EQ(got.record.field_6, 6u);
}

TEST(sub_route, decode_of_an_empty_span_resets_the_record)
{
    batch_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1 | got.record.field_2 | got.record.field_3 | got.record.field_6, 0u);
    EXPECT_EQ(got.record.ipv4_routes, nullptr);
    EXPECT_EQ(got.record.ipv4_route_count, 0u);
    EXPECT_EQ(got.record.ipv6_routes, nullptr);
    EXPECT_EQ(got.record.ipv6_route_count, 0u);
    EXPECT_EQ(got.present(), 0u);
}

TEST(sub_route, two_routes_are_two_entries_each_with_its_own_length)
{
    std::array<mava_tum_subscriber_route_ipv4, 2> routes{};
    routes[0].field_3 = 0x0100000A;
    mark_present(routes[0], 3);
    routes[1].field_1 = 7;
    mark_present(routes[1], 1);
    mava_tum_sub_route record{};
    record.ipv4_routes = routes.data();
    record.ipv4_route_count = 2;
    mark_present(record, 4);
    EXPECT_EQ(encoded_hex(record), "22 05 1D 0A 00 00 01 22 02 08 07");
}

TEST(sub_route, scalars_of_value_0_are_written_when_present)
{
    mava_tum_sub_route record{};
    mark_present(record, 1, 2, 3, 6);
    EXPECT_EQ(encoded_hex(record), "08 00 10 00 18 00 30 00");
}

TEST(sub_route, decode_fails_at_a_second_run_and_keeps_the_first_and_what_came_between)
{
    batch_decode got("22 02 08 01 22 02 08 02 08 09 22 02 08 03");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.record.field_1, 9u);
    ASSERT_EQ(got.record.ipv4_route_count, 2u);
    EXPECT_EQ(got.record.ipv4_routes[1].field_1, 2u);
    EXPECT_EQ(got.present(), fields(1, 4));
}

TEST(sub_route, runs_of_both_families_in_any_order_are_two_arrays)
{
    batch_decode got("2A 02 08 03 2A 00 22 02 08 01");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(),
        (std::vector<uint64_t>{2 * sizeof(mava_tum_subscriber_route_ipv6), sizeof(mava_tum_subscriber_route_ipv4)}));
    EXPECT_EQ(got.present(), fields(4, 5));
}

TEST(sub_route, alternating_families_are_refused_at_the_second_run)
{
    batch_decode got("22 00 2A 00 22 00");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.present(), fields(4, 5));
}

TEST(sub_route, flags_reach_the_ipv6_elements)
{
    const char *wire = "22 03 12 01 61 2A 06 12 01 62 1A 01 AA";
    batch_decode aliased(wire, {.flags = alias});
    EXPECT_EQ(aliased.result, MAVA_TUM_OK);
    EXPECT_EQ(aliased.record.ipv6_routes[0].field_3.data, aliased.wire.data() + 12);
    EXPECT_EQ(aliased.allocator.requested_sizes(),
        (std::vector<uint64_t>{sizeof(mava_tum_subscriber_route_ipv4), 2, sizeof(mava_tum_subscriber_route_ipv6), 2}));
    batch_decode copied(wire);
    EXPECT_EQ(copied.allocator.calls().size(), 5u);
}

TEST(sub_route, decode_without_an_allocator_takes_scalars_only)
{
    EXPECT_EQ(batch_decode("08 01 30 02", {.allocator_given = false}).result, MAVA_TUM_OK);
    for (const char *hex : {"22 00", "2A 00"})
        EXPECT_EQ(batch_decode(hex, {.flags = alias, .allocator_given = false}).result, MAVA_TUM_NO_MEMORY) << hex;
}

TEST(sub_route, results_of_elements_are_passed_up)
{
    EXPECT_EQ(batch_decode("22 02 18 05").result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(batch_decode("2A 01 53").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(batch_decode("2A 02 1A 01").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(batch_decode("2A 03 1A 01 AA", {.failing_call = 2}).result, MAVA_TUM_NO_MEMORY);
}

TEST(sub_route, duplicate_without_memory_for_one_array_still_copies_the_other_and_the_scalars)
{
    batch_decode source("08 01 22 03 12 01 61 2A 03 12 01 62 30 06");
    duplicated<mava_tum_sub_route> copy(source.record, {.failing_call = 3});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_STREQ(copy.record.ipv4_routes[0].field_2, "a");
    EXPECT_EQ(copy.record.ipv6_routes, nullptr);
    EXPECT_EQ(copy.record.ipv6_route_count, 0u);
    EXPECT_EQ(copy.record.field_6, 6u);
    EXPECT_EQ(copy.present(), fields(1, 4, 6));
}

TEST(sub_route, free_after_a_failed_element_releases_all_blocks_of_both_arrays)
{
    batch_decode got("22 03 12 01 61 2A 06 12 01 62 1A 01 AA 2A 05 12 01 63 08 80");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.allocator.outstanding_count(), 6u);
    got.free_now();
    EXPECT_EQ(got.allocator.outstanding_count(), 0u);
}

} // namespace
} // namespace mava_tum_test
