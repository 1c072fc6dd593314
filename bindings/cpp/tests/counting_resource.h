// A memory resource that counts outstanding blocks and can refuse one. It fails the running test if a block is released
// with another size, or is never released.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <memory_resource>
#include <new>

namespace mava_tum_test
{

class counting_resource : public std::pmr::memory_resource
{
public:
    ~counting_resource() override
    {
        EXPECT_TRUE(out_.empty()) << out_.size() << " block(s) never came back";
    }

    // The number of the block to refuse, from 1. 0: none.
    void refuse_block(std::size_t number)
    {
        refused_ = number;
        asked_ = 0;
    }

    std::size_t asked() const
    {
        return asked_;
    }

    std::size_t blocks_out() const
    {
        return out_.size();
    }

protected:
    void *do_allocate(std::size_t bytes, std::size_t alignment) override
    {
        if (++asked_ == refused_)
            throw std::bad_alloc();
        void *const block = ::operator new(bytes, std::align_val_t(alignment));
        std::memset(block, 0xCD, bytes); // finds code that relies on zeros
        out_[block] = bytes;
        return block;
    }

private:
    void do_deallocate(void *block, std::size_t bytes, std::size_t alignment) override
    {
        const auto found = out_.find(block);
        ASSERT_NE(found, out_.end()) << "a block that is not out came back";
        EXPECT_EQ(found->second, bytes);
        out_.erase(found);
        ::operator delete(block, std::align_val_t(alignment));
    }

    bool do_is_equal(const std::pmr::memory_resource &other) const noexcept override
    {
        return this == &other;
    }

    std::map<void *, std::size_t> out_;
    std::size_t asked_ = 0;
    std::size_t refused_ = 0;
};

} // namespace mava_tum_test
