// The same work in eight threads at once.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <thread>

namespace mava_tum_test
{

constexpr std::size_t thread_count = 8;
constexpr int rounds = 100;

// The number of failed rounds of `work`, which returns true on success, in all threads. All start together, so that
// they are in the same function at the same time.
template <class work_type>
int failures_in_eight_threads(const work_type &work)
{
    std::atomic<bool> go = false;
    std::atomic<int> failures = 0;
    std::array<std::thread, thread_count> threads;
    for (std::thread &thread : threads) {
        thread = std::thread([&] {
            while (!go.load())
                std::this_thread::yield();
            for (int round = 0; round < rounds; ++round)
                failures += work() ? 0 : 1;
        });
    }
    go.store(true);
    for (std::thread &thread : threads)
        thread.join();
    return failures.load();
}

} // namespace mava_tum_test
