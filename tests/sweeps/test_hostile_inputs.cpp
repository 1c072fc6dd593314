// Do all decoders handle any bytes, with the same results as a second, simple decoder? The inputs are the same in every
// run.
#include "support/guarded_buffer.h"
#include "support/recording_allocator.h"
#include "sweeps/expected_decode.h"
#include "sweeps/expected_wire.h"
#include "sweeps/hostile_inputs.h"
#include "sweeps/message_list.h"
#include "sweeps/record_storage.h"

#include <gtest/gtest.h>

#include <array>

namespace mava_tum_test
{

namespace
{

constexpr uint64_t first_seed = 104729;
constexpr uint64_t input_count = 20000 / MAVA_TUM_WORK_DIVISOR;

class hostile_input : public testing::TestWithParam<message>
{
protected:
    // Decodes one input with the options of `run`. Returns the result code.
    int32_t check(const byte_vector &wire, decode_run &run)
    {
        uint8_t *span = place(wire);
        record_storage record(GetParam(), garbage_);
        record_value expected = record.blank();
        const int32_t expected_result = expect_decode_of(expected, wire, run);

        recording_allocator memory;
        memory.allow_outstanding();
        if (run.plan.first_failing != std::numeric_limits<uint64_t>::max())
            memory.fail_call(run.plan.first_failing);
        const uint32_t flags = run.alias ? MAVA_TUM_ALIAS : 0;
        const int32_t result = GetParam().decode(record.get(), span, wire.size(),
            run.allocator_given ? recording_allocator::allocate : nullptr, memory.context(), flags);
        EXPECT_EQ(result, expected_result);
        EXPECT_TRUE(is_same_record(record.value(), expected));
        EXPECT_EQ(memory.requested_sizes(), run.plan.sizes);
        check_encode(record, wire_of(expected).bytes);

        GetParam().free(record.get(), recording_allocator::release, memory.context(), flags);
        EXPECT_EQ(memory.outstanding_count(), run.dropped_blocks);
        expect_free(expected, run.alias);
        EXPECT_TRUE(is_same_record(record.value(), expected)) << "after the free";
        return result;
    }

    // Counts each result, from MAVA_TUM_OK down.
    using result_counts = std::array<uint64_t, 5>;

    // Runs `check_one(wire, random)`, which returns a result code, over all inputs.
    template <class checker>
    result_counts check_all(uint64_t seed, checker &&check_one)
    {
        result_counts counts{};
        hostile_inputs inputs(GetParam(), seed);
        for (uint64_t i = 0; i < input_count; ++i) {
            const byte_vector wire = inputs.next();
            const int32_t result = check_one(wire, inputs.random());
            if (HasFailure()) {
                ADD_FAILURE() << "input " << i << ": " << hex_of(wire);
                break;
            }
            ++counts.at(static_cast<std::size_t>(-result));
        }
        return counts;
    }

private:
    // A decoded record can be encoded, also after a failure.
    void check_encode(record_storage &record, const byte_vector &expected)
    {
        byte_vector again(expected.size());
        EXPECT_EQ(GetParam().encode(record.get(), again.data(), again.size(), nullptr, nullptr, 0), expected.size());
        EXPECT_EQ(again, expected);
    }

    // Directly before the inaccessible page.
    uint8_t *place(const byte_vector &wire)
    {
        uint8_t *span = page_.data() + (page_.size() - wire.size());
        std::copy(wire.begin(), wire.end(), span);
        return span;
    }

    page_end_buffer page_{hostile_inputs::largest_bytes};
    random_source garbage_{first_seed};
};

// Checks that the inputs of the tests below reach all results.
void expect_variety(const std::array<uint64_t, 5> &counts)
{
    EXPECT_GT(counts[0], input_count / 20) << "messages that decode";
    EXPECT_GT(counts[1], input_count / 20) << "truncated messages";
    EXPECT_GT(counts[2], input_count / 1000) << "unknown fields that cannot be skipped";
    EXPECT_GT(counts[3], input_count / 100) << "known fields with another wire type";
}

TEST_P(hostile_input, is_survived_when_bytes_are_copied)
{
    expect_variety(check_all(first_seed, [&](const byte_vector &wire, random_source &) {
        decode_run run;
        return check(wire, run);
    }));
}

TEST_P(hostile_input, is_survived_when_bytes_are_aliased)
{
    expect_variety(check_all(first_seed + 1, [&](const byte_vector &wire, random_source &) {
        decode_run run;
        run.alias = true;
        return check(wire, run);
    }));
}

TEST_P(hostile_input, is_survived_without_an_allocator)
{
    check_all(first_seed + 2, [&](const byte_vector &wire, random_source &random) {
        decode_run run;
        run.alias = random() % 2 == 0;
        run.allocator_given = false;
        return check(wire, run);
    });
}

// The number of blocks that a decode requests without a failure.
uint64_t call_count_of(const message &tested, const byte_vector &wire, bool alias)
{
    decode_run undisturbed;
    undisturbed.alias = alias;
    record_value record = *tested.skeleton;
    expect_decode_of(record, wire, undisturbed);
    return undisturbed.plan.sizes.size();
}

TEST_P(hostile_input, is_survived_when_any_allocation_fails)
{
    check_all(first_seed + 3, [&](const byte_vector &wire, random_source &random) {
        decode_run run;
        run.alias = random() % 2 == 0;
        const uint64_t call_count = call_count_of(GetParam(), wire, run.alias);
        if (call_count != 0) {
            run.plan.first_failing = 1 + random() % call_count;
            run.plan.last_failing = run.plan.first_failing;
        }
        const int32_t result = check(wire, run);
        EXPECT_TRUE(call_count == 0 || result == MAVA_TUM_NO_MEMORY);
        return result;
    });
}

INSTANTIATE_TEST_SUITE_P(of, hostile_input, testing::ValuesIn(all_messages()), name_of_message);

} // namespace

} // namespace mava_tum_test
