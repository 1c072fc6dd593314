// Reads of single values: tags, lengths, 32-bit and 64-bit varints, fixed32. Every input ends before an inaccessible
// page, so a read beyond it stops the program.
#include "codec/wire_read.h"
#include "support/guarded_buffer.h"
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using v4_decode = decoded<mava_tum_subscriber_v4>;
using session_data_decode = decoded<mava_tum_session_data>;

struct varint_row {
    const char *hex;
    uint64_t value;
};

TEST(wire_read, a_32_bit_varint_takes_seven_bits_from_each_of_the_first_four_bytes)
{
    const varint_row rows[] = {
        {"00", 0},
        {"01", 1},
        {"7F", 127},
        {"80 01", 128},
        {"96 01", 150},
        {"FF 7F", 0x3FFF},
        {"80 80 01", 0x4000},
        {"FF FF 7F", 0x1FFFFF},
        {"80 80 80 01", 0x200000},
        {"FF FF FF 7F", 0xFFFFFFF},
    };
    for (const varint_row &row : rows) {
        v4_decode got(joined({bytes_of("08"), bytes_of(row.hex)}));
        EXPECT_EQ(got.result, MAVA_TUM_OK) << row.hex;
        EXPECT_EQ(got.record.field_1, row.value) << row.hex;
    }
}

TEST(wire_read, a_32_bit_varint_takes_only_the_low_four_bits_of_its_fifth_byte)
{
    const varint_row rows[] = {
        {"80 80 80 80 01", 0x10000000},
        {"FF FF FF FF 0F", 0xFFFFFFFF},
        {"80 80 80 80 10", 0},
        {"81 80 80 80 70", 1},
        {"80 80 80 80 7F", 0xF0000000},
    };
    for (const varint_row &row : rows) {
        v4_decode got(joined({bytes_of("08"), bytes_of(row.hex)}));
        EXPECT_EQ(got.result, MAVA_TUM_OK) << row.hex;
        EXPECT_EQ(got.record.field_1, row.value) << row.hex;
    }
}

TEST(wire_read, a_32_bit_varint_steps_over_all_bytes_after_the_fifth)
{
    const varint_row rows[] = {
        {"85 80 80 80 80 00", 5},
        {"85 80 80 80 F0 7F", 5},
        {"FF FF FF FF FF FF FF FF FF 01", 0xFFFFFFFF},
        {"FF FF FF FF 8F FF FF FF FF FF FF FF 7F", 0xFFFFFFFF},
    };
    for (const varint_row &row : rows) {
        v4_decode got(joined({bytes_of("08"), bytes_of(row.hex), bytes_of("15 01 00 00 00")}));
        EXPECT_EQ(got.result, MAVA_TUM_OK) << row.hex;
        EXPECT_EQ(got.record.field_1, row.value) << row.hex;
        EXPECT_EQ(got.record.ipv4_address, 1u) << "the field after " << row.hex;
    }
}

TEST(wire_read, a_32_bit_varint_has_no_limit_on_its_number_of_bytes)
{
    v4_decode got(wire_builder().tag(1, wire_type::varint).overlong_varint(7, 1000).fixed32(2, 9));
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 7u);
    EXPECT_EQ(got.record.ipv4_address, 9u);
}

TEST(wire_read, a_32_bit_varint_cut_at_any_byte_is_truncated_input)
{
    const byte_vector whole = wire_builder().tag(1, wire_type::varint).overlong_varint(0xFFFFFFFF, 12);
    for (std::size_t length = 1; length < whole.size(); ++length) {
        v4_decode got(byte_vector(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << length << " bytes";
        EXPECT_EQ(got.record.field_1, 0u) << length << " bytes";
        EXPECT_EQ(got.present(), 0u) << length << " bytes";
    }
}

TEST(wire_read, a_tag_cut_after_any_of_its_bytes_is_truncated_input)
{
    for (std::size_t width = 1; width < 12; ++width) {
        v4_decode got(joined({bytes_of("08 07"), byte_vector(width, 0x88)}));
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << width << " bytes";
        EXPECT_EQ(got.record.field_1, 7u);
        EXPECT_EQ(got.present(), fields(1));
    }
}

TEST(wire_read, a_field_number_has_29_bits)
{
    // The highest one is an unknown field like any other: skipped with types 0 and 2, refused with type 3.
    v4_decode skipped("F8 FF FF FF 0F 05 FA FF FF FF 0F 01 AA 08 07");
    EXPECT_EQ(skipped.result, MAVA_TUM_OK);
    EXPECT_EQ(skipped.record.field_1, 7u);
    EXPECT_EQ(skipped.present(), fields(1));

    v4_decode refused("FB FF FF FF 0F");
    EXPECT_EQ(refused.result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
}

TEST(wire_read, a_64_bit_varint_takes_seven_bits_from_each_of_the_first_nine_bytes)
{
    const varint_row rows[] = {
        {"00", 0},
        {"7F", 127},
        {"80 01", 128},
        {"80 80 80 80 10", 0x100000000},
        {"80 80 80 80 70", 0x700000000},
        {"80 80 80 80 80 01", uint64_t{1} << 35},
        {"80 80 80 80 80 80 01", uint64_t{1} << 42},
        {"80 80 80 80 80 80 80 01", uint64_t{1} << 49},
        {"FF FF FF FF FF FF FF FF 7F", 0x7FFFFFFFFFFFFFFF},
    };
    for (const varint_row &row : rows) {
        session_data_decode got(joined({bytes_of("10"), bytes_of(row.hex)}));
        EXPECT_EQ(got.result, MAVA_TUM_OK) << row.hex;
        EXPECT_EQ(got.record.field_2, row.value) << row.hex;
        EXPECT_EQ(got.present(), fields(2));
    }
}

TEST(wire_read, a_64_bit_varint_takes_only_bit_0_of_its_tenth_byte)
{
    const varint_row rows[] = {
        {"80 80 80 80 80 80 80 80 80 01", 0x8000000000000000},
        {"80 80 80 80 80 80 80 80 80 7E", 0},
        {"85 80 80 80 80 80 80 80 80 7F", 0x8000000000000005},
        {"FF FF FF FF FF FF FF FF FF 01", 0xFFFFFFFFFFFFFFFF},
    };
    for (const varint_row &row : rows) {
        session_data_decode got(joined({bytes_of("10"), bytes_of(row.hex)}));
        EXPECT_EQ(got.result, MAVA_TUM_OK) << row.hex;
        EXPECT_EQ(got.record.field_2, row.value) << row.hex;
    }
}

TEST(wire_read, a_64_bit_varint_steps_over_all_bytes_after_the_tenth)
{
    const varint_row rows[] = {
        {"85 80 80 80 80 80 80 80 80 80 7F", 5},
        {"85 80 80 80 80 80 80 80 80 81 FF FF FF 00", 0x8000000000000005},
    };
    for (const varint_row &row : rows) {
        session_data_decode got(joined({bytes_of("10"), bytes_of(row.hex), bytes_of("08 07")}));
        EXPECT_EQ(got.result, MAVA_TUM_OK) << row.hex;
        EXPECT_EQ(got.record.field_2, row.value) << row.hex;
        EXPECT_EQ(got.record.field_1, 7u) << "the field after " << row.hex;
    }
}

TEST(wire_read, a_64_bit_varint_cut_at_any_byte_is_truncated_input)
{
    const byte_vector whole = wire_builder().tag(2, wire_type::varint).overlong_varint(0xFFFFFFFFFFFFFFFF, 14);
    for (std::size_t length = 1; length < whole.size(); ++length) {
        session_data_decode got(byte_vector(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << length << " bytes";
        EXPECT_EQ(got.record.field_2, 0u) << length << " bytes";
        EXPECT_EQ(got.present(), 0u) << length << " bytes";
    }
}

TEST(wire_read, a_fixed32_is_little_endian_at_any_alignment)
{
    for (std::size_t padding = 0; padding < 8; ++padding) {
        // Unknown varints of field 3 in front of the field move it byte by byte.
        v4_decode got(wire_builder().tag(3, wire_type::varint).overlong_varint(0, padding + 1).raw("15 01 02 03 84"));
        EXPECT_EQ(got.result, MAVA_TUM_OK);
        EXPECT_EQ(got.record.ipv4_address, 0x84030201u) << padding;
    }
}

TEST(wire_read, a_fixed32_with_fewer_than_four_bytes_left_is_truncated_input)
{
    for (const char *hex : {"15", "15 01", "15 01 02", "15 01 02 03"}) {
        v4_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << hex;
        EXPECT_EQ(got.record.ipv4_address, 0u) << hex;
        EXPECT_EQ(got.present(), 0u) << hex;
    }
}

TEST(wire_read, a_length_is_a_32_bit_varint_and_truncated_like_one)
{
    for (const char *hex : {"12 02 AA BB 38 07", "12 82 00 AA BB 38 07", "12 82 80 80 80 70 AA BB 38 07",
             "12 82 80 80 80 80 80 80 80 80 80 80 01 AA BB 38 07"}) {
        decoded<mava_tum_subscriber_v6> got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_OK) << hex;
        EXPECT_EQ(hex_of(content_of(got.record.field_2)), "AA BB") << hex;
        EXPECT_EQ(got.record.field_7, 7u) << hex;
    }
}

TEST(wire_read, a_length_beyond_the_end_is_truncated_input)
{
    for (const char *hex : {"12 03 AA BB", "12 01", "12 FF FF FF FF 0F AA", "12 80 80 80 80 08 AA"}) {
        for (uint32_t flags : {0u, uint32_t{MAVA_TUM_ALIAS}}) {
            decoded<mava_tum_subscriber_v6> got(hex, {.flags = flags});
            EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << hex;
            EXPECT_EQ(got.record.field_2.data, nullptr) << hex;
            EXPECT_EQ(got.record.field_2.length, 0u) << hex;
            EXPECT_TRUE(got.allocator.calls().empty()) << hex;
        }
    }
}

TEST(wire_read, a_cut_length_is_truncated_input)
{
    for (const char *hex : {"12", "12 80", "12 80 80 80 80", "12 80 80 80 80 80 80"}) {
        decoded<mava_tum_subscriber_v6> got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << hex;
        EXPECT_EQ(got.present(), 0u) << hex;
    }
}

TEST(wire_read, a_length_that_is_missing_altogether_is_truncated_input)
{
    for (const char *hex : {"12", "08 01 12"}) {
        decoded<mava_tum_subscriber_v6> aliased(hex, {.flags = MAVA_TUM_ALIAS});
        EXPECT_EQ(aliased.result, MAVA_TUM_TRUNCATED) << hex;
        decoded<mava_tum_subscriber_acl> text(hex);
        EXPECT_EQ(text.result, MAVA_TUM_TRUNCATED) << hex;
    }
}

TEST(wire_read, an_empty_span_decodes_without_looking_at_its_pointer)
{
    mava_tum_session_data record;
    fill_with_ones(record);
    EXPECT_EQ(mava_tum_session_data_decode_ext(&record, nullptr, 0, nullptr, nullptr, 0), MAVA_TUM_OK);
    EXPECT_EQ(own_bits(record), 0u);
    EXPECT_EQ(record.field_2, 0u);
    EXPECT_EQ(record.field_5, nullptr);
}

// ---- at the start of a span that is longer than a signed 64-bit number can say ----

// Its first bytes end before an inaccessible page: a read beyond them stops the program.

class wire_read_long_spans : public testing::Test
{
protected:
    void SetUp() override
    {
        if (sizeof(uintptr_t) < sizeof(uint64_t))
            GTEST_SKIP() << "addresses have 32 bits: there is no such span";
    }

    // The ends of spans of 2^63 bytes and more, the last one as long as the address space allows.
    static std::vector<const uint8_t *> far_ends(const uint8_t *at)
    {
        const uint64_t start = reinterpret_cast<uintptr_t>(at);
        const uint64_t half = uint64_t{1} << 63;
        std::vector<const uint8_t *> ends;
        for (const uint64_t span : {half - 1, half, half + 1, half + 4, ~start})
            ends.push_back(reinterpret_cast<const uint8_t *>(static_cast<uintptr_t>(start + span)));
        return ends;
    }
};

TEST_F(wire_read_long_spans, a_fixed32_is_read)
{
    page_end_buffer input(bytes_of("01 02 03 84"));
    for (const uint8_t *end : far_ends(input.data())) {
        const auto found = mava_tum::read_fixed32(input.data(), end);
        EXPECT_EQ(found.next, input.data() + 4);
        EXPECT_EQ(found.value, 0x84030201u);
    }
}

TEST_F(wire_read_long_spans, a_payload_is_found)
{
    page_end_buffer input(bytes_of("02 AA BB"));
    for (const uint8_t *end : far_ends(input.data())) {
        const mava_tum::payload found = mava_tum::read_payload(input.data(), end);
        EXPECT_EQ(found.data, input.data() + 1);
        EXPECT_EQ(found.length, 2u);
    }
}

TEST_F(wire_read_long_spans, a_varint_is_read)
{
    page_end_buffer input(bytes_of("96 01"));
    for (const uint8_t *end : far_ends(input.data())) {
        const auto found = mava_tum::read_varint32(input.data(), end);
        EXPECT_EQ(found.next, input.data() + 2);
        EXPECT_EQ(found.value, 150u);
    }
}

} // namespace
} // namespace mava_tum_test
