// What must hold before anything is timed: both sides produce the same bytes from the same values, and get the same
// values back from them. A bench of two programs that do different work measures nothing.
#ifndef MAVA_TUM_BENCH_AGREEMENT_H
#define MAVA_TUM_BENCH_AGREEMENT_H

#include "workload.h"

#include <string>

namespace bench
{

// Returns an empty string, or the first disagreement, told for a person.
std::string first_disagreement(const workload<session_kind> &work);
std::string first_disagreement(const workload<route_kind> &work);

} // namespace bench

#endif
