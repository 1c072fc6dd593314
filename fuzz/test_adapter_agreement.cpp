// The adapters receive and send what the model predicts, and call no allocator: seeds, well-formed inputs and wrong
// ones, without an engine.
#include "check_adapter.h"
#include "model/wire_maker.h"

#include <gtest/gtest.h>

namespace mava_tum_fuzz
{

namespace
{

using namespace mava_tum_model;

class every_adapter : public testing::TestWithParam<std::size_t>
{
protected:
    std::string check(uint64_t seed, const wire_bytes &wire) const
    {
        return check_adapter({GetParam(), seed, wire});
    }
};

std::string name_of(const testing::TestParamInfo<std::size_t> &info)
{
    return adapter_at(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(model, every_adapter, testing::Range(std::size_t{0}, adapter_count), name_of);

TEST_P(every_adapter, receives_and_sends_seeds_as_the_model_predicts)
{
    for (const wire_bytes &wire : seed_wires(message_of_adapter(GetParam()))) {
        for (uint64_t seed = 0; seed < 20; ++seed)
            ASSERT_EQ(check(seed, wire), "");
    }
}

TEST_P(every_adapter, receives_and_sends_mutated_inputs_as_the_model_predicts)
{
    const message &of = message_of_adapter(GetParam());
    random_source random(GetParam() + 1);
    const std::vector<wire_bytes> seeds = seed_wires(of);
    for (int round = 0; round < 1000; ++round) {
        wire_bytes wire = random.one_in(2) ? random_wire(of, random) : seeds[random.below(seeds.size())];
        for (uint64_t changes = random.below(4); changes > 0; --changes)
            mutate_wire(of, wire, random);
        ASSERT_EQ(check(random.next(), wire), "");
    }
}

// Lists that are longer than their arrays, and longer than an 8-bit count.
TEST_P(every_adapter, receives_lists_that_do_not_fit_as_the_model_predicts)
{
    for (const uint32_t elements : {9u, 51u, 257u})
        ASSERT_EQ(check(elements, full_wire(message_of_adapter(GetParam()), elements)), "");
}

} // namespace

} // namespace mava_tum_fuzz
