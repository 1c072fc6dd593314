// The side that knows what sessions there are. It leads the run:
//
//   keeper                                                     restarted receiver
//   rec_start_req: so many sessions there are              ->
//                                                          <-  rec_start_res: so many were in my store
//   rec_sess_req: up to 30 sessions and their fingerprints ->
//                                                          <-  rec_sess_res: those that I lack or hold otherwise
//   ... until all sessions have been named, then:
//   rec_sess_req: none                                     ->
//                                                          <-  rec_sess_res: up to 30 that I hold and you did not name
//   session_delete: one of these                           ->
//                                                          <-  sess_oper_resp: gone
//   ... until the receiver has none of these left
//   rec_sess_replay_req: one whole session                 ->
//                                                          <-  rec_sess_replay_resp: its services have started,
//                                                              or: not now, and its statistics
//   ... until each has been taken; one that was refused comes again behind the others
//   rec_complete_req                                       ->
//                                                          <-  rec_complete_res: so many I hold now
#ifndef RECONCILIATION_KEEPER_H
#define RECONCILIATION_KEEPER_H

#include "message_channel.h"
#include "session_set.h"

#include <deque>

namespace examples::reconciliation
{

// What the keeper learned from the answers.
struct run_totals {
    size_t restored = 0; // in the receiver's store after its restart
    size_t missing = 0, outdated = 0, gone = 0;
    size_t replayed = 0, refused = 0;
    size_t service_starts = 0, services = 0;
    size_t held = 0; // at the end, as the receiver says
};

class keeper
{
public:
    keeper(const session_set &sessions, message_channel &channel);

    // The whole run. Throws stream_error when it cannot be ended: the stream broke or an answer makes no sense.
    run_totals reconcile();

    // After the run, the receiver sends all that it holds.
    session_set receive_held_sessions();

private:
    // A session on its way to the receiver.
    struct replay {
        session_number number = 0;
        bool is_held = false; // in an outdated form
        uint16_t attempt = 1;
    };

    void start();
    void compare_states();
    void send_states(tum_nal_data_rec_sess_req &request);
    tum_nal_data_rec_sess_res ask_for_states(tum_nal_data_rec_sess_req &request);
    void note_answer(const tum_nal_data_rec_sess_req &request, const tum_nal_data_session_state &state);
    void remove_unknown();
    void remove(session_number number);
    void replay_all();
    void replay_one(const replay &what);
    tum_nal_data_rec_sess_replay_req_encode replay_request(const replay &what);
    void note_success(const replay &what, const tum_nal_data_session_context &session,
        const tum_nal_data_rec_sess_replay_resp &response);
    void note_refusal(const replay &what, const tum_nal_data_session_context &session,
        const tum_nal_data_rec_sess_replay_resp &response);
    void complete();

    const session_set &m_sessions;
    message_channel &m_channel;
    std::deque<replay> m_to_replay;
    uint32_t m_requests = 0; // numbers what wants an answer
    run_totals m_totals;
};

} // namespace examples::reconciliation

#endif
