// Times an operation by the thread's own processor time: others on the machine slow it down, but are not counted.
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

} // namespace bench

#endif
