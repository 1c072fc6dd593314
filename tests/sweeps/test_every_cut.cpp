// Does a decoder handle an input that is truncated at any byte, and keep exactly the complete fields?
#include "support/guarded_buffer.h"
#include "support/recording_allocator.h"
#include "sweeps/expected_record.h"
#include "sweeps/expected_wire.h"
#include "sweeps/message_list.h"
#include "sweeps/random_records.h"
#include "sweeps/record_storage.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace mava_tum_test
{

namespace
{

class every_cut : public testing::TestWithParam<message>
{
};

void check_cut(const message &tested, const record_value &sent, std::size_t cut, uint8_t *span, bool alias)
{
    random_source garbage(cut);
    record_storage record(tested, garbage);
    record_value expected = record.blank();
    int32_t expected_result = MAVA_TUM_OK;
    allocation_plan plan;
    expect_decode(expected, sent_before_cut(sent, cut, expected_result), plan, alias);

    recording_allocator memory;
    const uint32_t flags = alias ? MAVA_TUM_ALIAS : 0;
    const int32_t result =
        tested.decode(record.get(), span, cut, recording_allocator::allocate, memory.context(), flags);
    EXPECT_EQ(result, expected_result);
    EXPECT_TRUE(is_same_record(record.value(), expected));
    EXPECT_EQ(memory.requested_sizes(), plan.sizes);

    tested.free(record.get(), recording_allocator::release, memory.context(), flags);
    EXPECT_EQ(memory.outstanding_count(), 0u);
    expect_free(expected, alias);
    EXPECT_TRUE(is_same_record(record.value(), expected)) << "after the free";
}

void check_every_cut(const message &tested, bool alias)
{
    for (const named_record &seed : seeds_of(*tested.skeleton)) {
        const byte_vector wire = wire_of(seed.value).bytes;
        page_end_buffer page(wire.size());
        const std::size_t step = wire.size() > 300 ? MAVA_TUM_WORK_DIVISOR : 1;
        for (std::size_t cut = wire.size() % step; cut <= wire.size(); cut += step) {
            SCOPED_TRACE(
                seed.name + " record of " + std::to_string(wire.size()) + " bytes, cut after " + std::to_string(cut));
            uint8_t *span = page.data() + (wire.size() - cut);
            std::copy_n(wire.begin(), cut, span);
            check_cut(tested, seed.value, cut, span, alias);
            if (testing::Test::HasFailure())
                return;
        }
    }
}

TEST_P(every_cut, leaves_the_fields_before_it_when_bytes_are_copied)
{
    check_every_cut(GetParam(), false);
}

TEST_P(every_cut, leaves_the_fields_before_it_when_bytes_are_aliased)
{
    check_every_cut(GetParam(), true);
}

TEST_P(every_cut, may_leave_nothing_at_all)
{
    random_source garbage(1);
    record_storage record(GetParam(), garbage);
    const record_value expected = record.blank();
    EXPECT_EQ(GetParam().decode(record.get(), nullptr, 0, nullptr, nullptr, 0), MAVA_TUM_OK);
    EXPECT_TRUE(is_same_record(record.value(), expected));
}

INSTANTIATE_TEST_SUITE_P(of, every_cut, testing::ValuesIn(all_messages()), name_of_message);

} // namespace

} // namespace mava_tum_test
