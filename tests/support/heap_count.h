// The number of heap calls of this thread. The program is linked by mava_tum_count_heap_calls (tests/CMakeLists.txt):
// calls from its own objects and from static libraries are counted, those inside shared libraries are not.
#pragma once

#include <cstddef>

namespace mava_tum_test
{

// Calls of malloc, calloc, realloc and operator new.
std::size_t heap_calls();

// The number of heap calls that `call` makes.
template <class any_call>
std::size_t heap_calls_of(any_call &&call)
{
    const std::size_t before = heap_calls();
    call();
    return heap_calls() - before;
}

} // namespace mava_tum_test
