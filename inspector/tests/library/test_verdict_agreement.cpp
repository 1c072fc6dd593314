#include "verdict_agreement.h"

#include <gtest/gtest.h>

namespace
{

using namespace mava_tum_test;

// The command scripts/check/inspect_verdict continues with other inputs.
TEST(inspect_verdict, equals_the_result_of_the_library_on_random_and_mutated_inputs)
{
    constexpr uint64_t rounds = 25000 / MAVA_TUM_WORK_DIVISOR;
    const agreement sum = compare_many(rounds, 1);
    EXPECT_EQ(sum.difference, "");
    EXPECT_EQ(sum.inputs, 40 * rounds);
    for (const uint64_t often : {sum.results[0], sum.results[1], sum.results[2], sum.results[3]})
        EXPECT_GT(often, 2 * rounds);
}

TEST(inspect_verdict, equals_the_result_of_the_library_on_every_input_of_one_and_two_bytes)
{
    for (const mava_tum_inspect::message_description &message : mava_tum_inspect::all_messages()) {
        for (uint32_t value = 0; value < 0x10000; value += MAVA_TUM_WORK_DIVISOR) {
            const uint8_t input[] = {static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8)};
            ASSERT_EQ(compare_with_library(message, input, 2).difference, "");
        }
        for (uint32_t value = 0; value < 0x100; ++value) {
            const uint8_t input = static_cast<uint8_t>(value);
            ASSERT_EQ(compare_with_library(message, &input, 1).difference, "");
        }
    }
}

TEST(inspect_verdict, of_nothing_is_success_also_without_a_pointer)
{
    for (const mava_tum_inspect::message_description &message : mava_tum_inspect::all_messages())
        EXPECT_EQ(compare_with_library(message, nullptr, 0).difference, "");
}

} // namespace
