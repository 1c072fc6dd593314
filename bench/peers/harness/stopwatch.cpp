#include "peers/harness/stopwatch.h"
#include "peers/harness/other_work.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace bench
{
namespace
{

double processor_nanoseconds()
{
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

double clock_nanoseconds()
{
    timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

double single_call_nanoseconds(timed_operation &operation)
{
    const double begin = clock_nanoseconds();
    operation.run(0, 1);
    return clock_nanoseconds() - begin;
}

// The time of reading the clock.
class no_operation final : public timed_operation
{
public:
    void run(size_t, uint64_t calls) override
    {
        keep(calls);
    }
};

single_call median_calls(timed_operation &operation, unsigned calls)
{
    constexpr uint64_t warming_calls = 30;
    other_work between;
    std::vector<double> warm(calls);
    std::vector<double> cold(calls);
    for (unsigned i = 0; i < calls; ++i) {
        between.run();
        cold[i] = single_call_nanoseconds(operation);
        operation.run(0, warming_calls);
        warm[i] = single_call_nanoseconds(operation);
    }
    return {median(warm), median(cold)};
}

double run_nanoseconds(timed_operation &operation, size_t first, uint64_t calls)
{
    const double begin = processor_nanoseconds();
    operation.run(first, calls);
    return processor_nanoseconds() - begin;
}

// Doubles the number of calls until the time is long enough. This also warms up the operation.
uint64_t calls_of_a_sample(timed_operation &operation, double sample_nanoseconds)
{
    uint64_t calls = 1;
    double taken = run_nanoseconds(operation, 0, calls);
    while (taken < sample_nanoseconds / 4) {
        calls *= 2;
        taken = run_nanoseconds(operation, 0, calls);
    }
    const double wanted = std::ceil(static_cast<double>(calls) * sample_nanoseconds / taken);
    return std::max<uint64_t>(1, static_cast<uint64_t>(wanted));
}

// Both sides call the warm-up messages. This also measures how many calls fill a slice.
uint64_t calls_of_a_slice(timed_operation &first, timed_operation &second, const pair_window &window)
{
    constexpr uint64_t fewest_pairs = 8;
    const double taken = run_nanoseconds(first, window.messages, window.warming) +
                         run_nanoseconds(second, window.messages, window.warming);
    const double wanted = 2 * window.slice_nanoseconds * static_cast<double>(window.warming) / taken;
    const uint64_t most = std::max<uint64_t>(1, window.messages / (2 * fewest_pairs));
    return std::clamp<uint64_t>(static_cast<uint64_t>(wanted), 1, most);
}

} // namespace

double time_operation(timed_operation &operation, const sampling &how)
{
    const uint64_t calls = calls_of_a_sample(operation, how.sample_nanoseconds);
    std::vector<double> samples(how.samples);
    for (double &sample : samples)
        sample = run_nanoseconds(operation, 0, calls);
    return median(samples) / static_cast<double>(calls);
}

std::vector<pair_times> time_pairs(timed_operation &first, timed_operation &second, const pair_window &window)
{
    const uint64_t calls = calls_of_a_slice(first, second, window);
    std::vector<pair_times> pairs(window.messages / (2 * calls));
    for (const bool swapped : {false, true}) {
        for (size_t pair = 0; pair < pairs.size(); ++pair) {
            const size_t left = 2 * pair * calls;
            const size_t right = left + calls;
            const auto time_first = [&] { pairs[pair].first += run_nanoseconds(first, swapped ? right : left, calls); };
            const auto time_second = [&] {
                pairs[pair].second += run_nanoseconds(second, swapped ? left : right, calls);
            };
            if (pair % 2 == 0) {
                time_first();
                time_second();
            } else {
                time_second();
                time_first();
            }
        }
    }
    for (pair_times &pair : pairs) {
        pair.first /= static_cast<double>(2 * calls);
        pair.second /= static_cast<double>(2 * calls);
    }
    return pairs;
}

single_call_timer::single_call_timer(unsigned calls) : calls_(calls)
{
    no_operation nothing;
    overhead_ = median_calls(nothing, calls_);
}

single_call single_call_timer::time(timed_operation &operation) const
{
    const single_call taken = median_calls(operation, calls_);
    return {taken.warm - overhead_.warm, taken.cold - overhead_.cold};
}

} // namespace bench
