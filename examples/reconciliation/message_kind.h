// Which message a frame carries. The messages themselves do not say: the bytes of a rec_start_res could as well be
// those of a rec_complete_res. So the first byte of each frame names the kind, and the message follows it.
#ifndef RECONCILIATION_MESSAGE_KIND_H
#define RECONCILIATION_MESSAGE_KIND_H

#include <cstddef>
#include <cstdint>

namespace examples::reconciliation
{

// In the order in which a run has them. The values are those of the byte on the pipe.
enum class message_kind : uint8_t {
    rec_start_req = 1,
    rec_start_res,
    rec_sess_req,
    rec_sess_res,
    session_delete,
    sess_oper_resp,
    rec_sess_replay_req,
    rec_sess_replay_resp,
    rec_complete_req,
    rec_complete_res,
    held_session, // a session_context after the run: what the receiver holds, for the comparison
};

inline constexpr size_t message_kinds = static_cast<size_t>(message_kind::held_session) + 1;

// "unknown" for a byte that is no kind.
const char *name_of(message_kind kind);

} // namespace examples::reconciliation

#endif
