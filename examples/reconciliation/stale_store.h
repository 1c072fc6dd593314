// The receiver's restart, simulated.
#ifndef RECONCILIATION_STALE_STORE_H
#define RECONCILIATION_STALE_STORE_H

#include "session_set.h"
#include "subscriber.h"

namespace examples::reconciliation
{

// All sessions as they should be.
session_set sessions_of(const std::vector<subscriber> &subscribers);

// What a receiver finds in its store after a restart, the store having been written some time before: some sessions are
// missing, some are as they were then, and some are of subscribers who have gone since.
session_set sessions_in_stale_store(const std::vector<subscriber> &subscribers);

} // namespace examples::reconciliation

#endif
