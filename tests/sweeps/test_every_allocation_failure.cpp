// What is the result if an allocation fails: each call in turn, once or from then on?
#include "support/guarded_buffer.h"
#include "support/recording_allocator.h"
#include "sweeps/expected_record.h"
#include "sweeps/expected_wire.h"
#include "sweeps/message_list.h"
#include "sweeps/random_records.h"
#include "sweeps/record_storage.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{

namespace
{

constexpr uint64_t never = std::numeric_limits<uint64_t>::max();

class every_allocation_failure : public testing::TestWithParam<message>
{
};

void let_fail(recording_allocator &memory, const allocation_plan &plan)
{
    if (plan.last_failing == never)
        memory.fail_from_call(plan.first_failing);
    else
        memory.fail_call(plan.first_failing);
}

void check_decode(const message &tested, const record_value &sent, allocation_plan plan, bool alias)
{
    page_end_buffer wire(wire_of(sent).bytes);
    random_source garbage(plan.first_failing);
    record_storage record(tested, garbage);
    record_value expected = record.blank();
    const int32_t expected_result = expect_decode(expected, sent, plan, alias);

    recording_allocator memory;
    let_fail(memory, plan);
    const uint32_t flags = alias ? MAVA_TUM_ALIAS : 0;
    const int32_t result =
        tested.decode(record.get(), wire.data(), wire.size(), recording_allocator::allocate, memory.context(), flags);
    EXPECT_EQ(result, expected_result);
    EXPECT_TRUE(is_same_record(record.value(), expected));
    EXPECT_EQ(memory.requested_sizes(), plan.sizes);

    tested.free(record.get(), recording_allocator::release, memory.context(), flags);
    EXPECT_EQ(memory.outstanding_count(), 0u);
    expect_free(expected, alias);
    EXPECT_TRUE(is_same_record(record.value(), expected)) << "after the free";
}

void check_duplicate(const message &tested, const record_value &original, allocation_plan plan)
{
    record_storage source(tested, original);
    random_source garbage(plan.first_failing);
    record_storage copy(tested, garbage);
    record_value expected = copy.blank();
    const int32_t expected_result = expect_duplicate(expected, original, plan);

    recording_allocator memory;
    let_fail(memory, plan);
    const int32_t result = tested.duplicate(copy.get(), source.get(), recording_allocator::allocate, memory.context());
    EXPECT_EQ(result, expected_result);
    EXPECT_TRUE(is_same_record(copy.value(), expected));
    EXPECT_EQ(memory.requested_sizes(), plan.sizes);
    EXPECT_TRUE(is_same_record(source.value(), original)) << "the source has changed";

    tested.free(copy.get(), recording_allocator::release, memory.context(), 0);
    EXPECT_EQ(memory.outstanding_count(), 0u);
    expect_free(expected, false);
    EXPECT_TRUE(is_same_record(copy.value(), expected)) << "after the free";
}

// Runs `check(plan)` with no failing call, then with every call failing once and from then on.
template <class checker>
void fail_every_call(std::size_t call_count, checker &&check)
{
    check(allocation_plan{never, never, {}});
    for (uint64_t call = 1; call <= call_count && !testing::Test::HasFailure(); ++call) {
        SCOPED_TRACE("call " + std::to_string(call) + " of " + std::to_string(call_count) + " fails");
        check(allocation_plan{call, call, {}});
        check(allocation_plan{call, never, {}});
    }
}

void check_every_decode(const message &tested, bool alias)
{
    for (const named_record &seed : seeds_of(*tested.skeleton)) {
        SCOPED_TRACE(seed.name);
        allocation_plan undisturbed;
        record_value received = *tested.skeleton;
        ASSERT_EQ(expect_decode(received, seed.value, undisturbed, alias), MAVA_TUM_OK);
        fail_every_call(undisturbed.sizes.size(),
            [&](const allocation_plan &plan) { check_decode(tested, seed.value, plan, alias); });
    }
}

TEST_P(every_allocation_failure, ends_a_decode_with_what_was_decoded_before)
{
    check_every_decode(GetParam(), false);
}

TEST_P(every_allocation_failure, ends_an_aliasing_decode_with_what_was_decoded_before)
{
    check_every_decode(GetParam(), true);
}

TEST_P(every_allocation_failure, empties_one_field_of_a_duplicate_and_spares_the_rest)
{
    const message &tested = GetParam();
    for (const named_record &seed : seeds_of(*tested.skeleton)) {
        SCOPED_TRACE(seed.name);
        allocation_plan undisturbed;
        record_value copy = *tested.skeleton;
        ASSERT_EQ(expect_duplicate(copy, seed.value, undisturbed), MAVA_TUM_OK);
        fail_every_call(
            undisturbed.sizes.size(), [&](const allocation_plan &plan) { check_duplicate(tested, seed.value, plan); });
    }
}

TEST_P(every_allocation_failure, includes_a_decode_without_an_allocator)
{
    const message &tested = GetParam();
    for (const named_record &seed : seeds_of(*tested.skeleton)) {
        page_end_buffer wire(wire_of(seed.value).bytes);
        for (const bool alias : {false, true}) {
            SCOPED_TRACE(seed.name + (alias ? ", aliasing" : ", copying"));
            record_storage record(tested);
            record_value expected = record.blank();
            allocation_plan plan{1, never, {}};
            const int32_t expected_result = expect_decode(expected, seed.value, plan, alias);
            const uint32_t flags = alias ? MAVA_TUM_ALIAS : 0;
            EXPECT_EQ(tested.decode(record.get(), wire.data(), wire.size(), nullptr, nullptr, flags), expected_result);
            EXPECT_TRUE(is_same_record(record.value(), expected));
        }
    }
}

TEST_P(every_allocation_failure, includes_a_duplicate_without_an_allocator)
{
    const message &tested = GetParam();
    for (const named_record &seed : seeds_of(*tested.skeleton)) {
        SCOPED_TRACE(seed.name);
        record_storage source(tested, seed.value);
        record_storage copy(tested);
        record_value expected = copy.blank();
        allocation_plan plan{1, never, {}};
        const int32_t expected_result = expect_duplicate(expected, seed.value, plan);
        EXPECT_EQ(tested.duplicate(copy.get(), source.get(), nullptr, nullptr), expected_result);
        EXPECT_TRUE(is_same_record(copy.value(), expected));
    }
}

INSTANTIATE_TEST_SUITE_P(of, every_allocation_failure, testing::ValuesIn(all_messages()), name_of_message);

} // namespace

} // namespace mava_tum_test
