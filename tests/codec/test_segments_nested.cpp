// Gather mode across nested records. Each encoder keeps track of its own segments only: the segments of a nested record
// come first, and the parent's next own segment starts where the parent's previous one ended, so it covers the nested
// bytes in the buffer once more. Callers of this mode arrange the segments themselves.
#include "support/record_calls.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace mava_tum_test
{
namespace
{

constexpr uint32_t room_for_nested = 16;

struct gathered {
    guarded_buffer buffer{64, 0x00};
    std::array<mava_tum_segment, room_for_nested> segments{};
    uint32_t count;
    uint64_t size;

    template <class record_type>
    explicit gathered(const record_type &record, uint32_t capacity = room_for_nested) : count(capacity)
    {
        size = call_encode(record, buffer.data(), buffer.size(), segments.data(), &count, gather);
    }

    void expect_buffer_segment(std::size_t index, std::size_t offset, uint64_t length)
    {
        EXPECT_EQ(segments[index].data, buffer.data() + offset) << "segment " << index;
        EXPECT_EQ(segments[index].length, length) << "segment " << index;
    }

    void expect_record_segment(std::size_t index, const byte_vector &content)
    {
        EXPECT_EQ(segments[index].data, content.data()) << "segment " << index;
        EXPECT_EQ(segments[index].length, content.size()) << "segment " << index;
    }
};

struct session_with_ppp_bytes {
    byte_vector content = bytes_of("AA BB CC");
    mava_tum_session_data record{};

    session_with_ppp_bytes()
    {
        record.field_1 = 1;
        record.ppp.field_5 = bytes_field(content);
        mark_present(record.ppp, 5);
        record.field_9 = 9;
        mark_present(record, 1, 9);
    }
};

TEST(segments_nested, a_nested_bytes_field_is_a_segment_and_its_length_prefix_leaves_it_out)
{
    const session_with_ppp_bytes source;
    gathered got(source.record);
    EXPECT_EQ(hex_of(got.buffer.data(), got.size), "08 01 1A 02 2A 03 48 09");
    ASSERT_EQ(got.count, 3u);
    got.expect_buffer_segment(0, 4, 2);
    got.expect_record_segment(1, source.content);
    got.expect_buffer_segment(2, 0, 8);
}

TEST(segments_nested, segments_of_a_nested_record_are_counted_past_the_capacity)
{
    const session_with_ppp_bytes source;
    for (uint32_t capacity = 0; capacity < 3; ++capacity) {
        gathered got(source.record, capacity);
        EXPECT_EQ(got.count, 3u) << capacity;
        EXPECT_EQ(got.size, 8u) << capacity;
        EXPECT_EQ(got.segments[capacity].length, 0u) << "the entry behind the capacity, " << capacity;
    }
    gathered one(source.record, 1);
    one.expect_buffer_segment(0, 4, 2);
    gathered two(source.record, 2);
    two.expect_record_segment(1, source.content);
}

TEST(segments_nested, a_nested_message_without_flags_is_one_segment)
{
    mava_tum_session_data record{};
    record.vlan.field_1 = 7;
    mark_present(record.vlan, 1);
    gathered got(record);
    EXPECT_EQ(hex_of(got.buffer.data(), got.size), "52 02 08 07");
    ASSERT_EQ(got.count, 2u);
    got.expect_buffer_segment(0, 2, 2);
    got.expect_buffer_segment(1, 0, 4);
}

TEST(segments_nested, an_empty_nested_record_adds_no_segment)
{
    mava_tum_session_data record{};
    mark_present(record, 3, 10);
    gathered got(record);
    EXPECT_EQ(hex_of(got.buffer.data(), got.size), "1A 00 52 00");
    ASSERT_EQ(got.count, 1u);
    got.expect_buffer_segment(0, 0, 4);
}

TEST(segments_nested, own_and_nested_bytes_fields_come_in_field_order)
{
    session_with_ppp_bytes source;
    byte_vector own = bytes_of("DD");
    source.record.field_6 = bytes_field(own);
    mark_present(source.record, 6);
    gathered got(source.record);
    EXPECT_EQ(hex_of(got.buffer.data(), got.size), "08 01 1A 02 2A 03 32 01 48 09");
    ASSERT_EQ(got.count, 5u);
    got.expect_buffer_segment(0, 4, 2);
    got.expect_record_segment(1, source.content);
    got.expect_buffer_segment(2, 0, 8);
    got.expect_record_segment(3, own);
    got.expect_buffer_segment(4, 8, 2);
}

TEST(segments_nested, the_segments_of_array_elements_are_counted_on_from_element_to_element)
{
    byte_vector first = bytes_of("AA BB");
    byte_vector second = bytes_of("CC");
    std::array<mava_tum_subscriber_route_ipv6, 2> routes{};
    routes[0].field_3 = bytes_field(first);
    routes[1].field_3 = bytes_field(second);
    mark_present(routes[0], 3);
    mark_present(routes[1], 3);
    mava_tum_subscriber_route_ipv4 ipv4{};
    mark_present(ipv4, 1);
    mava_tum_sub_route record{};
    record.ipv4_routes = &ipv4;
    record.ipv4_route_count = 1;
    record.ipv6_routes = routes.data();
    record.ipv6_route_count = 2;
    mark_present(record, 4, 5);
    gathered got(record);
    EXPECT_EQ(hex_of(got.buffer.data(), got.size), "22 02 08 00 2A 02 1A 02 2A 02 1A 01");
    ASSERT_EQ(got.count, 6u);
    got.expect_buffer_segment(0, 2, 2); // the IPv4 route as a whole
    got.expect_buffer_segment(1, 6, 2);
    got.expect_record_segment(2, first);
    got.expect_buffer_segment(3, 10, 2);
    got.expect_record_segment(4, second);
    got.expect_buffer_segment(5, 0, 12);
}

TEST(segments_nested, two_levels_deep_the_lengths_leave_the_bytes_out_at_each_level)
{
    byte_vector content = bytes_of("AA BB CC DD");
    mava_tum_session_context record{};
    record.session_data.l2tp.field_4 = bytes_field(content);
    mark_present(record.session_data.l2tp, 4);
    gathered got(record);
    EXPECT_EQ(hex_of(got.buffer.data(), got.size), "52 04 22 02 22 04");
    ASSERT_EQ(got.count, 4u);
    got.expect_buffer_segment(0, 4, 2); // l2tp
    got.expect_record_segment(1, content);
    got.expect_buffer_segment(2, 2, 4); // session data
    got.expect_buffer_segment(3, 0, 6); // session context
}

TEST(segments_nested, without_a_count_nested_bytes_are_left_out)
{
    const session_with_ppp_bytes source;
    guarded_buffer buffer(8);
    EXPECT_EQ(call_encode(source.record, buffer.data(), 8, nullptr, nullptr, gather), 8u);
    EXPECT_EQ(hex_of(buffer.content()), "08 01 1A 02 2A 03 48 09");
    EXPECT_TRUE(buffer.guards_intact());
}

} // namespace
} // namespace mava_tum_test
