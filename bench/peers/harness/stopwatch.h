// Times operations: two in turns, one by itself, or single calls with cold caches. The first two by the thread's own
// processor time: others on the machine slow it down, but are not counted.
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

// Has the two sides take turns, and calls each of them once for every message: a pair of slices is two neighbours in
// the row of messages, of which in a first pass one side takes the left and the other the right, and in a second pass
// the other way round. The sides swap places from pair to pair (left-right, right-left), so that what changes slowly
// meets both alike.
std::vector<pair_times> time_pairs(timed_operation &first, timed_operation &second, const pair_window &window);

struct single_call {
    double warm; // nanoseconds of one call right after many others
    double cold; // of one call after other work; see other_work.h
};

// Times calls on message 0 one by one, by the clock: the thread's own time is too coarse for that.
class single_call_timer
{
public:
    explicit single_call_timer(unsigned calls);

    // Medians, less what taking the time takes.
    single_call time(timed_operation &operation) const;

private:
    unsigned calls_;
    single_call overhead_;
};

} // namespace bench

#endif
