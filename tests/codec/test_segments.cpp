// The output as a list of segments: one segment in copy mode, one per own stretch and per bytes field in gather mode.
#include "support/record_calls.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace mava_tum_test
{
namespace
{

constexpr uint32_t room = 8;

// One encode with a list of segments. Segments that were not stored keep `untouched`.
struct segments_of_an_encode {
    static constexpr uint64_t untouched = 0xDEAD;

    guarded_buffer buffer{64, 0x00};
    std::array<mava_tum_segment, room> segments;
    uint32_t count;
    uint64_t size;

    template <class record_type>
    segments_of_an_encode(const record_type &record, uint32_t flags, uint32_t capacity = room) : count(capacity)
    {
        segments.fill({nullptr, untouched});
        size = call_encode(record, buffer.data(), buffer.size(), segments.data(), &count, flags);
        EXPECT_TRUE(buffer.guards_intact());
    }

    std::string bytes_in_buffer()
    {
        return hex_of(buffer.data(), size);
    }

    // "buffer+2:4" for a segment of the buffer, its bytes in hex for any other, "-" for a segment that was not stored.
    std::string segment(std::size_t index)
    {
        const mava_tum_segment &segment = segments[index];
        if (segment.data == nullptr && segment.length == untouched)
            return "-";
        if (segment.data >= buffer.data() && segment.data < buffer.data() + buffer.size())
            return "buffer+" + std::to_string(segment.data - buffer.data()) + ":" + std::to_string(segment.length);
        return hex_of(segment.data, segment.length);
    }

    std::string stored()
    {
        std::string text;
        for (std::size_t i = 0; i < room; ++i)
            text += (i == 0 ? "" : ", ") + segment(i);
        const std::size_t last = text.find_last_not_of(", -");
        return text.substr(0, last == std::string::npos ? 0 : last + 1);
    }
};

struct addresses {
    byte_vector first = bytes_of("AA BB CC");
    byte_vector second = bytes_of("DD EE");
    mava_tum_subscriber_v6 record{};

    addresses()
    {
        record.field_1 = 1;
        record.field_2 = bytes_field(first);
        record.field_5 = 5;
        record.field_6 = bytes_field(second);
        record.field_7 = 7;
        mark_present(record, 1, 2, 5, 6, 7);
    }
};

TEST(segments, copy_mode_reports_the_whole_output_as_one_segment)
{
    const addresses source;
    segments_of_an_encode got(source.record, 0);
    EXPECT_EQ(got.bytes_in_buffer(), "08 01 12 03 AA BB CC 28 05 32 02 DD EE 38 07");
    EXPECT_EQ(got.count, 1u);
    EXPECT_EQ(got.stored(), "buffer+0:15");
}

TEST(segments, copy_mode_counts_a_segment_that_finds_no_room)
{
    const addresses source;
    segments_of_an_encode got(source.record, 0, 0);
    EXPECT_EQ(got.count, 1u);
    EXPECT_EQ(got.stored(), "");
}

TEST(segments, copy_mode_reports_no_segment_for_an_empty_output)
{
    segments_of_an_encode scalars(mava_tum_subscriber_v4{}, 0);
    EXPECT_EQ(scalars.count, 0u);
    EXPECT_EQ(scalars.stored(), "");
    segments_of_an_encode bytes(mava_tum_subscriber_v6{}, 0);
    EXPECT_EQ(bytes.count, 0u);
    EXPECT_EQ(bytes.stored(), "");
}

TEST(segments, a_message_without_flags_reports_one_segment)
{
    mava_tum_subscriber_v4 record{};
    mark_present(record, 1);
    segments_of_an_encode got(record, 0);
    EXPECT_EQ(got.count, 1u);
    EXPECT_EQ(got.stored(), "buffer+0:2");

    std::string text = "abc";
    mava_tum_subscriber_httpr with_text{};
    with_text.field_2 = text.data();
    mark_present(with_text, 2);
    segments_of_an_encode text_too(with_text, 0);
    EXPECT_EQ(text_too.count, 1u);
    EXPECT_EQ(text_too.stored(), "buffer+0:5");
}

TEST(segments, copy_mode_with_nested_records_reports_one_segment_and_leaves_the_other_entries)
{
    mava_tum_session_data record{};
    record.vlan.field_1 = 7;
    mark_present(record.vlan, 1);
    mark_present(record, 3);
    segments_of_an_encode got(record, 0);
    EXPECT_EQ(got.bytes_in_buffer(), "1A 00 52 02 08 07");
    EXPECT_EQ(got.count, 1u);
    EXPECT_EQ(got.stored(), "buffer+0:6");
}

TEST(segments, copy_mode_into_a_short_buffer_reports_the_full_size)
{
    const addresses source;
    uint8_t buffer[4];
    mava_tum_segment segment = {nullptr, 0};
    uint32_t count = 1;
    EXPECT_EQ(mava_tum_subscriber_v6_encode_ext(&source.record, buffer, 4, &segment, &count, 0), 15u);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(segment.data, buffer);
    EXPECT_EQ(segment.length, 15u);
}

TEST(segments, gather_mode_interleaves_the_buffer_with_the_bytes_of_the_record)
{
    const addresses source;
    segments_of_an_encode got(source.record, gather);
    EXPECT_EQ(got.size, 10u) << "the bytes fields are not in the buffer";
    EXPECT_EQ(got.bytes_in_buffer(), "08 01 12 03 28 05 32 02 38 07");
    EXPECT_EQ(got.count, 5u);
    EXPECT_EQ(got.stored(), "buffer+0:4, AA BB CC, buffer+4:4, DD EE, buffer+8:2");
    EXPECT_EQ(got.segments[1].data, source.first.data()) << "pointed at, not copied";
    EXPECT_EQ(got.segments[3].data, source.second.data());
}

TEST(segments, gather_mode_has_no_last_buffer_segment_after_a_last_bytes_field)
{
    byte_vector content = bytes_of("AA BB");
    mava_tum_subscriber_li record{};
    record.field_4 = bytes_field(content);
    record.field_8 = bytes_field(content);
    mark_present(record, 4, 8);
    segments_of_an_encode got(record, gather);
    EXPECT_EQ(got.bytes_in_buffer(), "22 02 42 02");
    EXPECT_EQ(got.count, 4u);
    EXPECT_EQ(got.stored(), "buffer+0:2, AA BB, buffer+2:2, AA BB");
}

TEST(segments, gather_mode_adds_no_segment_for_an_empty_bytes_field)
{
    mava_tum_subscriber_li record{};
    record.field_1 = 1;
    mark_present(record, 1, 4, 8);
    segments_of_an_encode got(record, gather);
    EXPECT_EQ(got.bytes_in_buffer(), "08 01 22 00 42 00");
    EXPECT_EQ(got.count, 1u);
    EXPECT_EQ(got.stored(), "buffer+0:6");
}

TEST(segments, gather_mode_of_an_empty_record_reports_no_segment)
{
    segments_of_an_encode got(mava_tum_subscriber_li{}, gather);
    EXPECT_EQ(got.size, 0u);
    EXPECT_EQ(got.count, 0u);
    EXPECT_EQ(got.stored(), "");
}

TEST(segments, gather_mode_counts_segments_past_the_capacity_and_stores_none_of_them)
{
    const addresses source;
    const char *stored[] = {"", "buffer+0:4", "buffer+0:4, AA BB CC", "buffer+0:4, AA BB CC, buffer+4:4",
        "buffer+0:4, AA BB CC, buffer+4:4, DD EE"};
    for (uint32_t capacity = 0; capacity < 5; ++capacity) {
        segments_of_an_encode got(source.record, gather, capacity);
        EXPECT_EQ(got.size, 10u);
        EXPECT_EQ(got.count, 5u) << capacity;
        EXPECT_EQ(got.stored(), stored[capacity]);
    }
}

TEST(segments, a_null_list_counts_as_one_without_room)
{
    const addresses source;
    uint8_t buffer[16];
    uint32_t count = 4;
    EXPECT_EQ(mava_tum_subscriber_v6_encode_ext(&source.record, buffer, 16, nullptr, &count, gather), 10u);
    EXPECT_EQ(count, 5u);
    count = 4;
    EXPECT_EQ(mava_tum_subscriber_v6_encode_ext(&source.record, buffer, 16, nullptr, &count, 0), 15u);
    EXPECT_EQ(count, 1u);
}

TEST(segments, gather_mode_without_a_count_leaves_the_bytes_out_and_the_list_alone)
{
    const addresses source;
    guarded_buffer buffer(10);
    mava_tum_segment segment = {nullptr, 77};
    EXPECT_EQ(mava_tum_subscriber_v6_encode_ext(&source.record, buffer.data(), 10, &segment, nullptr, gather), 10u);
    EXPECT_EQ(hex_of(buffer.content()), "08 01 12 03 28 05 32 02 38 07");
    EXPECT_EQ(segment.length, 77u);
}

TEST(segments, gather_mode_looks_at_bit_0_of_the_flags_only)
{
    const addresses source;
    EXPECT_EQ(segments_of_an_encode(source.record, 0xFFFFFFFF).size, 10u);
    EXPECT_EQ(segments_of_an_encode(source.record, 0xFFFFFFFE).size, 15u);
}

TEST(segments, a_null_buffer_gives_its_segments_no_address)
{
    const addresses source;
    std::array<mava_tum_segment, room> segments{};
    uint32_t count = room;
    EXPECT_EQ(mava_tum_subscriber_v6_encode_ext(&source.record, nullptr, 0, segments.data(), &count, gather), 10u);
    ASSERT_EQ(count, 5u);
    EXPECT_EQ(segments[0].data, nullptr);
    EXPECT_EQ(segments[0].length, 4u);
    EXPECT_EQ(segments[1].data, source.first.data());
    EXPECT_EQ(segments[1].length, 3u);
    EXPECT_EQ(segments[2].data, nullptr);
    EXPECT_EQ(segments[2].length, 4u);
    EXPECT_EQ(segments[3].data, source.second.data());
    EXPECT_EQ(segments[4].data, nullptr);
    EXPECT_EQ(segments[4].length, 2u);

    count = room;
    EXPECT_EQ(mava_tum_subscriber_v6_encode_ext(&source.record, nullptr, 0, segments.data(), &count, 0), 15u);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(segments[0].data, nullptr);
    EXPECT_EQ(segments[0].length, 15u);
}

TEST(segments, gather_mode_into_a_short_buffer_reports_the_same_segments)
{
    const addresses source;
    for (std::size_t capacity = 0; capacity < 10; ++capacity) {
        guarded_buffer buffer(capacity);
        std::array<mava_tum_segment, room> segments{};
        uint32_t count = room;
        EXPECT_EQ(
            mava_tum_subscriber_v6_encode_ext(&source.record, buffer.data(), capacity, segments.data(), &count, gather),
            10u);
        EXPECT_EQ(count, 5u);
        const std::array<uint64_t, 5> lengths = {4, 3, 4, 2, 2};
        for (std::size_t i = 0; i < lengths.size(); ++i)
            EXPECT_EQ(segments[i].length, lengths[i]) << "segment " << i << ", capacity " << capacity;
        EXPECT_TRUE(buffer.guards_intact());
    }
}

TEST(segments, gather_mode_copies_texts_into_the_buffer)
{
    std::string text = "abc";
    byte_vector content = bytes_of("AA BB");
    mava_tum_l2tp_data record{};
    record.field_4 = bytes_field(content);
    record.field_19 = text.data();
    mark_present(record, 4, 19);
    segments_of_an_encode got(record, gather);
    EXPECT_EQ(got.bytes_in_buffer(), "22 02 9A 01 03 61 62 63");
    EXPECT_EQ(got.count, 3u);
    EXPECT_EQ(got.stored(), "buffer+0:2, AA BB, buffer+2:6");
}

} // namespace
} // namespace mava_tum_test
