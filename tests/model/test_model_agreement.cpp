// The library does what the model predicts, for all kinds of inputs.
#include "model/check_message.h"
#include "model/exhaustive.h"

#include <gtest/gtest.h>

namespace mava_tum_model
{

namespace
{

class every_message : public testing::TestWithParam<std::size_t>
{
protected:
    const message &tested() const
    {
        return *all_messages()[GetParam()];
    }
};

std::string name_of(const testing::TestParamInfo<std::size_t> &info)
{
    return all_messages()[info.param]->name;
}

INSTANTIATE_TEST_SUITE_P(model, every_message, testing::Range(std::size_t{0}, all_messages().size()), name_of);

constexpr failing every_way_to_fail[] = {
    failing::never, failing::once, failing::from_then, failing::empty, failing::no_allocator};

// More calls than any seed makes, except those with several elements, which random inputs below have.
constexpr uint32_t failing_calls = 12;

TEST_P(every_message, seeds_are_treated_as_the_model_predicts)
{
    uint64_t seed = 0;
    for (const wire_bytes &wire : seed_wires(tested())) {
        for (const uint32_t flags : {0u, 1u}) {
            for (const failing when : every_way_to_fail) {
                const bool numbered = when == failing::once || when == failing::from_then;
                for (uint32_t call = 1; call <= (numbered ? failing_calls : 1); ++call)
                    ASSERT_EQ(check_message({GetParam(), flags, {when, call}, ++seed, wire}), "");
            }
        }
    }
}

failure_plan some_plan(random_source &random)
{
    if (!random.one_in(3))
        return {};
    return {static_cast<failing>(random.below(5)), static_cast<uint32_t>(1 + random.below(20))};
}

TEST_P(every_message, mutated_inputs_are_treated_as_the_model_predicts)
{
    random_source random(GetParam() + 1);
    const std::vector<wire_bytes> seeds = seed_wires(tested());
    for (int round = 0; round < 2000; ++round) {
        wire_bytes wire = random.one_in(2) ? random_wire(tested(), random) : seeds[random.below(seeds.size())];
        for (uint64_t changes = random.below(6); changes > 0; --changes)
            mutate_wire(tested(), wire, random);
        const uint32_t flags = static_cast<uint32_t>(random.below(4));
        ASSERT_EQ(check_message({GetParam(), flags, some_plan(random), random.next() & 0xFFFFFFFF, wire}), "");
    }
}

// Long enough for every copy, every limit and a full scratch buffer.
TEST_P(every_message, long_inputs_are_treated_as_the_model_predicts)
{
    random_source random(GetParam() + 2000);
    for (int round = 0; round < 16; ++round) {
        wire_bytes wire = full_wire(tested(), 1);
        const std::size_t more_bytes = 2048 + random.below(20000);
        lengthen_wire(tested(), wire, more_bytes, random);
        ASSERT_GE(wire.size(), more_bytes);
        const uint32_t flags = static_cast<uint32_t>(random.below(2));
        ASSERT_EQ(check_message({GetParam(), flags, some_plan(random), random.next() & 0xFFFFFFFF, wire}), "");
    }
}

TEST_P(every_message, random_bytes_are_treated_as_the_model_predicts)
{
    random_source random(GetParam() + 1000);
    for (int round = 0; round < 500; ++round) {
        wire_bytes wire(random.below(24));
        for (uint8_t &byte : wire)
            byte = static_cast<uint8_t>(random.next());
        const uint32_t flags = static_cast<uint32_t>(random.below(2));
        ASSERT_EQ(check_message({GetParam(), flags, some_plan(random), random.next() & 0xFFFFFFFF, wire}), "");
    }
}

TEST_P(every_message, every_input_of_up_to_two_bytes_decodes_as_the_model_predicts)
{
    for (std::size_t length = 0; length <= 2; ++length) {
        for (const uint32_t flags : {0u, 1u}) {
            const exhaustive_result result = check_inputs({GetParam(), length, flags, 0, inputs_of_length(length)});
            EXPECT_EQ(result.difference, "");
            EXPECT_EQ(result.inputs, inputs_of_length(length));
        }
    }
}

TEST_P(every_message, every_capacity_receives_the_bytes_that_the_model_predicts)
{
    const exhaustive_result result = check_capacities(GetParam());
    EXPECT_EQ(result.difference, "");
    EXPECT_GT(result.inputs, 0u);
}

} // namespace

} // namespace mava_tum_model
