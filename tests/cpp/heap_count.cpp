#include "heap_count.h"

#include <new>

namespace
{

std::size_t calls = 0;

} // namespace

namespace mava_tum_test
{

std::size_t heap_calls()
{
    return calls;
}

} // namespace mava_tum_test

// The last two are operator new and operator new with an alignment, as the linker knows them.
extern "C" {
void *__real_malloc(std::size_t size);
void *__real_calloc(std::size_t count, std::size_t size);
void *__real_realloc(void *block, std::size_t size);
void *__real__Znwm(std::size_t size);
void *__real__ZnwmSt11align_val_t(std::size_t size, std::align_val_t alignment);

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

void *__wrap__Znwm(std::size_t size)
{
    ++calls;
    return __real__Znwm(size);
}

void *__wrap__ZnwmSt11align_val_t(std::size_t size, std::align_val_t alignment)
{
    ++calls;
    return __real__ZnwmSt11align_val_t(size, alignment);
}
}
