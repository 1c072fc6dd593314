// The callbacks of a caller who has nothing better than the C library's heap.
#ifndef MAVA_TUM_BENCH_CALLOC_CALLBACKS_H
#define MAVA_TUM_BENCH_CALLOC_CALLBACKS_H

#include <cstdint>
#include <cstdlib>

namespace bench
{

inline void *allocate_zeroed(uint64_t size, void *)
{
    return std::calloc(1, size);
}

inline void release_allocated(void *pointer, void *)
{
    std::free(pointer);
}

} // namespace bench

#endif
