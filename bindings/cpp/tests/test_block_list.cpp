// The list of blocks alone; test_owning_record.cpp tests its use by records.
#include "counting_resource.h"
#include "mava_tum/cpp/block_list.hpp"

#include <cstdint>
#include <limits>

namespace mava_tum_test
{
namespace
{

using mava_tum::cpp::block_list;
using mava_tum::cpp::memory;

TEST(cpp_block_list, keeps_its_blocks_when_it_is_moved_to_itself)
{
    counting_resource resource;
    block_list list{memory(&resource)};
    ASSERT_NE(list.take(10), nullptr);
    block_list &same = list;
    list = std::move(same);
    EXPECT_EQ(resource.blocks_out(), 1U);
    list.release_all();
    EXPECT_EQ(resource.blocks_out(), 0U);
}

TEST(cpp_memory, releases_nothing_where_nothing_goes_back)
{
    counting_resource resource;
    const memory kept(mava_tum::cpp::monotonic, &resource);
    void *const block = kept.allocate(10);
    ASSERT_NE(block, nullptr);
    kept.release(block, 10);
    EXPECT_EQ(resource.blocks_out(), 1U);
    resource.deallocate(block, 10);
}

TEST(cpp_block_list, gives_blocks_that_are_aligned_as_those_of_the_resource)
{
    counting_resource resource;
    block_list list{memory(&resource)};
    for (const std::uint64_t size : {1, 15, 16, 17, 100})
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(list.take(size)) % alignof(std::max_align_t), 0U);
}

TEST(cpp_block_list, refuses_a_size_that_has_no_room_for_its_header)
{
    counting_resource resource;
    block_list list{memory(&resource)};
    EXPECT_EQ(list.take(std::numeric_limits<std::uint64_t>::max()), nullptr);
    EXPECT_EQ(list.take(std::numeric_limits<std::uint64_t>::max() - 15), nullptr);
    EXPECT_EQ(list.take_growing(std::numeric_limits<std::uint64_t>::max()), nullptr);
    EXPECT_EQ(resource.asked(), 0U);
}

TEST(cpp_block_list, gives_nothing_back_to_memory_that_is_taken_back_at_once_and_adds_nothing_to_a_block)
{
    class never_given_back : public std::pmr::memory_resource
    {
        void *do_allocate(std::size_t bytes, std::size_t) override
        {
            EXPECT_EQ(bytes, 10U);
            return block_;
        }

        void do_deallocate(void *, std::size_t, std::size_t) override
        {
            ADD_FAILURE() << "a block came back";
        }

        bool do_is_equal(const std::pmr::memory_resource &other) const noexcept override
        {
            return this == &other;
        }

        alignas(std::max_align_t) std::byte block_[64];
    };
    never_given_back resource;
    block_list list{memory(mava_tum::cpp::monotonic, &resource)};
    EXPECT_NE(list.take(10), nullptr);
}

// A resource may return null for a size of 0, which an empty bytes field requests.
TEST(cpp_memory, asks_a_monotonic_resource_for_one_byte_where_none_is_needed)
{
    class null_for_nothing : public counting_resource
    {
        void *do_allocate(std::size_t bytes, std::size_t alignment) override
        {
            EXPECT_NE(bytes, 0U);
            return counting_resource::do_allocate(bytes, alignment);
        }
    };
    null_for_nothing resource;
    const memory kept(mava_tum::cpp::monotonic, &resource);
    void *const block = kept.allocate(0);
    EXPECT_NE(block, nullptr);
    resource.deallocate(block, 1);
}

} // namespace
} // namespace mava_tum_test
