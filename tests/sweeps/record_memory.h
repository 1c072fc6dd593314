// The memory behind the pointers of a record that a test has filled.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <vector>

namespace mava_tum_test
{

// Owns the memory that a filled record points to. Blocks have their exact size, so that the address sanitizer detects
// an access behind them.
class record_memory
{
public:
    void *new_block(std::size_t size)
    {
        blocks_.emplace_back(::operator new(size));
        return blocks_.back().get();
    }

private:
    struct block_delete {
        void operator()(void *block) const
        {
            ::operator delete(block);
        }
    };
    std::vector<std::unique_ptr<void, block_delete>> blocks_;
};

} // namespace mava_tum_test
