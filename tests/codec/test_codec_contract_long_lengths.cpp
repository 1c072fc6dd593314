// Inputs, buffers and blocks of 4 GiB and more, whose lengths need more than 32 bits. No memory of this size is filled.
#include "support/record_calls.h"
#include "support/sparse_span.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

constexpr uint64_t four_gib = uint64_t{1} << 32;
constexpr uint64_t longest_value = four_gib - 1; // the largest length on the wire


// A field of `longest_value` bytes with more fields around it: the length of the input needs more than 32 bits.
class long_input
{
public:
    long_input(const byte_vector &before, uint32_t number, const byte_vector &behind)
        : head_(joined({before, wire_builder().tag(number, wire_type::length_delimited).bare_varint(longest_value)})),
          span_(head_.size() + longest_value + behind.size())
    {
        if (span_.data() == nullptr)
            return;
        span_.put(0, head_);
        span_.put(head_.size() + longest_value, behind);
    }

    bool exists() const
    {
        return span_.data() != nullptr;
    }

    const uint8_t *value() const
    {
        return span_.data() + head_.size();
    }

    // The first bytes of the value.
    void put_into_value(const byte_vector &content)
    {
        span_.put(head_.size(), content);
    }

    template <class record_type>
    int32_t decode(record_type &record, recording_allocator &allocator, uint32_t flags) const
    {
        fill_with_ones(record);
        return call_decode(
            record, span_.data(), span_.size(), recording_allocator::allocate, allocator.context(), flags);
    }

private:
    byte_vector head_;
    sparse_span span_;
};

TEST(codec_contract, the_longest_bytes_field_is_aliased_and_decoding_goes_on_behind_it)
{
    const long_input input(bytes_of("08 07"), 4, bytes_of("28 09"));
    if (!input.exists())
        GTEST_SKIP() << "no 4 GiB of address space here";
    mava_tum_subscriber_li record;
    recording_allocator allocator;
    EXPECT_EQ(input.decode(record, allocator, alias), MAVA_TUM_OK);
    EXPECT_EQ(record.field_4.data, input.value());
    EXPECT_EQ(record.field_4.length, longest_value);
    EXPECT_EQ(record.field_5, 9u);
    EXPECT_EQ(own_bits(record), fields(1, 4, 5));
}

TEST(codec_contract, the_longest_bytes_field_asks_for_a_block_of_its_length)
{
    const long_input input(bytes_of("08 07"), 4, bytes_of("28 09"));
    if (!input.exists())
        GTEST_SKIP() << "no 4 GiB of address space here";
    mava_tum_subscriber_li record;
    recording_allocator allocator; // which has no block of that size
    EXPECT_EQ(input.decode(record, allocator, 0), MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(allocator.requested_sizes(), (std::vector<uint64_t>{longest_value}));
    EXPECT_EQ(own_bits(record), fields(1));
}

TEST(codec_contract, the_longest_record_is_decoded_and_decoding_goes_on_behind_it)
{
    long_input input(bytes_of("08 07"), 3, bytes_of("58 09"));
    if (!input.exists())
        GTEST_SKIP() << "no 4 GiB of address space here";
    // Its bytes field fills it: tag, a length of five bytes, value.
    const uint64_t inner_length = longest_value - 6;
    input.put_into_value(wire_builder().tag(5, wire_type::length_delimited).bare_varint(inner_length));
    mava_tum_session_data record;
    recording_allocator allocator;
    EXPECT_EQ(input.decode(record, allocator, alias), MAVA_TUM_OK);
    EXPECT_EQ(record.ppp.field_5.data, input.value() + 6);
    EXPECT_EQ(record.ppp.field_5.length, inner_length);
    EXPECT_EQ(record.field_11, 9u);
    EXPECT_EQ(own_bits(record), fields(1, 3, 11));
}

TEST(codec_contract, the_longest_unknown_field_is_stepped_over_exactly)
{
    const long_input input(bytes_of("08 07"), 9, bytes_of("28 09"));
    if (!input.exists())
        GTEST_SKIP() << "no 4 GiB of address space here";
    mava_tum_subscriber_li record;
    recording_allocator allocator;
    EXPECT_EQ(input.decode(record, allocator, 0), MAVA_TUM_OK);
    EXPECT_EQ(record.field_5, 9u);
    EXPECT_EQ(own_bits(record), fields(1, 5));
}

TEST(codec_contract, the_longest_text_with_a_block_asks_for_one_byte_more)
{
    // One byte shorter than the longest, whose block size is 0 (field_text).
    constexpr uint64_t text_length = longest_value - 1;
    const byte_vector head = wire_builder().tag(2, wire_type::length_delimited).bare_varint(text_length);
    sparse_span input(head.size() + text_length);
    if (input.data() == nullptr)
        GTEST_SKIP() << "no 4 GiB of address space here";
    input.put(0, head);
    mava_tum_subscriber_acl record{};
    recording_allocator allocator; // which has no block of that size
    EXPECT_EQ(call_decode(
                  record, input.data(), input.size(), recording_allocator::allocate, allocator.context(), uint32_t{0}),
        MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(allocator.requested_sizes(), (std::vector<uint64_t>{text_length + 1}));
}

TEST(codec_contract, duplicate_asks_for_all_64_bits_of_a_length)
{
    for (const uint64_t length : {four_gib, four_gib + 3}) {
        mava_tum_subscriber_v6 source{};
        source.field_2.length = length; // without a pointer: there is no block to copy anything to
        mark_present(source, 2);
        duplicated<mava_tum_subscriber_v6> copy(source);
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
        EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{length}));
        EXPECT_EQ(copy.record.field_2.length, 0u);
        EXPECT_EQ(copy.present(), 0u);
    }
}

// The lower 32 bits of these capacities are 0, or less than any message below.
constexpr uint64_t long_capacities[] = {four_gib, four_gib + 3};

template <class record_type>
void expect_whole_in_long_buffers(const record_type &record, const char *hex)
{
    for (const uint64_t capacity : long_capacities) {
        sparse_span buffer(capacity);
        if (buffer.data() == nullptr)
            GTEST_SKIP() << "no 4 GiB of address space here";
        const byte_vector whole = bytes_of(hex);
        EXPECT_EQ(call_encode(record, buffer.data(), capacity), whole.size());
        EXPECT_EQ(hex_of(buffer.content(0, whole.size())), hex) << capacity;
    }
}

TEST(codec_contract, a_capacity_above_32_bits_has_room_for_scalars)
{
    mava_tum_subscriber_v4 record{};
    record.ipv4_address = 0x04030201;
    mark_present(record, 2);
    expect_whole_in_long_buffers(record, "15 01 02 03 04");
}

TEST(codec_contract, a_capacity_above_32_bits_has_room_for_texts_and_nested_records)
{
    std::string text = "abc";
    mava_tum_session_data record{};
    record.l2tp.field_1 = 5;
    mark_present(record.l2tp, 1);
    record.field_5 = text.data();
    mark_present(record, 4, 5);
    expect_whole_in_long_buffers(record, "22 02 08 05 2A 03 61 62 63");
}

TEST(codec_contract, what_follows_a_length_above_32_bits_is_written_behind_it)
{
    mava_tum_subscriber_li record{};
    record.field_4.length = four_gib + 5; // without a pointer: its place stays untouched
    record.field_5 = 9;
    mark_present(record, 4, 5);
    const uint64_t size = 2 + record.field_4.length + 2;
    sparse_span buffer(size);
    if (buffer.data() == nullptr)
        GTEST_SKIP() << "no 4 GiB of address space here";
    EXPECT_EQ(call_encode(record, buffer.data(), size), size);
    EXPECT_EQ(hex_of(buffer.content(0, 8)), "22 05 00 00 00 00 00 00");
    EXPECT_EQ(hex_of(buffer.content(size - 4, 4)), "00 00 28 09");
}

} // namespace
} // namespace mava_tum_test
