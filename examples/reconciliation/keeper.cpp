#include "keeper.h"

#include "session_services.h"
#include "text_member.h"
#include "tum_nal/nal_session.h"

#include <algorithm>

namespace examples::reconciliation
{

namespace
{

constexpr uint32_t run_number = 1;
constexpr uint16_t attempts_limit = 3;
constexpr uint32_t delete_session = 1; // what session_delete asks for; numbers above 5 would not be sent

void require(bool condition, message_kind kind, const std::string &problem)
{
    if (!condition)
        throw stream_error(std::string(name_of(kind)) + ": " + problem);
}

bool asks_about(const tum_nal_data_rec_sess_req &request, session_number number)
{
    return std::ranges::any_of(std::span(request.field_3, request.field_3_count),
        [number](const tum_nal_data_session_state &state) { return state.field_2 == number; });
}

} // namespace

keeper::keeper(const session_set &sessions, message_channel &channel) : m_sessions(sessions), m_channel(channel) {}

run_totals keeper::reconcile()
{
    start();
    compare_states();
    remove_unknown();
    replay_all();
    complete();
    return m_totals;
}

// The receiver's adapter delivers of the numbers only the third one. So it is the third that says what the receiver
// must know; the others are there for who reads the bytes.
void keeper::start()
{
    tum_nal_data_rec_start_req request{};
    request.field_1 = run_number;
    request.field_2 = TUM_NAL_REC_SESSION_STATES;
    request.field_3 = static_cast<uint32_t>(m_sessions.size());
    set_text(request.field_4, "the receiver has restarted");
    m_channel.send(message_kind::rec_start_req, request);
    tum_nal_data_rec_res response;
    m_channel.receive(message_kind::rec_start_res, response);
    require(response.field_1 == 0, message_kind::rec_start_res, response.field_2);
    m_totals.restored = response.field_3;
}

// Names every session to the receiver, as many at a time as a request has room for. The texts are the first and the
// last line id. `field_6` of the record is left alone: it is received, never sent.
void keeper::compare_states()
{
    tum_nal_data_rec_sess_req request{};
    for (const auto &[number, entry] : m_sessions.entries()) {
        if (request.field_3_count == 0)
            set_text(request.field_4, entry.line);
        set_text(request.field_5, entry.line);
        request.field_3[request.field_3_count++] = m_sessions.state(number);
        if (request.field_3_count == TUM_NAL_REC_SESSION_STATES) {
            send_states(request);
            request = {};
        }
    }
    if (request.field_3_count != 0)
        send_states(request);
}

void keeper::send_states(tum_nal_data_rec_sess_req &request)
{
    const tum_nal_data_rec_sess_res response = ask_for_states(request);
    for (uint32_t i = 0; i < response.field_2_count; ++i)
        note_answer(request, response.field_2[i]);
}

tum_nal_data_rec_sess_res keeper::ask_for_states(tum_nal_data_rec_sess_req &request)
{
    request.field_1 = ++m_requests;
    m_channel.send(message_kind::rec_sess_req, request);
    tum_nal_data_rec_sess_res response;
    m_channel.receive(message_kind::rec_sess_res, response);
    require(response.field_1 == m_requests, message_kind::rec_sess_res, "answers another request");
    return response;
}

void keeper::note_answer(const tum_nal_data_rec_sess_req &request, const tum_nal_data_session_state &state)
{
    require(
        asks_about(request, state.field_2), message_kind::rec_sess_res, "speaks of a session that was not asked about");
    const bool is_held = !holds_none(state);
    ++(is_held ? m_totals.outdated : m_totals.missing);
    m_to_replay.push_back({state.field_2, is_held});
}

// All sessions have been named. Now a request without any asks what else the receiver holds.
void keeper::remove_unknown()
{
    bool are_there_more = true;
    while (are_there_more) {
        tum_nal_data_rec_sess_req request{};
        const tum_nal_data_rec_sess_res response = ask_for_states(request);
        for (uint32_t i = 0; i < response.field_2_count; ++i)
            remove(response.field_2[i].field_2);
        are_there_more = response.field_3 != 0;
        require(!are_there_more || response.field_2_count != 0, message_kind::rec_sess_res,
            "knows of more sessions, but names none");
    }
}

void keeper::remove(session_number number)
{
    require(!m_sessions.has(number), message_kind::rec_sess_res, "wants a session removed that is needed");
    tum_nal_data_session_delete request{};
    request.field_1 = delete_session;
    request.field_2 = ++m_requests;
    request.field_4 = number;
    m_channel.send(message_kind::session_delete, request);
    tum_nal_data_sess_oper_resp response;
    m_channel.receive(message_kind::sess_oper_resp, response);
    require(response.field_2 == m_requests && response.field_4 == number, message_kind::sess_oper_resp,
        "answers another request");
    require(response.field_1 == 0, message_kind::sess_oper_resp, response.field_6);
    ++m_totals.gone;
}

void keeper::replay_all()
{
    while (!m_to_replay.empty()) {
        const replay next = m_to_replay.front();
        m_to_replay.pop_front();
        replay_one(next);
    }
}

void keeper::replay_one(const replay &what)
{
    const tum_nal_data_rec_sess_replay_req_encode request = replay_request(what);
    m_channel.send(message_kind::rec_sess_replay_req, request);
    tum_nal_data_rec_sess_replay_resp response;
    m_channel.receive(message_kind::rec_sess_replay_resp, response);
    require(response.field_1 == m_requests, message_kind::rec_sess_replay_resp, "answers another request");
    if (response.field_2_count != 0)
        note_refusal(what, request.field_4[0], response);
    else
        note_success(what, request.field_4[0], response);
}

// `field_4` is an array of one: each message carries one session.
tum_nal_data_rec_sess_replay_req_encode keeper::replay_request(const replay &what)
{
    tum_nal_data_rec_sess_replay_req_encode request{};
    request.field_1 = ++m_requests;
    request.field_2 = what.attempt;
    request.field_3 = static_cast<uint32_t>(m_to_replay.size()); // still to come
    request.field_4_count = 1;
    request.field_4[0] = m_sessions.session(what.number);
    request.field_5 = what.is_held ? 1 : 0;
    set_text(request.field_6, what.is_held ? "replace" : "add");
    return request;
}

// The services of a session without any are not started.
void keeper::note_success(
    const replay &what, const tum_nal_data_session_context &session, const tum_nal_data_rec_sess_replay_resp &response)
{
    const uint32_t starts_wanted = session.qos_count != 0 ? 1 : 0;
    require(response.field_3_count == starts_wanted, message_kind::rec_sess_replay_resp,
        "has " + std::to_string(response.field_3_count) + " service starts instead of " +
            std::to_string(starts_wanted));
    ++m_totals.replayed;
    if (starts_wanted == 0)
        return;
    require(is_service_start_of(response.field_3[0], what.number, session), message_kind::rec_sess_replay_resp,
        "starts other services than those of the session sent");
    ++m_totals.service_starts;
    m_totals.services += response.field_3[0].field_5_count;
}

void keeper::note_refusal(
    const replay &what, const tum_nal_data_session_context &session, const tum_nal_data_rec_sess_replay_resp &response)
{
    const tum_nal_data_replay_failure &failure = response.field_2[0];
    require(failure.field_1 == what.number && are_statistics_of(failure.field_3, what.number, session),
        message_kind::rec_sess_replay_resp, "refuses another session than the one sent");
    require(what.attempt < attempts_limit, message_kind::rec_sess_replay_resp,
        "line id " + m_sessions.at(what.number).line + " was refused " + std::to_string(what.attempt) +
            " times: " + response.field_4);
    ++m_totals.refused;
    m_to_replay.push_back({what.number, what.is_held, static_cast<uint16_t>(what.attempt + 1)});
}

void keeper::complete()
{
    tum_nal_data_rec_complete_req request{};
    request.field_1 = run_number;
    request.field_2 = static_cast<uint32_t>(m_sessions.size());
    set_text(request.field_4, "every session was named and replayed");
    m_channel.send(message_kind::rec_complete_req, request);
    tum_nal_data_rec_res response;
    m_channel.receive(message_kind::rec_complete_res, response);
    require(response.field_1 == 0, message_kind::rec_complete_res, response.field_2);
    m_totals.held = response.field_3;
}

session_set keeper::receive_held_sessions()
{
    session_set held;
    for (size_t i = 0; i < m_totals.held; ++i) {
        m_channel.expect(message_kind::held_session);
        held.put_wire(m_channel.message());
    }
    require(!m_channel.next(), message_kind::held_session, "more sessions came than the receiver claims to hold");
    return held;
}

} // namespace examples::reconciliation
