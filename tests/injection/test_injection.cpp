// Does every allocation failure leave what the model predicts? scripts/check/allocation_failures asks the same of a
// million failing calls.
#include "injection/inject_message.h"
#include "injection/injection_subjects.h"

#include "model/message_tables.h"
#include "model/model.h"
#include "model/wire_maker.h"

#include <gtest/gtest.h>

#include <cstring>

namespace mava_tum_injection
{

namespace
{

using namespace mava_tum_model;

void expect_no_deviation(operation what, uint64_t injections)
{
    for (const injection_subject &tested : all_injection_subjects()) {
        if (tested.what != what)
            continue;
        const injection_tally tally = inject(tested, injections);
        EXPECT_EQ(tally.first_deviation, "") << tested.name;
        EXPECT_EQ(tally.injections > 0, tested.asks_for_memory) << tested.name;
    }
}

TEST(injection, a_decode_that_runs_out_of_memory_leaves_what_the_model_predicts)
{
    expect_no_deviation(operation::decode, 1000);
}

TEST(injection, a_duplicate_that_runs_out_of_memory_leaves_what_the_model_predicts)
{
    expect_no_deviation(operation::duplicate, 1000);
}

// ---- the check itself: a failure that only one side sees must show ----

std::size_t index_of_message(const std::string &name)
{
    for (std::size_t index = 0; index < all_messages().size(); ++index) {
        if (all_messages()[index]->name == name)
            return index;
    }
    ADD_FAILURE() << "no message " << name;
    return 0;
}

constexpr failure_plan never = {};
constexpr failure_plan third_call = {failing::once, 3};
constexpr failure_plan fourth_call = {failing::once, 4};

TEST(injection, a_decode_that_fails_at_another_call_than_the_model_is_a_deviation)
{
    const std::size_t tested = index_of_message("session_context");
    const wire_bytes wire = full_wire(*all_messages()[tested], 2);
    EXPECT_EQ(inject_decode(tested, wire, 0, {third_call, third_call}), "");
    EXPECT_NE(inject_decode(tested, wire, 0, {never, third_call}), "");
    EXPECT_NE(inject_decode(tested, wire, 0, {third_call, fourth_call}), "");
}

TEST(injection, a_duplicate_that_fails_at_another_call_than_the_model_is_a_deviation)
{
    const std::size_t tested = index_of_message("session_context");
    const wire_bytes wire = full_wire(*all_messages()[tested], 2);
    alignas(8) uint8_t record[656] = {};
    block_log blocks;
    model_decode(*all_messages()[tested], record, wire.data(), wire.size(), blocks.source(), 0);
    EXPECT_EQ(inject_duplicate(tested, record, {third_call, third_call}), "");
    EXPECT_NE(inject_duplicate(tested, record, {never, third_call}), "");
    EXPECT_NE(inject_duplicate(tested, record, {third_call, fourth_call}), "");
}

} // namespace

} // namespace mava_tum_injection
