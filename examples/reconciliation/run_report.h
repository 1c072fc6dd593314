// What a run took, in words.
#ifndef RECONCILIATION_RUN_REPORT_H
#define RECONCILIATION_RUN_REPORT_H

#include "keeper.h"

namespace examples::reconciliation
{

// What the keeper found and did for the receiver.
std::string describe(const run_totals &totals, const session_set &sessions);

// The messages of each kind. What came after the run, for the comparison, has a line of its own below the sum.
std::string describe(const message_channel &channel);

} // namespace examples::reconciliation

#endif
