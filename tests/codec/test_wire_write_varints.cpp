// The fast ways of writing a varint, compared with the plain one, which writes byte by byte.
#include "codec/wire_write.h"
#include "support/guarded_buffer.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

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

TEST(wire_write_varints, a_counter_of_each_width_has_the_plain_bytes)
{
    for_each_width<uint32_t>([](uint32_t value) {
        for (const field_tag tag : {one_byte_tag, two_byte_tag})
            expect_plain_bytes(
                [&](uint8_t *at, field_tag of) { return mava_tum::put_counter(at, of, value); }, tag, value);
    });
}

TEST(wire_write_varints, a_32_bit_number_of_each_width_has_the_plain_bytes)
{
    for_each_width<uint32_t>([](uint32_t value) {
        for (const field_tag tag : {one_byte_tag, two_byte_tag})
            expect_plain_bytes(
                [&](uint8_t *at, field_tag of) { return mava_tum::put_varint32(at, of, value); }, tag, value);
    });
}

TEST(wire_write_varints, a_64_bit_number_of_each_width_has_the_plain_bytes)
{
    for_each_width<uint64_t>([](uint64_t value) {
        for (const field_tag tag : {one_byte_tag, two_byte_tag})
            expect_plain_bytes(
                [&](uint8_t *at, field_tag of) { return mava_tum::put_varint64(at, of, value); }, tag, value);
    });
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
