// Prints how many calls two threads make in the time of one:
//   mava_tum_bench_threads <milliseconds per sample> <samples>
// A line per operation of the typical session: operation, side, calls of one thread in a microsecond, how many times as
// many two make, and the same by processor time (which other processes affect less); separated by tabs. Each thread has
// its own records, messages and buffers.
#include "peers/harness/peer_program.h"
#include "peers/harness/workload_names.h"
#include "peers/ours/corpus_content.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <semaphore>
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
        operation.run(0, calls_between_looks);
        calls += calls_between_looks;
        taken = seconds_of(CLOCK_MONOTONIC) - begin;
    }
    const double processor_taken = seconds_of(CLOCK_THREAD_CPUTIME_ID) - processor_begin;
    return {static_cast<double>(calls) / taken * 1e-9, static_cast<double>(calls) / processor_taken * 1e-9};
}

// A thread that makes its own input, and measures on request. Its memory is from its own part of the heap: two threads
// that share a cache line would slow each other down.
class worker
{
public:
    worker() : thread_([this] { work(); })
    {
        is_done_.acquire();
    }

    ~worker()
    {
        operation_ = nullptr;
        may_begin_.release();
        thread_.join();
    }

    worker(const worker &) = delete;
    worker &operator=(const worker &) = delete;

    const std::vector<std::unique_ptr<timed_operation>> &operations() const
    {
        return input_->operations.operations();
    }

    // Starts when `ready` has reached `together`.
    void begin(timed_operation &operation, double seconds, std::atomic<size_t> &ready, size_t together)
    {
        operation_ = &operation;
        seconds_ = seconds;
        ready_ = &ready;
        together_ = together;
        may_begin_.release();
    }

    rates finish()
    {
        is_done_.acquire();
        return measured_;
    }

private:
    void work()
    {
        input_ = std::make_unique<worker_input>();
        is_done_.release();
        for (may_begin_.acquire(); operation_ != nullptr; may_begin_.acquire()) {
            for (++*ready_; *ready_ != together_;) {
            }
            measured_ = run_for(*operation_, seconds_);
            is_done_.release();
        }
    }

    std::unique_ptr<worker_input> input_;
    timed_operation *operation_ = nullptr; // null: end
    double seconds_ = 0;
    std::atomic<size_t> *ready_ = nullptr;
    size_t together_ = 0;
    rates measured_;
    std::binary_semaphore may_begin_{0};
    std::binary_semaphore is_done_{0};
    std::thread thread_; // last: it uses the others
};

// The sums over the workers, which start together.
rates run_workers(const std::vector<worker *> &workers, size_t operation, double seconds)
{
    std::atomic<size_t> ready = 0;
    for (worker *each : workers)
        each->begin(*each->operations()[operation], seconds, ready, workers.size());
    rates sum;
    for (worker *each : workers) {
        const rates measured = each->finish();
        sum.by_clock += measured.by_clock;
        sum.by_processor += measured.by_processor;
    }
    return sum;
}

double median(std::vector<double> values)
{
    std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
    return values[values.size() / 2];
}

// One and two threads take turns, so that a slow moment of the machine affects both.
void compare(worker &first, worker &second, size_t operation, double seconds, int samples)
{
    std::vector<double> one;
    std::vector<double> by_clock;
    std::vector<double> by_processor;
    for (int sample = 0; sample < samples; ++sample) {
        const rates alone = run_workers({&first}, operation, seconds);
        const rates together = run_workers({&first, &second}, operation, seconds);
        one.push_back(alone.by_clock);
        by_clock.push_back(together.by_clock / alone.by_clock);
        by_processor.push_back(together.by_processor / alone.by_processor);
    }
    const timed_operation &measured = *first.operations()[operation];
    std::printf("%s\t%s\t%.4f\t%.4f\t%.4f\n", measured.name.c_str(), measured.side.c_str(), median(one) * 1e3,
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
    bench::worker first;
    bench::worker second;
    for (size_t i = 0; i < first.operations().size(); ++i)
        bench::compare(first, second, i, std::atof(argv[1]) * 1e-3, std::atoi(argv[2]));
    return 0;
}
