// The step after a tag that no field has in its shortest form: where the decode continues, or how it ends.
#include "codec/decode_unmatched.h"
#include "support/guarded_buffer.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using mava_tum::unmatched_tag;

// A message of 20 fields: field 1 is a varint, field 2 a fixed32, the others are length-delimited.
unmatched_tag step(page_end_buffer &input)
{
    mava_tum::wire_type types[20];
    std::fill(std::begin(types), std::end(types), mava_tum::wire_type::length_delimited);
    types[0] = mava_tum::wire_type::varint;
    types[1] = mava_tum::wire_type::fixed32;
    return mava_tum::decode_unmatched(input.data(), input.data() + input.size(), types, std::size(types));
}

struct row {
    const char *hex;
    std::ptrdiff_t continues_at;
    uint32_t first_byte;
};

TEST(decode_unmatched, a_known_field_in_a_longer_form_continues_as_if_its_tag_stood_in_its_shortest)
{
    const row rows[] = {
        {"88 00 05", 1, 0x08},                      // one byte of tag, directly before the value
        {"95 80 80 00 01 02 03 04", 3, 0x15},       // field 2
        {"FA 80 00 00", 2, 0x7A},                   // field 15, the last one with a tag of one byte
        {"82 81 00 00", 1, 0x10000 | 0x82},         // field 16: two bytes of tag, and the mark
        {"A2 81 80 80 80 00 00", 4, 0x10000 | 0xA2} // field 20
    };
    for (const row &tested : rows) {
        page_end_buffer input(bytes_of(tested.hex));
        const unmatched_tag found = step(input);
        EXPECT_EQ(found.at, input.data() + tested.continues_at) << tested.hex;
        EXPECT_EQ(found.first_byte, tested.first_byte) << tested.hex;
        EXPECT_EQ(found.result, MAVA_TUM_OK) << tested.hex;
    }
}

TEST(decode_unmatched, an_unknown_field_is_stepped_over_to_the_next_tag)
{
    const row rows[] = {
        {"A8 01 05 08 07", 3, 0x08},                // field 21, a varint
        {"AA 01 02 AA BB 15", 5, 0x15},             // length-delimited
        {"AD 01 01 02 03 04 99", 6, 0x99},          // fixed32
        {"A9 01 01 02 03 04 05 06 07 08 00", 10, 0} // fixed64
    };
    for (const row &tested : rows) {
        page_end_buffer input(bytes_of(tested.hex));
        const unmatched_tag found = step(input);
        EXPECT_EQ(found.at, input.data() + tested.continues_at) << tested.hex;
        EXPECT_EQ(found.first_byte, tested.first_byte) << tested.hex;
        EXPECT_EQ(found.result, MAVA_TUM_OK) << tested.hex;
    }
}

TEST(decode_unmatched, the_decode_ends_with_the_result_of_what_stands_there)
{
    const struct {
        const char *hex;
        int32_t result;
    } rows[] = {
        {"A8 01 05", MAVA_TUM_OK},                // an unknown field ends the message
        {"AA 01 05 AA", MAVA_TUM_OK},             // also one that is cut
        {"A8", MAVA_TUM_TRUNCATED},               // a tag without its end
        {"A8 01 80", MAVA_TUM_TRUNCATED},         // a varint without its end
        {"0D 00", MAVA_TUM_WRONG_WIRE_TYPE},      // field 1
        {"A0 01 00", MAVA_TUM_WRONG_WIRE_TYPE},   // field 20
        {"8B 00", MAVA_TUM_WRONG_WIRE_TYPE},      // field 1 as a group
        {"AB 01", MAVA_TUM_UNSUPPORTED_WIRE_TYPE} // field 21 as a group
    };
    for (const auto &tested : rows) {
        page_end_buffer input(bytes_of(tested.hex));
        const unmatched_tag found = step(input);
        EXPECT_EQ(found.at, nullptr) << tested.hex;
        EXPECT_EQ(found.result, tested.result) << tested.hex;
    }
}

TEST(decode_unmatched, field_0_is_an_unknown_field)
{
    page_end_buffer input(bytes_of("00 05 08 07"));
    EXPECT_EQ(step(input).at, input.data() + 2);
}

} // namespace
} // namespace mava_tum_test
