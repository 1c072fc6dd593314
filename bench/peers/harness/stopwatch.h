// Times an operation: many passes by the thread's own processor time (others on the machine slow it down, but are not
// counted), or single ones with cold caches by the clock.
#ifndef MAVA_TUM_BENCH_STOPWATCH_H
#define MAVA_TUM_BENCH_STOPWATCH_H

#include "peers/harness/suite.h"

namespace bench
{

struct sampling {
    unsigned samples;          // the result is their median
    double sample_nanoseconds; // a sample takes as many passes as last this long
};

// Nanoseconds per message.
double time_operation(timed_operation &operation, size_t message_count, const sampling &how);

struct single_call {
    double warm; // nanoseconds of one pass right after many others
    double cold; // of one pass after other work; see other_work.h
};

// Times calls one by one, by the clock: the thread's own time is too coarse for that.
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
