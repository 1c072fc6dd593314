#include "message_kind.h"

namespace examples::reconciliation
{

const char *name_of(message_kind kind)
{
    switch (kind) {
    case message_kind::rec_start_req:
        return "rec_start_req";
    case message_kind::rec_start_res:
        return "rec_start_res";
    case message_kind::rec_sess_req:
        return "rec_sess_req";
    case message_kind::rec_sess_res:
        return "rec_sess_res";
    case message_kind::session_delete:
        return "session_delete";
    case message_kind::sess_oper_resp:
        return "sess_oper_resp";
    case message_kind::rec_sess_replay_req:
        return "rec_sess_replay_req";
    case message_kind::rec_sess_replay_resp:
        return "rec_sess_replay_resp";
    case message_kind::rec_complete_req:
        return "rec_complete_req";
    case message_kind::rec_complete_res:
        return "rec_complete_res";
    case message_kind::held_session:
        return "session_context";
    }
    return "unknown";
}

} // namespace examples::reconciliation
