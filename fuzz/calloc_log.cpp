#include "calloc_log.h"

#include <cstring>
#include <utility>

extern "C" {
void *__real_calloc(std::size_t count, std::size_t size);
void __real_free(void *pointer);
void *__wrap_calloc(std::size_t count, std::size_t size);
void __wrap_free(void *pointer);
}

namespace mava_tum_fuzz
{

namespace
{

mava_tum_model::block_log *live_log = nullptr;

} // namespace

calloc_log::calloc_log(mava_tum_model::block_log &log)
{
    live_log = &log;
}

calloc_log::~calloc_log()
{
    live_log = nullptr;
}

} // namespace mava_tum_fuzz

// The log itself allocates and frees: meanwhile it is not live.
void *__wrap_calloc(std::size_t count, std::size_t size)
{
    using namespace mava_tum_fuzz;
    mava_tum_model::block_log *log = std::exchange(live_log, nullptr);
    if (log == nullptr)
        return __real_calloc(count, size);
    void *block = mava_tum_model::block_log::allocate(count * size, log);
    if (block != nullptr)
        std::memset(block, 0, count * size);
    live_log = log;
    return block;
}

void __wrap_free(void *pointer)
{
    using namespace mava_tum_fuzz;
    mava_tum_model::block_log *log = std::exchange(live_log, nullptr);
    if (log != nullptr && pointer != nullptr && log->index_of(pointer) != mava_tum_model::block_log::unknown)
        mava_tum_model::block_log::release(pointer, log);
    else
        __real_free(pointer);
    live_log = log;
}
