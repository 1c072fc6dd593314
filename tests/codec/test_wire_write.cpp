// Writes of single values, and the bytes that a short buffer receives.
#include "codec/wire_write.h"
#include "support/guarded_buffer.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace mava_tum_test
{
namespace
{

struct written_varint {
    uint64_t value;
    const char *hex;
};

TEST(wire_write, a_32_bit_varint_takes_one_to_five_bytes)
{
    const written_varint rows[] = {
        {0, "08 00"}, {0x7F, "08 7F"}, {0x80, "08 80 01"}, {0x3FFF, "08 FF 7F"}, {0x4000, "08 80 80 01"},
        {0x1FFFFF, "08 FF FF 7F"}, {0x200000, "08 80 80 80 01"}, {0xFFFFFFF, "08 FF FF FF 7F"},
        {0x10000000, "08 80 80 80 80 01"},
        {0xFFFFFFFF, "08 FF FF FF FF 0F"}, // a negative value is not sign-extended to ten bytes
    };
    for (const written_varint &row : rows) {
        mava_tum_vlan_info record{};
        record.field_1 = static_cast<uint32_t>(row.value);
        mark_present(record, 1);
        EXPECT_EQ(encoded_hex(record), row.hex);
    }
}

TEST(wire_write, a_64_bit_varint_takes_one_to_ten_bytes)
{
    const written_varint rows[] = {
        {0, "10 00"},
        {0x7F, "10 7F"},
        {0x80, "10 80 01"},
        {0xFFFFFFFF, "10 FF FF FF FF 0F"},
        {uint64_t{1} << 35, "10 80 80 80 80 80 01"},
        {(uint64_t{1} << 56) - 1, "10 FF FF FF FF FF FF FF 7F"},
        {uint64_t{1} << 56, "10 80 80 80 80 80 80 80 80 01"},
        {(uint64_t{1} << 63) - 1, "10 FF FF FF FF FF FF FF FF 7F"},
        {uint64_t{1} << 63, "10 80 80 80 80 80 80 80 80 80 01"},
        {0xFFFFFFFFFFFFFFFF, "10 FF FF FF FF FF FF FF FF FF 01"},
    };
    for (const written_varint &row : rows) {
        mava_tum_session_data record{};
        record.field_2 = row.value;
        mark_present(record, 2);
        EXPECT_EQ(encoded_hex(record), row.hex);
    }
}

// The bytes of `value` as field 2, group after group.
std::string hex_of_groups(uint64_t value)
{
    std::string hex = "10";
    char byte[4];
    for (; value >= 0x80; value >>= 7) {
        std::snprintf(byte, sizeof byte, " %02X", static_cast<unsigned>(value & 0x7F) | 0x80u);
        hex += byte;
    }
    std::snprintf(byte, sizeof byte, " %02X", static_cast<unsigned>(value));
    return hex + byte;
}

TEST(wire_write, each_bit_of_a_64_bit_varint_keeps_its_place)
{
    for (unsigned bit = 0; bit < 64; ++bit) {
        for (const uint64_t value : {uint64_t{1} << bit, ~uint64_t{0} >> bit, 0x9E3779B97F4A7C15 >> bit}) {
            mava_tum_session_data record{};
            record.field_2 = value;
            mark_present(record, 2);
            const std::string hex = encoded_hex(record);
            EXPECT_EQ(hex, hex_of_groups(value));
            EXPECT_EQ(decoded<mava_tum_session_data>(hex.c_str()).record.field_2, value);
        }
    }
}

TEST(wire_write, a_tag_of_field_15_takes_one_byte_and_of_field_16_two)
{
    mava_tum_l2tp_data record{};
    record.field_15 = 1;
    record.field_16 = 2;
    record.field_17 = 3;
    record.field_18 = 4;
    mark_present(record, 15, 16, 17, 18);
    EXPECT_EQ(encoded_hex(record), "78 01 80 01 02 88 01 03 90 01 04");
}

TEST(wire_write, fields_are_written_in_ascending_number)
{
    decoded<mava_tum_ppp_data> got("30 06 2A 01 AA 20 04 18 03 10 02 08 01");
    EXPECT_EQ(encoded_hex(got.record), "08 01 10 02 18 03 20 04 2A 01 AA 30 06");
}

// One of each kind: a varint, a fixed32, a bytes field, a text, a varint.
struct one_of_each_kind {
    std::string text = "abc";
    byte_vector content = bytes_of("AA BB");
    mava_tum_l2tp_data record{};

    one_of_each_kind()
    {
        record.field_1 = 300;
        record.field_2 = 0x04030201;
        record.field_4 = bytes_field(content);
        record.field_18 = 9;
        record.field_19 = text.data();
        mark_present(record, 1, 2, 4, 18, 19);
    }
};

TEST(wire_write, every_capacity_receives_all_whole_bytes_below_it_and_no_part_of_a_block)
{
    const one_of_each_kind source;
    // Offset:                   0  1  2  3  4  5  6  7  8  9 10 11 12 13 14 15 16 17 18 19 20
    const char *whole = "08 AC 02 15 01 02 03 04 22 02 AA BB 90 01 09 9A 01 03 61 62 63";
    const byte_vector bytes = bytes_of(whole);
    EXPECT_EQ(encoded(source.record), bytes);
    for (std::size_t capacity = 0; capacity <= bytes.size() + 2; ++capacity) {
        const write_trace trace = encode_trace(source.record, capacity, bytes.size());
        EXPECT_TRUE(trace.guards_intact) << capacity;
        std::string expected = prefix_hex(bytes, capacity);
        if (capacity == 11)
            expected.replace(3 * 10, 2, "--");
        if (capacity == 19 || capacity == 20)
            expected.replace(3 * 18, 2, "--");
        if (capacity == 20)
            expected.replace(3 * 19, 2, "--");
        EXPECT_EQ(hex_of(trace), expected) << capacity;
    }
}

TEST(wire_write, a_fixed32_is_cut_byte_by_byte)
{
    mava_tum_subscriber_v4 record{};
    record.ipv4_address = 0x04030201;
    mark_present(record, 2);
    EXPECT_EQ(hex_of(encode_trace(record, 3, 5)), "15 01 02");
}

TEST(wire_write, a_null_buffer_of_length_0_gives_the_size)
{
    const one_of_each_kind source;
    EXPECT_EQ(call_encode(source.record, nullptr, 0), 21u);
}

TEST(wire_write, a_buffer_longer_than_needed_is_left_alone_behind_the_result)
{
    const one_of_each_kind source;
    const write_trace trace = encode_trace(source.record, 100, 21);
    for (std::size_t i = 0; i < 100; ++i)
        EXPECT_EQ(trace.written[i], i < 21) << i;
}

TEST(wire_write, the_record_is_only_read)
{
    const one_of_each_kind source;
    const mava_tum_l2tp_data before = source.record;
    encoded(source.record);
    EXPECT_EQ(std::memcmp(&before, &source.record, sizeof before), 0);
}

// ---- the ways of writing a varint against the plain one, which writes byte by byte ----

using mava_tum::field_tag;

constexpr field_tag one_byte_tag = mava_tum::make_field_tag(15, mava_tum::wire_type::varint);
constexpr field_tag two_byte_tag = mava_tum::make_field_tag(16, mava_tum::wire_type::varint);

byte_vector plain(field_tag tag, uint64_t value)
{
    uint8_t bytes[2 + mava_tum::max_varint64_bytes];
    bytes[0] = static_cast<uint8_t>(tag.bytes);
    bytes[1] = static_cast<uint8_t>(tag.bytes >> 8);
    return byte_vector(bytes, mava_tum::store_varint(bytes + tag.length, value));
}

// A put may write bytes after its value, none before it.
template <class put_call>
void expect_plain_bytes(const put_call &put, field_tag tag, uint64_t value)
{
    const byte_vector expected = plain(tag, value);
    guarded_buffer buffer(expected.size() + mava_tum::spill_bytes);
    const uint8_t *const end = put(buffer.data(), tag);
    ASSERT_EQ(end, buffer.data() + expected.size()) << value;
    ASSERT_EQ(hex_of(buffer.data(), expected.size()), hex_of(expected)) << value;
    ASSERT_TRUE(buffer.guards_intact()) << value;
    ASSERT_EQ(mava_tum::varint_bytes(value), expected.size() - tag.length) << value;
}

// Values of each width in bits: the smallest, the largest, two between.
template <class Value, class expectation>
void for_each_width(const expectation &expect)
{
    expect(Value{0});
    for (uint32_t bits = 1; bits <= 8 * sizeof(Value); ++bits) {
        const Value smallest = static_cast<Value>(Value{1} << (bits - 1));
        const Value below = static_cast<Value>(smallest - 1);
        for (const uint64_t low_bits :
            {uint64_t{0}, uint64_t{0x5A5A5A5A5A5A5A5A}, uint64_t{0xC3C3C3C3C3C3C3C3}, ~uint64_t{0}})
            expect(static_cast<Value>(smallest | (below & static_cast<Value>(low_bits))));
    }
}

// Both tags before a value of each width, written by `put`.
template <class Value>
void expect_plain_bytes_of_each_width(uint8_t *(*put)(uint8_t *at, field_tag tag, Value value))
{
    for_each_width<Value>([put](Value value) {
        for (const field_tag tag : {one_byte_tag, two_byte_tag})
            expect_plain_bytes([&](uint8_t *at, field_tag of) { return put(at, of, value); }, tag, value);
    });
}

TEST(wire_write_varints, a_counter_of_each_width_has_the_plain_bytes)
{
    expect_plain_bytes_of_each_width<uint32_t>(mava_tum::put_counter);
}

TEST(wire_write_varints, a_32_bit_number_of_each_width_has_the_plain_bytes)
{
    expect_plain_bytes_of_each_width<uint32_t>(mava_tum::put_varint32);
}

TEST(wire_write_varints, a_64_bit_number_of_each_width_has_the_plain_bytes)
{
    expect_plain_bytes_of_each_width<uint64_t>(mava_tum::put_varint64);
}

// The plain one, compared with seven bits at a time.
TEST(wire_write_varints, the_plain_bytes_carry_seven_bits_each_and_say_whether_more_follow)
{
    for_each_width<uint64_t>([](uint64_t value) {
        const byte_vector bytes = plain(one_byte_tag, value);
        uint64_t read = 0;
        for (std::size_t i = 1; i < bytes.size(); ++i) {
            read |= uint64_t{bytes[i] & 0x7Fu} << 7 * (i - 1);
            ASSERT_EQ((bytes[i] & 0x80) != 0, i + 1 < bytes.size()) << value;
        }
        ASSERT_EQ(read, value);
        ASSERT_TRUE(bytes.size() == 2 || bytes.back() != 0) << value;
    });
}

} // namespace
} // namespace mava_tum_test
