// How much stack does each exported function need on a thread with a small stack?
#include "stack/exported_calls.h"
#include "stack/painted_stack.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>

namespace mava_tum_test
{

namespace
{

// The part of the stack for the thread's own functions, signal handlers and the caller's callbacks.
constexpr std::size_t reserve_bytes = 16 * 1024;

// The stack that `name` used, printed as a line for scripts/check/stack.
void expect_fits(const exported_calls &tested)
{
    ASSERT_FALSE(tested.calls.empty()) << tested.name;
    const stack_use used = measure_stack_use(tested.calls);
    std::cout << "used " << used.call_bytes << ' ' << tested.name << '\n';
    EXPECT_LE(used.thread_bytes, painted_stack_bytes - reserve_bytes) << tested.name;
}

// Valgrind reports accesses below the stack pointer, so also the pattern.
bool runs_under_valgrind()
{
    const char *preloaded = std::getenv("LD_PRELOAD");
    return preloaded != nullptr && std::strstr(preloaded, "vgpreload") != nullptr;
}

std::set<std::string> exported_names()
{
    std::ifstream list(MAVA_TUM_EXPORTS_FILE);
    return {std::istream_iterator<std::string>(list), std::istream_iterator<std::string>()};
}

TEST(stack_use, every_exported_function_leaves_a_quarter_of_a_64_kib_stack_free)
{
    if (runs_under_valgrind())
        GTEST_SKIP() << "valgrind reports the paint";
    std::set<std::string> measured;
    for (auto list : {message_calls, adapter_calls, queue_calls}) {
        for (const exported_calls &tested : list()) {
            expect_fits(tested);
            measured.insert(tested.name);
        }
    }
    EXPECT_EQ(measured.size(), 201u);
    EXPECT_EQ(measured, exported_names());
}

TEST(stack_use, the_measurement_sees_a_large_frame_and_the_absence_of_one)
{
    if (runs_under_valgrind())
        GTEST_SKIP() << "valgrind reports the paint";
    const auto nothing = [] {};
    const auto large = [] {
        volatile char frame[20000];
        frame[0] = 1;
        static_cast<void>(frame[0]);
    };
    EXPECT_LT(measure_stack_use({nothing}).call_bytes, 400u);
    const stack_use used = measure_stack_use({nothing, large, nothing});
    EXPECT_GE(used.call_bytes, 20000u);
    EXPECT_LT(used.call_bytes, 20400u);
    EXPECT_GT(used.thread_bytes, used.call_bytes);
}

} // namespace

} // namespace mava_tum_test
