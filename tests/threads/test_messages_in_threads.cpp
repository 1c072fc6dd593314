// Can any number of threads read one wire and one record, each into its own record?
#include "support/hex.h"
#include "sweeps/message_list.h"
#include "sweeps/random_records.h"
#include "sweeps/record_storage.h"
#include "threads/eight_threads.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace mava_tum_test
{
namespace
{

// An allocator per thread: all threads would share the list of a recording_allocator.
class block_counter
{
public:
    static void *obtain(uint64_t size, void *context)
    {
        ++static_cast<block_counter *>(context)->outstanding_;
        return std::malloc(size == 0 ? 1 : size);
    }

    static void release(void *block, void *context)
    {
        --static_cast<block_counter *>(context)->outstanding_;
        std::free(block);
    }

    int outstanding() const
    {
        return outstanding_;
    }

private:
    int outstanding_ = 0;
};

byte_vector encoded(const message &tested, const void *record)
{
    byte_vector wire(tested.encode(record, nullptr, 0, nullptr, nullptr, 0));
    tested.encode(record, wire.data(), wire.size(), nullptr, nullptr, 0);
    return wire;
}

// Decodes `wire` into a record of this thread: it encodes to the same message, and no block is left.
bool decodes_and_frees(const message &tested, const byte_vector &wire, uint32_t flags)
{
    block_counter blocks;
    record_storage own(tested);
    const int32_t result = tested.decode(own.get(), wire.data(), wire.size(), block_counter::obtain, &blocks, flags);
    const bool same = result == MAVA_TUM_OK && encoded(tested, own.get()) == wire;
    tested.free(own.get(), block_counter::release, &blocks, flags);
    return same && blocks.outstanding() == 0;
}

bool duplicates_and_frees(const message &tested, const void *shared, const byte_vector &wire)
{
    block_counter blocks;
    record_storage own(tested);
    const int32_t result = tested.duplicate(own.get(), shared, block_counter::obtain, &blocks);
    const bool same = result == MAVA_TUM_OK && encoded(tested, own.get()) == wire;
    tested.free(own.get(), block_counter::release, &blocks, 0);
    return same && blocks.outstanding() == 0;
}

class messages_in_threads : public testing::TestWithParam<message>
{
};

TEST_P(messages_in_threads, share_one_wire_and_one_record)
{
    const message &tested = GetParam();
    record_storage shared(tested, full_record(*tested.skeleton));
    const void *record = shared.get();
    const byte_vector wire = encoded(tested, record);
    ASSERT_FALSE(wire.empty());
    EXPECT_EQ(failures_in_eight_threads([&] {
        return encoded(tested, record) == wire && decodes_and_frees(tested, wire, 0) &&
               decodes_and_frees(tested, wire, MAVA_TUM_ALIAS) && duplicates_and_frees(tested, record, wire);
    }),
        0);
}

INSTANTIATE_TEST_SUITE_P(of, messages_in_threads, testing::ValuesIn(all_messages()), name_of_message);

} // namespace
} // namespace mava_tum_test
