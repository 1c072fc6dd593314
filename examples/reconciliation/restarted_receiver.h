// The side that has restarted: it answers the keeper. What it says when: keeper.h.
#ifndef RECONCILIATION_RESTARTED_RECEIVER_H
#define RECONCILIATION_RESTARTED_RECEIVER_H

#include "message_channel.h"
#include "session_set.h"

#include <set>

namespace examples::reconciliation
{

class restarted_receiver
{
public:
    restarted_receiver(session_set restored, message_channel &channel);

    // Answers until the keeper completes the run. Throws stream_error when the stream breaks before.
    void reconcile();

    // After the run: sends all that it holds, each session decoded and encoded once more.
    void send_held_sessions();

    // Changes one session, so that the comparison has something to find.
    void spoil_one();

private:
    void answer();
    void answer_start();
    void answer_states();
    void name_unknown(tum_nal_data_rec_sess_res &response) const;
    void name_different(const tum_nal_data_rec_sess_req &request, tum_nal_data_rec_sess_res &response);
    void answer_delete();
    void answer_replay();
    bool refuses(uint16_t attempt);
    void refuse(const tum_nal_data_session_context &session, tum_nal_data_rec_sess_replay_resp &response) const;
    void take(const tum_nal_data_session_context &session, tum_nal_data_rec_sess_replay_resp &response);
    void answer_complete();

    session_set m_sessions;
    message_channel &m_channel;
    uint32_t m_sessions_wanted = 0;
    std::set<session_number> m_named; // by the keeper
    size_t m_first_attempts = 0;
    bool m_is_complete = false;
};

} // namespace examples::reconciliation

#endif
