// Can a decoder read a read-only input? A write into it, even one that is undone, stops the program.
#include "support/guarded_buffer.h"
#include "support/recording_allocator.h"
#include "sweeps/expected_record.h"
#include "sweeps/expected_wire.h"
#include "sweeps/message_list.h"
#include "sweeps/random_records.h"
#include "sweeps/record_storage.h"

#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

namespace mava_tum_test
{

namespace
{

class read_only_input : public testing::TestWithParam<message>
{
};

void forbid_writes(page_end_buffer &buffer)
{
    if (buffer.size() == 0)
        return; // and no page: what follows can neither be read nor written
    const std::size_t page_bytes = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    const std::size_t before = reinterpret_cast<uintptr_t>(buffer.data()) % page_bytes;
    ASSERT_EQ(::mprotect(buffer.data() - before, before + buffer.size(), PROT_READ), 0);
}

void check_whole(const message &tested, const record_value &sent, page_end_buffer &input, bool alias)
{
    record_storage record(tested);
    record_value expected = record.blank();
    allocation_plan plan;
    const int32_t expected_result = expect_decode(expected, sent, plan, alias);

    recording_allocator memory;
    const uint32_t flags = alias ? MAVA_TUM_ALIAS : 0;
    EXPECT_EQ(
        tested.decode(record.get(), input.data(), input.size(), recording_allocator::allocate, memory.context(), flags),
        expected_result);
    EXPECT_TRUE(is_same_record(record.value(), expected));
    tested.free(record.get(), recording_allocator::release, memory.context(), flags);
}

// test_every_cut.cpp tests truncated inputs.
void decode_every_cut(const message &tested, page_end_buffer &input, bool alias)
{
    const uint32_t flags = alias ? MAVA_TUM_ALIAS : 0;
    for (std::size_t cut = 0; cut < input.size(); ++cut) {
        record_storage record(tested);
        recording_allocator memory;
        tested.decode(record.get(), input.data(), cut, recording_allocator::allocate, memory.context(), flags);
        tested.free(record.get(), recording_allocator::release, memory.context(), flags);
    }
}

TEST_P(read_only_input, is_decoded_whole)
{
    const message &tested = GetParam();
    for (const named_record &seed : seeds_of(*tested.skeleton)) {
        page_end_buffer input(wire_of(seed.value).bytes);
        forbid_writes(input);
        for (const bool alias : {false, true}) {
            SCOPED_TRACE(seed.name + (alias ? ", aliasing" : ", copying"));
            check_whole(tested, seed.value, input, alias);
        }
    }
}

TEST_P(read_only_input, is_left_alone_by_a_decode_that_fails)
{
    const message &tested = GetParam();
    page_end_buffer input(wire_of(full_record(*tested.skeleton)).bytes);
    forbid_writes(input);
    for (const bool alias : {false, true})
        decode_every_cut(tested, input, alias);
}

INSTANTIATE_TEST_SUITE_P(of, read_only_input, testing::ValuesIn(all_messages()), name_of_message);

} // namespace

} // namespace mava_tum_test
