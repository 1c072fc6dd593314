// A bytes field with a length and a null pointer, which only a caller can make.
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

TEST(field_bytes, a_duplicate_of_a_length_without_a_pointer_owns_a_block_of_that_length_and_reads_nothing)
{
    mava_tum_subscriber_v6 source{};
    source.field_2 = {nullptr, 3};
    mark_present(source, 2);
    duplicated<mava_tum_subscriber_v6> copy(source);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{3}));
    ASSERT_NE(copy.record.field_2.data, nullptr);
    EXPECT_EQ(copy.record.field_2.length, 3u);
    EXPECT_EQ(copy.record.field_2.data[0], recording_allocator::fill_pattern)
        << "the block is as the allocator gave it";
    EXPECT_EQ(copy.present(), fields(2));
}

} // namespace
} // namespace mava_tum_test
