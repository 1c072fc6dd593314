#include "restarted_receiver.h"

#include "session_services.h"
#include "text_member.h"
#include "tum_nal/nal_session.h"

#include <utility>

namespace examples::reconciliation
{

namespace
{

// A receiver that has just restarted is busy: of so many sessions that come for the first time, it refuses one.
constexpr size_t refused_one_in = 10;
constexpr uint32_t cause_busy = 1;
constexpr uint32_t result_done = 0, result_again = 1, result_wrong = 2;

} // namespace

restarted_receiver::restarted_receiver(session_set restored, message_channel &channel)
    : m_sessions(std::move(restored)), m_channel(channel)
{
}

void restarted_receiver::reconcile()
{
    while (!m_is_complete) {
        if (!m_channel.next())
            throw stream_error("the keeper has closed its stream before it completed the run");
        answer();
    }
}

void restarted_receiver::answer()
{
    switch (m_channel.kind()) {
    case message_kind::rec_start_req:
        return answer_start();
    case message_kind::rec_sess_req:
        return answer_states();
    case message_kind::session_delete:
        return answer_delete();
    case message_kind::rec_sess_replay_req:
        return answer_replay();
    case message_kind::rec_complete_req:
        return answer_complete();
    default:
        throw stream_error(std::string("a ") + name_of(m_channel.kind()) + " came, which a keeper does not send");
    }
}

void restarted_receiver::answer_start()
{
    tum_nal_data_rec_start_req request;
    m_channel.read(request);
    m_sessions_wanted = request.field_1; // what was sent as `field_3`
    tum_nal_data_rec_res response{};
    response.field_1 = result_done;
    set_text(response.field_2, "restored from the store");
    response.field_3 = static_cast<uint32_t>(m_sessions.size());
    m_channel.send(message_kind::rec_start_res, response);
}

void restarted_receiver::answer_states()
{
    tum_nal_data_rec_sess_req request;
    m_channel.read(request);
    tum_nal_data_rec_sess_res response{};
    response.field_1 = request.field_1;
    response.field_4 = static_cast<uint32_t>(m_sessions.size());
    if (request.field_3_count == 0)
        name_unknown(response);
    else
        name_different(request, response);
    m_channel.send(message_kind::rec_sess_res, response);
}

// An answer has as much room as a request: should all sessions of one differ, they fit.
void restarted_receiver::name_different(const tum_nal_data_rec_sess_req &request, tum_nal_data_rec_sess_res &response)
{
    for (uint32_t i = 0; i < request.field_3_count; ++i) {
        const tum_nal_data_session_state &wanted = request.field_3[i];
        m_named.insert(wanted.field_2);
        const tum_nal_data_session_state held = m_sessions.state(wanted.field_2);
        if (!same_state(wanted, held))
            response.field_2[response.field_2_count++] = held;
    }
}

// `field_3` says that there are more than the answer has room for.
void restarted_receiver::name_unknown(tum_nal_data_rec_sess_res &response) const
{
    if (m_named.size() != m_sessions_wanted)
        throw stream_error("the keeper named " + std::to_string(m_named.size()) + " of its " +
                           std::to_string(m_sessions_wanted) + " sessions only");
    for (const auto &[number, entry] : m_sessions.entries()) {
        if (m_named.contains(number))
            continue;
        if (response.field_2_count == TUM_NAL_REC_SESSION_STATES) {
            response.field_3 = 1;
            return;
        }
        response.field_2[response.field_2_count++] = m_sessions.state(number);
    }
}

void restarted_receiver::answer_delete()
{
    tum_nal_data_session_delete request;
    m_channel.read(request);
    tum_nal_data_sess_oper_resp response{};
    response.field_1 = result_wrong;
    response.field_2 = request.field_2;
    response.field_4 = request.field_4;
    set_text(response.field_6, "there is no such session");
    if (m_sessions.has(request.field_4)) {
        const tum_nal_data_session_context session = m_sessions.session(request.field_4);
        response.field_1 = result_done;
        set_text(response.field_6, session.session_text);
        fill_statistics(response.field_9, request.field_4, session); // its last ones
        m_sessions.remove(request.field_4);
    }
    m_channel.send(message_kind::sess_oper_resp, response);
}

// The record is of another type than the one that the keeper filled: the members stand in another order.
void restarted_receiver::answer_replay()
{
    tum_nal_data_rec_sess_replay_req_decode request;
    m_channel.read(request);
    if (request.field_4_count != 1)
        throw stream_error("a rec_sess_replay_req without a session came");
    tum_nal_data_rec_sess_replay_resp response{};
    response.field_1 = request.field_1;
    if (refuses(request.field_2))
        refuse(request.field_4[0], response);
    else
        take(request.field_4[0], response);
    m_channel.send(message_kind::rec_sess_replay_resp, response);
}

void restarted_receiver::refuse(
    const tum_nal_data_session_context &session, tum_nal_data_rec_sess_replay_resp &response) const
{
    const session_number number = number_of(session.session_text);
    response.field_2_count = 1;
    tum_nal_data_replay_failure &failure = response.field_2[0];
    failure.field_1 = number;
    failure.field_2 = cause_busy;
    fill_statistics(failure.field_3, number, session);
    set_text(response.field_4, "busy, send it again");
    response.field_5 = result_again;
}

void restarted_receiver::take(const tum_nal_data_session_context &session, tum_nal_data_rec_sess_replay_resp &response)
{
    m_sessions.put(session);
    response.field_5 = result_done;
    if (session.qos_count == 0)
        return;
    response.field_3_count = 1;
    fill_service_start(response.field_3[0], number_of(session.session_text), session);
}

bool restarted_receiver::refuses(uint16_t attempt)
{
    return attempt == 1 && ++m_first_attempts % refused_one_in == 0;
}

void restarted_receiver::answer_complete()
{
    tum_nal_data_rec_complete_req request;
    m_channel.read(request);
    tum_nal_data_rec_res response{};
    response.field_1 = request.field_2 == m_sessions.size() ? result_done : result_wrong;
    set_text(response.field_2, response.field_1 == result_done ? "complete" : "the receiver holds another number");
    response.field_3 = static_cast<uint32_t>(m_sessions.size());
    m_channel.send(message_kind::rec_complete_res, response);
    m_is_complete = true;
}

void restarted_receiver::send_held_sessions()
{
    for (const auto &[number, entry] : m_sessions.entries())
        m_channel.send(message_kind::held_session, m_sessions.session(number));
}

void restarted_receiver::spoil_one()
{
    if (m_sessions.size() == 0)
        return;
    tum_nal_data_session_context session = m_sessions.session(m_sessions.entries().begin()->first);
    ++session.session_value_3;
    m_sessions.put(session);
}

} // namespace examples::reconciliation
