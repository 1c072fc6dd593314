#include "packed_inputs.h"

#include "support/hex.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using mava_tum_fuzz::pack_input;
using mava_tum_fuzz::unpack_inputs;
using mava_tum_test::bytes_of;
using mava_tum_test::byte_vector;

namespace
{

std::vector<byte_vector> inputs_of(const char *hex)
{
    const byte_vector file = bytes_of(hex);
    const auto unpacked = unpack_inputs(file);
    EXPECT_STREQ(unpacked.fault, nullptr);
    std::vector<byte_vector> inputs;
    for (const auto &input : unpacked.inputs)
        inputs.emplace_back(input.begin(), input.end());
    return inputs;
}

struct refused_file {
    const char *name;
    const char *hex;
    const char *fault;
};

class packed_inputs_refused : public testing::TestWithParam<refused_file>
{
};

} // namespace

TEST(packed_inputs, are_given_back_in_the_order_of_the_file)
{
    const std::vector<byte_vector> expected = {{0xAA}, {}, {0xBB, 0xCC}};
    EXPECT_EQ(inputs_of("00 00 00 01 AA  00 00 00 00  00 00 00 02 BB CC"), expected);
}

TEST(packed_inputs, have_a_length_of_four_bytes_with_the_highest_first)
{
    byte_vector file;
    pack_input(file, byte_vector(0x010203, 0xAA));
    EXPECT_EQ(byte_vector(file.begin(), file.begin() + 5), bytes_of("00 01 02 03 AA"));
    ASSERT_EQ(unpack_inputs(file).inputs.size(), 1U);
    EXPECT_EQ(unpack_inputs(file).inputs[0].size(), 0x010203U);
}

TEST_P(packed_inputs_refused, with_a_reason_and_without_any_input)
{
    const auto unpacked = unpack_inputs(bytes_of(GetParam().hex));
    EXPECT_STREQ(unpacked.fault, GetParam().fault);
    EXPECT_TRUE(unpacked.inputs.empty());
}

INSTANTIATE_TEST_SUITE_P(each_kind_of_fault, packed_inputs_refused,
    testing::Values(refused_file{"empty_file", "", "it has no input"},
        refused_file{"one_byte_of_the_first_length", "00", "it ends inside a length"},
        refused_file{"three_bytes_of_the_second_length", "00 00 00 01 AA 00 00 00", "it ends inside a length"},
        refused_file{"length_beyond_the_end_by_one", "00 00 00 02 AA", "it ends inside an input"},
        refused_file{"second_length_beyond_the_end", "00 00 00 01 AA 00 00 00 01", "it ends inside an input"},
        refused_file{"largest_length", "FF FF FF FF AA", "it ends inside an input"}),
    [](const auto &row) { return std::string(row.param.name); });
