// Bytes fields with a length and a null pointer: after a free, which keeps length and bit, or never filled.
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

TEST(field_bytes, encode_leaves_the_place_of_a_freed_field_untouched)
{
    mava_tum_subscriber_v6 record{};
    record.field_2 = {nullptr, 3};
    record.field_7 = 7;
    mark_present(record, 2, 7);
    EXPECT_EQ(hex_of(encode_trace(record, 7, 7)), "12 03 -- -- -- 38 07");
    EXPECT_EQ(hex_of(encode_trace(record, 6, 7)), "12 03 -- -- -- 38");
    record.field_2.length = 1;
    EXPECT_EQ(hex_of(encode_trace(record, 5, 5)), "12 01 -- 38 07");
}

// No block has this length: no byte is read, and the position does not change.
TEST(field_bytes, encode_reads_nothing_of_a_length_that_wraps_the_position)
{
    uint8_t byte = 0xAA;
    mava_tum_subscriber_v6 record{};
    record.field_2 = {&byte, 0xFFFFFFFFFFFFFFFF};
    record.field_7 = 7;
    mark_present(record, 2, 7);
    EXPECT_EQ(call_encode(record, nullptr, 0), 8u);
    EXPECT_EQ(hex_of(encode_trace(record, 8, 8)), "12 FF FF FF FF 0F 38 07");
}

// ---- a whole record after its free ----

TEST(field_bytes, a_freed_record_encodes_without_its_texts_and_arrays_and_with_untouched_places_for_its_bytes)
{
    // A number, a text, statistics with a list of one service, a bytes field.
    decoded<mava_tum_sess_oper_resp> got("08 07 32 01 61 4A 05 42 03 0A 01 62 52 03 AA BB CC");
    got.free_now();
    EXPECT_EQ(hex_of(encode_trace(got.record, 9, 9)), "08 07 4A 00 52 03 -- -- --");
    EXPECT_EQ(call_encode(got.record, nullptr, 0), 9u);
}

TEST(field_bytes, in_gather_mode_a_freed_field_is_a_segment_without_an_address)
{
    decoded<mava_tum_subscriber_v6> got("12 03 AA BB CC 38 07");
    got.free_now();
    uint8_t buffer[4];
    mava_tum_segment segments[3] = {};
    uint32_t count = 3;
    EXPECT_EQ(call_encode(got.record, buffer, sizeof buffer, segments, &count, MAVA_TUM_ALIAS), 4u);
    EXPECT_EQ(hex_of(buffer, sizeof buffer), "12 03 38 07");
    ASSERT_EQ(count, 3u);
    EXPECT_EQ(segments[1].data, nullptr);
    EXPECT_EQ(segments[1].length, 3u);
}

// ---- the size request ----

struct sized_bytes {
    uint64_t length;
    uint64_t length_prefix_bytes;
};

// Around the size of a short block, and larger than the scratch buffer.
constexpr sized_bytes sizes[] = {{1, 1}, {16, 1}, {64, 1}, {65, 1}, {9000, 2}};

template <class record_type>
void expect_sizes(const record_type &record, uint64_t copied, uint64_t gathered)
{
    EXPECT_EQ(call_encode(record, nullptr, 0), copied);
    EXPECT_EQ(call_encode(record, nullptr, 0, nullptr, nullptr, MAVA_TUM_ALIAS), gathered);
    uint32_t count = 0;
    EXPECT_EQ(call_encode(record, nullptr, 0, nullptr, &count, MAVA_TUM_ALIAS), gathered);
}

TEST(field_bytes, the_size_of_a_record_counts_a_length_without_a_pointer)
{
    for (const sized_bytes &tested : sizes) {
        mava_tum_subscriber_v6 record{};
        record.field_2 = {nullptr, tested.length};
        record.field_7 = 7;
        mark_present(record, 2, 7);
        const uint64_t own = 1 + tested.length_prefix_bytes + 2;
        expect_sizes(record, own + tested.length, own);
    }
}

TEST(field_bytes, the_size_of_a_record_counts_a_length_without_a_pointer_in_a_nested_record)
{
    for (const sized_bytes &tested : sizes) {
        mava_tum_session_context record{};
        record.field_1 = 7;
        record.subscriber_v6.field_2 = {nullptr, tested.length};
        mark_present(record.subscriber_v6, 2);
        mark_present(record, 1, 9);
        const uint64_t own = 1 + tested.length_prefix_bytes;
        const uint64_t nested_prefix_bytes = own + tested.length < 128 ? 1 : 2;
        // In gather mode, the length of the nested record counts its bytes in the buffer.
        expect_sizes(record, 2 + 1 + nested_prefix_bytes + own + tested.length, 2 + 1 + 1 + own);
    }
}

} // namespace
} // namespace mava_tum_test
