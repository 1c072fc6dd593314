// Prints what two threads do in the time of one:
//   mava_tum_bench_threads <milliseconds per sample> <samples>
// A line per operation of the typical session: operation, side, calls of one thread in a microsecond, how many times as
// many two make, and the same by the processor time that they had (which a machine that is busy elsewhere does not
// spoil); separated by tabs. Each thread has its records, messages and buffers to itself.
#include "peers/harness/peer_program.h"
#include "peers/harness/workload_names.h"
#include "peers/ours/corpus_content.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <latch>
#include <memory>
#include <thread>

namespace bench
{
namespace
{

struct worker_input {
    worker_input()
    {
        content.workload = typical_session;
        content.set = "fixed";
        fill_corpus(content, {0, 1});
        add_operations(operations);
    }

    corpus content;
    suite operations{content};
};

// Each input is made by a thread of its own, and none of these ends before the others have begun: so each takes its
// memory from a part of the heap of its own, and no cache line holds something of two.
std::vector<std::unique_ptr<worker_input>> make_inputs(size_t count)
{
    std::vector<std::unique_ptr<worker_input>> inputs(count);
    std::latch all_begun(static_cast<std::ptrdiff_t>(count));
    std::vector<std::thread> makers;
    for (std::unique_ptr<worker_input> &input : inputs) {
        makers.emplace_back([&] {
            all_begun.arrive_and_wait();
            input = std::make_unique<worker_input>();
        });
    }
    for (std::thread &maker : makers)
        maker.join();
    return inputs;
}

struct rates {
    double by_clock = 0;     // calls per nanosecond
    double by_processor = 0; // the same, by the thread's processor time
};

double seconds_of(clockid_t clock)
{
    timespec time;
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

rates run_for(timed_operation &operation, double seconds)
{
    constexpr uint64_t calls_between_looks = 256;
    const double begin = seconds_of(CLOCK_MONOTONIC);
    const double processor_begin = seconds_of(CLOCK_THREAD_CPUTIME_ID);
    double taken = 0;
    uint64_t calls = 0;
    while (taken < seconds) {
        operation.run(calls_between_looks);
        calls += calls_between_looks;
        taken = seconds_of(CLOCK_MONOTONIC) - begin;
    }
    const double processor_taken = seconds_of(CLOCK_THREAD_CPUTIME_ID) - processor_begin;
    return {static_cast<double>(calls) / taken * 1e-9, static_cast<double>(calls) / processor_taken * 1e-9};
}

// The sums over all threads, which start together.
rates run_threads(std::vector<timed_operation *> operations, double seconds)
{
    std::atomic<size_t> ready = 0;
    std::vector<rates> measured(operations.size());
    std::vector<std::thread> threads;
    for (size_t i = 0; i < operations.size(); ++i) {
        threads.emplace_back([&, i] {
            for (++ready; ready != operations.size();) {
            }
            measured[i] = run_for(*operations[i], seconds);
        });
    }
    rates sum;
    for (size_t i = 0; i < threads.size(); ++i) {
        threads[i].join();
        sum.by_clock += measured[i].by_clock;
        sum.by_processor += measured[i].by_processor;
    }
    return sum;
}

double median(std::vector<double> values)
{
    std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
    return values[values.size() / 2];
}

// One and two threads take turns, so that a slow moment of the machine meets both.
void compare(timed_operation &first, timed_operation &second, double seconds, int samples)
{
    std::vector<double> one;
    std::vector<double> by_clock;
    std::vector<double> by_processor;
    for (int sample = 0; sample < samples; ++sample) {
        const rates alone = run_threads({&first}, seconds);
        const rates together = run_threads({&first, &second}, seconds);
        one.push_back(alone.by_clock);
        by_clock.push_back(together.by_clock / alone.by_clock);
        by_processor.push_back(together.by_processor / alone.by_processor);
    }
    std::printf("%s\t%s\t%.4f\t%.4f\t%.4f\n", first.name.c_str(), first.side.c_str(), median(one) * 1e3,
        median(by_clock), median(by_processor));
}

} // namespace
} // namespace bench

int main(int argc, char **argv)
{
    if (argc != 3 || std::atof(argv[1]) <= 0 || std::atoi(argv[2]) <= 0) {
        std::fprintf(stderr, "usage: %s <milliseconds per sample> <samples>\n", argv[0]);
        return 2;
    }
    const auto inputs = bench::make_inputs(2);
    const auto &first = inputs[0]->operations.operations();
    const auto &second = inputs[1]->operations.operations();
    for (size_t i = 0; i < first.size(); ++i)
        bench::compare(*first[i], *second[i], std::atof(argv[1]) * 1e-3, std::atoi(argv[2]));
    return 0;
}
