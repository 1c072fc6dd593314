// What the receiving end must find in a session's record, judged by the file alone.
//
// Nothing here looks at the record that was sent or calls what filled it: each member of the record is compared with
// the value that the file gives it, under the condition that the adapter's header states for sending it. Where the
// condition does not hold, the member must arrive as zero. By contract these do not arrive as they were sent:
//   - values of a feature whose bit is off, and values under a condition (`session_identifier` unless the kind is 1 or
//     4, `session_value_9` unless it is 4, L2TP 16 without 15, L2TP 18 without 17, accounting values without their
//     flag bits): zero
//   - `field_8` of an IPv4 route: it travels in the place of `field_7`, so when it is not zero it arrives in
//     `field_7`, and `field_8` is zero. IPv6 routes carry both.
//   - `reserved_...` members and slots that no entry uses: zero
#ifndef SESSION_SETUP_SESSION_COMPARE_H
#define SESSION_SETUP_SESSION_COMPARE_H

#include "member_check.h"
#include "tum_nal/nal_session_context.h"

namespace examples::session_setup
{

// The members of `received` that are not what the file says of `who`; none if the session arrived.
std::vector<mismatch> compare_session(const subscriber &who, const tum_nal_data_session_context &received);

} // namespace examples::session_setup

#endif
