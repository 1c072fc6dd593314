// Arrays of records: decoding. One run of elements becomes one array.
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using route_decode = decoded<mava_tum_sub_route>;
using context_decode = decoded<mava_tum_session_context>;


constexpr uint64_t ipv4_route_bytes = sizeof(mava_tum_subscriber_route_ipv4);
constexpr uint64_t ipv6_route_bytes = sizeof(mava_tum_subscriber_route_ipv6);
constexpr uint64_t qos_bytes = sizeof(mava_tum_subscriber_qos);
constexpr uint64_t session_bytes = sizeof(mava_tum_session_context);

void expect_no_ipv4_routes(const route_decode &got, const char *hex)
{
    EXPECT_EQ(got.record.ipv4_routes, nullptr) << hex;
    EXPECT_EQ(got.record.ipv4_route_count, 0u) << hex;
    EXPECT_EQ(got.present() & fields(4), 0u) << hex;
}

TEST(field_record_array, one_run_becomes_one_block_of_count_records)
{
    route_decode got("08 01 22 02 08 0A 22 00 22 02 08 0C 30 06");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{3 * ipv4_route_bytes}));
    EXPECT_EQ(static_cast<void *>(got.record.ipv4_routes), got.allocator.calls()[0].block);
    ASSERT_EQ(got.record.ipv4_route_count, 3u);
    EXPECT_EQ(got.record.ipv4_routes[0].field_1, 10u);
    EXPECT_EQ(got.record.ipv4_routes[0].presence_mask, fields(1));
    EXPECT_EQ(got.record.ipv4_routes[1].field_1, 0u);
    EXPECT_EQ(got.record.ipv4_routes[1].presence_mask, 0u);
    EXPECT_EQ(got.record.ipv4_routes[2].field_1, 12u);
    EXPECT_EQ(got.record.field_6, 6u);
    EXPECT_EQ(got.present(), fields(1, 4, 6));
}

TEST(field_record_array, a_run_of_any_length_is_one_block)
{
    wire_builder wire;
    for (uint32_t i = 0; i < 3000; ++i)
        wire.length_delimited(11, wire_builder().varint(1, i));
    context_decode got(wire);
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{3000 * qos_bytes}));
    ASSERT_EQ(got.record.qos_count, 3000u);
    for (uint32_t i = 0; i < 3000; ++i)
        ASSERT_EQ(got.record.qos[i].field_1, i);
}

TEST(field_record_array, an_array_above_4_gib_is_asked_for_with_its_whole_size)
{
    // Two bytes of input for each session; the allocation of the array fails.
    constexpr uint64_t count = (uint64_t{1} << 32) / session_bytes + 1;
    byte_vector wire(2 * count);
    for (std::size_t entry = 0; entry < wire.size(); entry += 2)
        wire[entry] = 0x22;
    decoded<mava_tum_rec_sess_replay_req> got(wire);
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{count * session_bytes}));
    EXPECT_EQ(got.record.field_4, nullptr);
    EXPECT_EQ(got.record.field_4_count, 0u);
    EXPECT_EQ(got.present(), 0u);
}

TEST(field_record_array, the_array_is_obtained_before_the_blocks_of_its_elements_in_wire_order)
{
    route_decode got("2A 05 12 00 1A 01 AA 2A 09 32 02 61 62 1A 03 01 02 03");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2 * ipv6_route_bytes, 1, 1, 3, 3}));
    for (const recording_allocator::call &call : got.allocator.calls())
        EXPECT_EQ(call.context, got.allocator.context());
}

TEST(field_record_array, flags_reach_the_elements_but_the_array_is_allocated_all_the_same)
{
    route_decode got("2A 03 1A 01 AA", {.flags = alias});
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{ipv6_route_bytes}));
    EXPECT_EQ(got.record.ipv6_routes[0].field_3.data, got.wire.data() + 4);
}

TEST(field_record_array, the_wire_type_of_the_first_entry_is_looked_at)
{
    for (const char *hex : {"20 00", "21", "23", "24", "25 00 00 00 00", "26", "27"}) {
        route_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE) << hex;
        expect_no_ipv4_routes(got, hex);
        EXPECT_TRUE(got.allocator.calls().empty()) << hex;
    }
}

TEST(field_record_array, tags_and_lengths_inside_a_run_may_be_over_long)
{
    // The tag of field 4 as one byte, three, five with surplus bits, seven; a length in three bytes.
    route_decode got("22 02 08 01 A2 80 00 02 08 02 A2 80 80 80 70 02 08 03 A2 80 80 80 80 80 00 82 80 00 08 04");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    ASSERT_EQ(got.record.ipv4_route_count, 4u);
    for (uint32_t i = 0; i < 4; ++i)
        EXPECT_EQ(got.record.ipv4_routes[i].field_1, i + 1);
}

TEST(field_record_array, a_run_with_two_byte_tags_is_counted_like_any_other)
{
    context_decode got("BA 01 02 08 01 BA 01 02 08 02 C2 01 02 08 03 C2 01 02 08 04 C2 01 00");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2 * ipv4_route_bytes, 3 * ipv6_route_bytes}));
    EXPECT_EQ(got.record.route_ipv4[1].field_1, 2u);
    EXPECT_EQ(got.record.route_ipv6[1].field_1, 4u);
    EXPECT_EQ(got.present(), fields(23, 24));
}

TEST(field_record_array, a_defect_in_any_entry_of_a_run_fails_before_anything_is_allocated)
{
    const char *inputs[] = {
        "22",                   // length missing
        "22 80",                // length cut
        "22 01",                // content missing
        "22 02 08 01 22",       // second length missing
        "22 02 08 01 22 80 80", // second length cut
        "22 02 08 01 22 05 08", // second content overruns
        "22 02 08 01 22 FF FF FF FF 0F",
        "22 02 08 01 A2",    // second tag cut
        "22 02 08 01 A2 80", // second tag cut later
        "22 02 08 01 B0",    // the next tag is another field's, but cut
        "22 02 08 01 20",    // an entry of another wire type, its length missing
    };
    for (const char *hex : inputs) {
        route_decode got(joined({bytes_of("08 07"), bytes_of(hex)}));
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << hex;
        expect_no_ipv4_routes(got, hex);
        EXPECT_TRUE(got.allocator.calls().empty()) << hex;
        EXPECT_EQ(got.present(), fields(1)) << hex << ": what came before it stays";
    }
}

TEST(field_record_array, a_second_run_is_refused_even_after_nothing_but_an_unknown_field)
{
    for (const char *between : {"08 07", "38 05", "3A 00", "2A 00", "00 00"}) {
        route_decode got(joined({bytes_of("22 02 08 01"), bytes_of(between), bytes_of("22 02 08 02")}));
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << between;
        ASSERT_EQ(got.record.ipv4_route_count, 1u) << between;
        EXPECT_EQ(got.record.ipv4_routes[0].field_1, 1u) << between;
        EXPECT_NE(got.present() & fields(4), 0u) << between << ": the first run stays";
    }
}

TEST(field_record_array, decode_tests_wire_type_then_repetition_then_allocator_then_bounds)
{
    EXPECT_EQ(route_decode("20", {.allocator_given = false}).result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(route_decode("22 00 08 01 20").result, MAVA_TUM_WRONG_WIRE_TYPE) << "a second run of wrong wire type";
    EXPECT_EQ(route_decode("22 00 08 01 22 7F", {.failing_call = 2}).result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(route_decode("22 7F", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(route_decode("22", {.flags = alias, .allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(route_decode("22 7F", {.failing_call = 1}).result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(route_decode("22 00", {.failing_call = 1}).result, MAVA_TUM_NO_MEMORY);
}

TEST(field_record_array, a_failed_allocation_leaves_the_array_empty_and_absent)
{
    route_decode got("08 07 22 00 22 00 30 01", {.failing_call = 1});
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2 * ipv4_route_bytes}));
    expect_no_ipv4_routes(got, "two routes");
    EXPECT_EQ(got.present(), fields(1)) << "decoding stopped";
}

TEST(field_record_array, a_failing_element_leaves_array_and_count_attached_and_the_bit_clear)
{
    // The second of four elements holds a text and then a field of wrong wire type.
    route_decode got("22 02 08 01 22 06 12 02 61 62 0D 00 22 02 08 03 22 00 30 01");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    ASSERT_NE(got.record.ipv4_routes, nullptr);
    ASSERT_EQ(got.record.ipv4_route_count, 4u);
    EXPECT_EQ(got.record.ipv4_routes[0].field_1, 1u);
    EXPECT_STREQ(got.record.ipv4_routes[1].field_2, "ab");
    EXPECT_EQ(got.record.ipv4_routes[2].field_1, 0u) << "elements after it are zero";
    EXPECT_EQ(got.record.ipv4_routes[2].field_2, nullptr);
    EXPECT_EQ(got.record.ipv4_routes[3].presence_mask, 0u);
    EXPECT_EQ(got.present(), 0u);

    EXPECT_EQ(got.allocator.outstanding_count(), 2u);
    got.free_now();
    EXPECT_EQ(got.allocator.outstanding_count(), 0u);
}

TEST(field_record_array, a_failing_allocation_inside_an_element_leaves_the_array_attached)
{
    route_decode got("2A 03 12 01 61 2A 07 12 01 62 1A 02 AA BB", {.failing_call = 4});
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    ASSERT_EQ(got.record.ipv6_route_count, 2u);
    EXPECT_STREQ(got.record.ipv6_routes[0].field_2, "a");
    EXPECT_STREQ(got.record.ipv6_routes[1].field_2, "b");
    EXPECT_EQ(got.record.ipv6_routes[1].field_3.data, nullptr);
    EXPECT_EQ(got.record.ipv6_routes[1].presence_mask, fields(2));
    EXPECT_EQ(got.present(), 0u);
}

TEST(field_record_array, the_size_of_an_element_is_added_even_where_the_sum_wraps)
{
    mava_tum_subscriber_route_ipv6 routes[2] = {};
    routes[0].field_3.length = 0 - uint64_t{20}; // 6 bytes more with its tag and length, and again 7 around it
    routes[1].field_3.length = 100;              // 102, and again 3 around it
    mark_present(routes[0], 3);
    mark_present(routes[1], 3);
    mava_tum_session_context session{};
    session.route_ipv6 = routes;
    session.route_ipv6_count = 2;
    mark_present(session, 24);
    EXPECT_EQ(call_encode(session, nullptr, 0), 98u);
    mava_tum_rec_sess_replay_req request{};
    request.field_4 = &session;
    request.field_4_count = 1;
    mark_present(request, 4);
    EXPECT_EQ(call_encode(request, nullptr, 0), 100u);
}

TEST(field_record_array, an_element_sees_exactly_its_own_span)
{
    route_decode cut("22 01 08 22 00");
    EXPECT_EQ(cut.result, MAVA_TUM_TRUNCATED) << "the value would lie in the next element";
    EXPECT_EQ(cut.record.ipv4_route_count, 2u);

    route_decode skipped("22 01 51 22 02 08 05");
    EXPECT_EQ(skipped.result, MAVA_TUM_OK) << "an unknown fixed64 passes the end of the first element only";
    ASSERT_EQ(skipped.record.ipv4_route_count, 2u);
    EXPECT_EQ(skipped.record.ipv4_routes[1].field_1, 5u);
}

} // namespace
} // namespace mava_tum_test
