#include "support/heap_count.h"

#include <cstdint>
#include <new>

namespace
{

thread_local std::size_t calls = 0;

} // namespace

namespace mava_tum_test
{

std::size_t heap_calls()
{
    return calls;
}

} // namespace mava_tum_test

// The last two are operator new, without and with an alignment, by their mangled names: a size is an unsigned long with
// 64-bit addresses, otherwise an unsigned int.
#if SIZE_MAX > UINT32_MAX
#define SIZE_CODE "m"
#else
#define SIZE_CODE "j"
#endif

extern "C" {
void *__real_malloc(std::size_t size);
void *__real_calloc(std::size_t count, std::size_t size);
void *__real_realloc(void *block, std::size_t size);
void *real_new(std::size_t size) __asm__("__real__Znw" SIZE_CODE);
void *real_aligned_new(std::size_t size, std::align_val_t alignment) __asm__("__real__Znw" SIZE_CODE "St11align_val_t");
void *counted_new(std::size_t size) __asm__("__wrap__Znw" SIZE_CODE);
void *counted_aligned_new(std::size_t size, std::align_val_t alignment) __asm__(
    "__wrap__Znw" SIZE_CODE "St11align_val_t");

void *__wrap_malloc(std::size_t size)
{
    ++calls;
    return __real_malloc(size);
}

void *__wrap_calloc(std::size_t count, std::size_t size)
{
    ++calls;
    return __real_calloc(count, size);
}

void *__wrap_realloc(void *block, std::size_t size)
{
    ++calls;
    return __real_realloc(block, size);
}

void *counted_new(std::size_t size)
{
    ++calls;
    return real_new(size);
}

void *counted_aligned_new(std::size_t size, std::align_val_t alignment)
{
    ++calls;
    return real_aligned_new(size, alignment);
}
}
