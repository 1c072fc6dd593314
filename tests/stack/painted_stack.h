// A thread with a small stack that is filled with a pattern, to measure how much of it a call uses.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace mava_tum_test
{

inline constexpr std::size_t painted_stack_bytes = 64 * 1024;

struct stack_use {
    std::size_t call_bytes = 0;   // the deepest of the calls, from the thread's own frame down
    std::size_t thread_bytes = 0; // the same with the thread's own frames, from the top of the stack
};

// Makes the calls one after the other on a new thread. An inaccessible page is below its stack.
stack_use measure_stack_use(const std::vector<std::function<void()>> &calls);

} // namespace mava_tum_test
