#include "peers/harness/stopwatch.h"

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
    std::ranges::nth_element(samples, samples.begin() + samples.size() / 2);
    return samples[samples.size() / 2] / static_cast<double>(passes) / static_cast<double>(message_count);
}

} // namespace bench
