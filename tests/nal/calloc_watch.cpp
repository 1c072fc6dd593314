#include "nal/calloc_watch.h"

#include <gtest/gtest.h>

#include <limits>

extern "C" {
void *__real_calloc(std::size_t count, std::size_t size);
void __real_free(void *pointer);
void *__wrap_calloc(std::size_t count, std::size_t size);
void __wrap_free(void *pointer);
}

namespace mava_tum_test
{
namespace
{

calloc_watch *live_watch = nullptr;

} // namespace

calloc_watch::calloc_watch()
{
    if (live_watch != nullptr)
        ADD_FAILURE() << "two watches at once";
    live_watch = this;
}

calloc_watch::~calloc_watch()
{
    live_watch = nullptr;
    EXPECT_EQ(outstanding_count(), 0u) << "blocks from calloc were never freed";
}

void calloc_watch::fail_call(std::size_t number)
{
    first_failing_ = number;
    last_failing_ = number;
}

void calloc_watch::fail_from_call(std::size_t number)
{
    first_failing_ = number;
    last_failing_ = std::numeric_limits<std::size_t>::max();
}

void *calloc_watch::allocate(std::size_t count, std::size_t size)
{
    sizes_.push_back(count * size);
    const std::size_t number = sizes_.size();
    if (first_failing_ != 0 && number >= first_failing_ && number <= last_failing_)
        return nullptr;
    void *block = __real_calloc(count, size);
    outstanding_.insert(block);
    return block;
}

void calloc_watch::forget(void *pointer)
{
    outstanding_.erase(pointer);
}

} // namespace mava_tum_test

void *__wrap_calloc(std::size_t count, std::size_t size)
{
    using mava_tum_test::live_watch;
    return live_watch == nullptr ? __real_calloc(count, size) : live_watch->allocate(count, size);
}

void __wrap_free(void *pointer)
{
    if (mava_tum_test::live_watch != nullptr)
        mava_tum_test::live_watch->forget(pointer);
    __real_free(pointer);
}
