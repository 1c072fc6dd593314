// Times operations: two in turns, one by itself, or single calls with cold caches. The first two by the thread's
// processor time, which does not count other processes.
#ifndef MAVA_TUM_BENCH_STOPWATCH_H
#define MAVA_TUM_BENCH_STOPWATCH_H

#include "peers/harness/suite.h"

namespace bench
{

struct sampling {
    unsigned samples;          // the result is their median
    double sample_nanoseconds; // a sample takes as many calls as last this long
};

// Nanoseconds per call on message 0.
double time_operation(timed_operation &operation, const sampling &how);

// Nanoseconds per call of two operations, on the same messages.
struct pair_times {
    double first;
    double second;
};

// Which messages a comparison works on.
struct pair_window {
    uint64_t messages;        // those of the measurement
    uint64_t warming;         // that many more after them, to begin with
    double slice_nanoseconds; // how long one side runs before it is the other's turn
};

// The two sides take turns; each is called once for every message. A pair of slices is two neighbours in the row of
// messages. In the first pass, one side takes the left slice and the other the right one; in the second pass, they
// swap. The order also changes from pair to pair (left-right, right-left), so that slow changes of the machine affect
// both sides.
std::vector<pair_times> time_pairs(timed_operation &first, timed_operation &second, const pair_window &window);

struct single_call {
    double warm; // nanoseconds of one call right after many others
    double cold; // of one call after other work; see other_work.h
};

// Times calls on message 0 one by one, by the clock: the resolution of the thread's time is too low.
class single_call_timer
{
public:
    explicit single_call_timer(unsigned calls);

    // Medians, less the time of reading the clock.
    single_call time(timed_operation &operation) const;

private:
    unsigned calls_;
    single_call overhead_;
};

} // namespace bench

#endif
