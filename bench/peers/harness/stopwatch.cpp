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

double single_pass_nanoseconds(timed_operation &operation)
{
    const double begin = clock_nanoseconds();
    operation.run(1);
    return clock_nanoseconds() - begin;
}

// What taking the time takes.
class no_operation final : public timed_operation
{
public:
    void run(uint64_t passes) override
    {
        keep(passes);
    }
};

single_call median_calls(timed_operation &operation, unsigned calls)
{
    constexpr uint64_t warming_passes = 30;
    other_work between;
    std::vector<double> warm(calls);
    std::vector<double> cold(calls);
    for (unsigned i = 0; i < calls; ++i) {
        between.run();
        cold[i] = single_pass_nanoseconds(operation);
        operation.run(warming_passes);
        warm[i] = single_pass_nanoseconds(operation);
    }
    return {median(warm), median(cold)};
}

double run_nanoseconds(timed_operation &operation, uint64_t passes)
{
    const double begin = processor_nanoseconds();
    operation.run(passes);
    return processor_nanoseconds() - begin;
}

// Doubles until the time is long enough to be trusted, which also warms up the operation.
uint64_t passes_of_a_sample(timed_operation &operation, double sample_nanoseconds)
{
    uint64_t passes = 1;
    double taken = run_nanoseconds(operation, passes);
    while (taken < sample_nanoseconds / 4) {
        passes *= 2;
        taken = run_nanoseconds(operation, passes);
    }
    const double wanted = std::ceil(static_cast<double>(passes) * sample_nanoseconds / taken);
    return std::max<uint64_t>(1, static_cast<uint64_t>(wanted));
}

} // namespace

double time_operation(timed_operation &operation, size_t message_count, const sampling &how)
{
    const uint64_t passes = passes_of_a_sample(operation, how.sample_nanoseconds);
    std::vector<double> samples(how.samples);
    for (double &sample : samples)
        sample = run_nanoseconds(operation, passes);
    return median(samples) / static_cast<double>(passes) / static_cast<double>(message_count);
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
