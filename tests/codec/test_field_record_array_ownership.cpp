// Arrays of records: encode, duplicate and free.
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <array>

namespace mava_tum_test
{
namespace
{

constexpr uint64_t ipv4_block_bytes = sizeof(mava_tum_subscriber_route_ipv4);
constexpr uint64_t ipv6_block_bytes = sizeof(mava_tum_subscriber_route_ipv6);

TEST(field_record_array, encode_needs_both_bit_and_count)
{
    std::array<mava_tum_subscriber_route_ipv4, 2> routes{};
    mava_tum_sub_route record{};
    mark_present(record, 4);
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u) << "bit without count";
    record.ipv4_routes = routes.data();
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u) << "bit and pointer without count";
    record.ipv4_route_count = 2;
    EXPECT_EQ(encoded_hex(record), "22 00 22 00") << "an empty element is its tag and 00";
    record.presence_mask = 0;
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u) << "count without bit";
}

TEST(field_record_array, encode_writes_elements_in_array_order)
{
    std::array<mava_tum_subscriber_route_ipv4, 3> routes{};
    for (uint32_t i = 0; i < 3; ++i) {
        routes[i].field_1 = 300 * (3 - i);
        mark_present(routes[i], 1);
    }
    mava_tum_sub_route record{};
    record.ipv4_routes = routes.data();
    record.ipv4_route_count = 3;
    mark_present(record, 4);
    EXPECT_EQ(encoded_hex(record), "22 03 08 84 07 22 03 08 D8 04 22 03 08 AC 02");
}

TEST(field_record_array, encode_into_a_short_buffer_counts_on_inside_the_elements)
{
    std::array<mava_tum_subscriber_route_ipv4, 2> routes{};
    routes[0].field_1 = 300;
    routes[1].field_3 = 0x04030201;
    mark_present(routes[0], 1);
    mark_present(routes[1], 3);
    mava_tum_sub_route record{};
    record.ipv4_routes = routes.data();
    record.ipv4_route_count = 2;
    mark_present(record, 4, 6);
    const byte_vector whole = bytes_of("22 03 08 AC 02 22 05 1D 01 02 03 04 30 00");
    EXPECT_EQ(encoded(record), whole);
    for (std::size_t capacity = 0; capacity <= whole.size() + 1; ++capacity) {
        const write_trace trace = encode_trace(record, capacity, whole.size());
        EXPECT_TRUE(trace.guards_intact);
        EXPECT_EQ(hex_of(trace), prefix_hex(whole, capacity));
    }
}

// A batch with two routes of each family, texts and addresses in all of them.
struct full_batch {
    std::string text = "ab";
    byte_vector address = bytes_of("20 01 0D B8");
    std::array<mava_tum_subscriber_route_ipv4, 2> ipv4{};
    std::array<mava_tum_subscriber_route_ipv6, 2> ipv6{};
    mava_tum_sub_route record{};

    full_batch()
    {
        for (mava_tum_subscriber_route_ipv4 &route : ipv4) {
            route.field_2 = text.data();
            mark_present(route, 2);
        }
        for (mava_tum_subscriber_route_ipv6 &route : ipv6) {
            route.field_2 = text.data();
            route.field_3 = bytes_field(address);
            mark_present(route, 2, 3);
        }
        record.ipv4_routes = ipv4.data();
        record.ipv4_route_count = 2;
        record.ipv6_routes = ipv6.data();
        record.ipv6_route_count = 2;
        record.field_6 = 6;
        mark_present(record, 4, 5, 6);
    }
};

TEST(field_record_array, duplicate_obtains_each_array_and_then_the_blocks_of_its_elements)
{
    const full_batch source;
    duplicated<mava_tum_sub_route> copy(source.record);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.allocator.requested_sizes(),
        (std::vector<uint64_t>{2 * ipv4_block_bytes, 3, 3, 2 * ipv6_block_bytes, 3, 4, 3, 4}));
    EXPECT_EQ(encoded(copy.record), encoded(source.record));
    EXPECT_NE(copy.record.ipv6_routes[1].field_3.data, source.address.data());
}

TEST(field_record_array, duplicate_goes_by_the_count_alone)
{
    const full_batch source;
    mava_tum_sub_route odd = source.record;
    odd.ipv4_route_count = 0; // pointer and bit remain
    odd.presence_mask = static_cast<uint8_t>(fields(4, 6));
    duplicated<mava_tum_sub_route> copy(odd);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.record.ipv4_routes, nullptr);
    EXPECT_EQ(copy.record.ipv4_route_count, 0u);
    EXPECT_EQ(copy.record.ipv6_route_count, 2u) << "copied, although its bit is clear";
    EXPECT_EQ(copy.present(), fields(4, 6));
}

TEST(field_record_array, a_failed_duplicate_of_the_array_is_empty_and_absent_and_the_rest_goes_on)
{
    const full_batch source;
    duplicated<mava_tum_sub_route> copy(source.record, {.failing_call = 1});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.record.ipv4_routes, nullptr);
    EXPECT_EQ(copy.record.ipv4_route_count, 0u);
    EXPECT_EQ(copy.record.ipv6_route_count, 2u);
    EXPECT_EQ(copy.record.field_6, 6u);
    EXPECT_EQ(copy.present(), fields(5, 6));

    duplicated<mava_tum_sub_route> without(source.record, {.allocator_given = false});
    EXPECT_EQ(without.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(without.record.ipv6_routes, nullptr);
    EXPECT_EQ(without.record.ipv6_route_count, 0u);
    EXPECT_EQ(without.present(), fields(6));
}

TEST(field_record_array, duplicate_asks_for_the_whole_size_of_an_array_above_4_gib)
{
    constexpr uint64_t session_bytes = sizeof(mava_tum_session_context);
    constexpr uint64_t count = (uint64_t{1} << 32) / session_bytes + 1;
    mava_tum_session_context never_read{}; // there is no block to copy it to
    mava_tum_rec_sess_replay_req source{};
    source.field_4 = &never_read;
    source.field_4_count = static_cast<uint32_t>(count);
    mark_present(source, 4);
    duplicated<mava_tum_rec_sess_replay_req> copy(source);
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{count * session_bytes}));
    EXPECT_EQ(copy.record.field_4_count, 0u);
    EXPECT_EQ(copy.present(), 0u);
}

TEST(field_record_array, a_failed_duplicate_inside_an_element_keeps_array_count_and_bit)
{
    const full_batch source;
    duplicated<mava_tum_sub_route> copy(source.record, {.failing_call = 2});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    ASSERT_EQ(copy.record.ipv4_route_count, 2u);
    EXPECT_EQ(copy.record.ipv4_routes[0].field_2, nullptr);
    EXPECT_EQ(copy.record.ipv4_routes[0].presence_mask, 0u);
    EXPECT_STREQ(copy.record.ipv4_routes[1].field_2, "ab") << "the remaining elements are copied";
    EXPECT_EQ(copy.record.ipv6_route_count, 2u);
    EXPECT_EQ(copy.present(), fields(4, 5, 6));
}

TEST(field_record_array, free_releases_each_element_in_order_and_then_the_array)
{
    decoded<mava_tum_sub_route> got("22 03 12 01 61 22 03 32 01 62 2A 06 12 01 63 1A 01 AA 2A 03 4A 01 64");
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    const mava_tum_sub_route before = got.record;
    const std::vector<const void *> expected = {before.ipv4_routes[0].field_2, before.ipv4_routes[1].field_6,
        before.ipv4_routes, before.ipv6_routes[0].field_2, before.ipv6_routes[0].field_3.data,
        before.ipv6_routes[1].field_9, before.ipv6_routes};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.ipv4_routes, nullptr);
    EXPECT_EQ(got.record.ipv4_route_count, 0u);
    EXPECT_EQ(got.record.ipv6_routes, nullptr);
    EXPECT_EQ(got.record.ipv6_route_count, 0u);
    EXPECT_EQ(got.present(), fields(4, 5)) << "bits stay";
    got.free_now();
    EXPECT_EQ(got.allocator.released().size(), expected.size());
}

TEST(field_record_array, free_with_the_alias_bit_releases_arrays_and_texts_but_no_address)
{
    decoded<mava_tum_sub_route> got("2A 06 12 01 63 1A 01 AA", {.flags = MAVA_TUM_ALIAS});
    const std::vector<const void *> expected = {got.record.ipv6_routes[0].field_2, got.record.ipv6_routes};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
}

TEST(field_record_array, free_of_a_null_array_with_a_count_releases_nothing_and_zeroes_the_count)
{
    mava_tum_sub_route record{};
    record.ipv4_route_count = 3;
    record.ipv6_route_count = 4;
    recording_allocator allocator;
    free_record(record, allocator);
    EXPECT_TRUE(allocator.released().empty());
    EXPECT_EQ(record.ipv4_route_count, 0u);
    EXPECT_EQ(record.ipv6_route_count, 0u);
}

} // namespace
} // namespace mava_tum_test
