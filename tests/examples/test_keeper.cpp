// The keeper rejects every answer that does not fit its request. The receiver is a script.
#include "keeper.h"
#include "scripted_messages.h"
#include "session_services.h"
#include "tum_nal/nal_session.h"

#include <cstring>
#include <gtest/gtest.h>

namespace
{

using namespace examples::reconciliation;

// The keeper knows one session, with two services.
class scripted_receiver : public testing::Test
{
protected:
    scripted_receiver()
    {
        m_sessions.put(m_session);
    }

    void answer_start(uint32_t result = 0, const char *text = "")
    {
        tum_nal_data_rec_res response{};
        response.field_1 = result;
        strcpy(response.field_2, text);
        m_script.add(message_kind::rec_start_res, response);
    }

    void answer_states(uint32_t request, const std::vector<session_number> &numbers, uint8_t more = 0)
    {
        tum_nal_data_rec_sess_res response{};
        response.field_1 = request;
        response.field_3 = more;
        for (const session_number number : numbers)
            response.field_2[response.field_2_count++] = {0, number, 0};
        m_script.add(message_kind::rec_sess_res, response);
    }

    void answer_delete(uint32_t request, uint32_t result, const char *text)
    {
        tum_nal_data_sess_oper_resp response{};
        response.field_1 = result;
        response.field_2 = request;
        response.field_4 = number_of("stranger");
        strcpy(response.field_6, text);
        m_script.add(message_kind::sess_oper_resp, response);
    }

    tum_nal_data_rec_sess_replay_resp refusal(uint32_t request) const
    {
        tum_nal_data_rec_sess_replay_resp response{};
        response.field_1 = request;
        response.field_2_count = 1;
        response.field_2[0].field_1 = m_number;
        fill_statistics(response.field_2[0].field_3, m_number, m_session);
        strcpy(response.field_4, "busy");
        return response;
    }

    tum_nal_data_rec_sess_replay_resp success(uint32_t request) const
    {
        tum_nal_data_rec_sess_replay_resp response{};
        response.field_1 = request;
        response.field_3_count = 1;
        fill_service_start(response.field_3[0], m_number, m_session);
        return response;
    }

    void answer_replay(const tum_nal_data_rec_sess_replay_resp &response)
    {
        m_script.add(message_kind::rec_sess_replay_resp, response);
    }

    void answer_complete(uint32_t held)
    {
        tum_nal_data_rec_res response{};
        response.field_3 = held;
        m_script.add(message_kind::rec_complete_res, response);
    }

    // Up to the replay of the one session, which is request 3.
    void lack_the_session()
    {
        answer_start();
        answer_states(1, {m_number});
        answer_states(2, {});
    }

    std::string error_of_run()
    {
        message_channel channel = m_script.channel();
        return error_of([&] { m_totals = keeper(m_sessions, channel).reconcile(); });
    }

    const tum_nal_data_session_context m_session = session_with("node-01 1/1", 2);
    const session_number m_number = number_of("node-01 1/1");
    session_set m_sessions;
    scripted_messages m_script;
    run_totals m_totals;
};

} // namespace

TEST_F(scripted_receiver, may_refuse_a_session_twice)
{
    lack_the_session();
    answer_replay(refusal(3));
    answer_replay(refusal(4));
    answer_replay(success(5));
    answer_complete(1);
    EXPECT_EQ(error_of_run(), "");
    EXPECT_EQ(m_totals.missing, 1U);
    EXPECT_EQ(m_totals.refused, 2U);
    EXPECT_EQ(m_totals.replayed, 1U);
    EXPECT_EQ(m_totals.service_starts, 1U);
    EXPECT_EQ(m_totals.services, 2U);
    EXPECT_EQ(m_totals.held, 1U);
}

TEST_F(scripted_receiver, may_not_refuse_a_session_three_times)
{
    lack_the_session();
    for (uint32_t request = 3; request <= 5; ++request)
        answer_replay(refusal(request));
    EXPECT_EQ(error_of_run(), "rec_sess_replay_resp: line id node-01 1/1 was refused 3 times: busy");
}

TEST_F(scripted_receiver, that_cannot_start_says_why)
{
    answer_start(1, "still reading the store");
    EXPECT_EQ(error_of_run(), "rec_start_res: still reading the store");
}

TEST_F(scripted_receiver, that_ends_is_noticed_at_the_first_missing_answer)
{
    lack_the_session();
    EXPECT_EQ(error_of_run(), "rec_sess_replay_resp not received: the other process has closed its stream");
}

TEST_F(scripted_receiver, that_answers_another_kind_of_request_is_refused)
{
    answer_complete(1);
    EXPECT_EQ(error_of_run(), "rec_start_res not received: a rec_complete_res came instead");
}

TEST_F(scripted_receiver, that_answers_another_request_is_refused)
{
    answer_start();
    answer_states(7, {m_number});
    EXPECT_EQ(error_of_run(), "rec_sess_res: answers another request");
}

TEST_F(scripted_receiver, that_lacks_a_session_nobody_asked_about_is_refused)
{
    answer_start();
    answer_states(1, {number_of("stranger")});
    EXPECT_EQ(error_of_run(), "rec_sess_res: speaks of a session that was not asked about");
}

TEST_F(scripted_receiver, gets_no_needed_session_removed)
{
    answer_start();
    answer_states(1, {});
    answer_states(2, {m_number});
    EXPECT_EQ(error_of_run(), "rec_sess_res: wants a session removed that is needed");
}

TEST_F(scripted_receiver, that_has_more_sessions_but_names_none_is_refused)
{
    answer_start();
    answer_states(1, {});
    answer_states(2, {}, 1);
    EXPECT_EQ(error_of_run(), "rec_sess_res: knows of more sessions, but names none");
}

TEST_F(scripted_receiver, that_cannot_remove_a_session_says_why)
{
    answer_start();
    answer_states(1, {});
    answer_states(2, {number_of("stranger")});
    answer_delete(3, 2, "there is no such session");
    EXPECT_EQ(error_of_run(), "sess_oper_resp: there is no such session");
}

TEST_F(scripted_receiver, is_asked_again_until_it_has_no_more_sessions_to_name)
{
    answer_start();
    answer_states(1, {});
    answer_states(2, {number_of("stranger")}, 1);
    answer_delete(3, 0, "stranger");
    answer_states(4, {});
    answer_complete(1);
    EXPECT_EQ(error_of_run(), "");
    EXPECT_EQ(m_totals.gone, 1U);
}

TEST_F(scripted_receiver, that_refuses_with_other_statistics_is_refused)
{
    lack_the_session();
    tum_nal_data_rec_sess_replay_resp response = refusal(3);
    ++response.field_2[0].field_3.services[1].stats.counter[0];
    answer_replay(response);
    EXPECT_EQ(error_of_run(), "rec_sess_replay_resp: refuses another session than the one sent");
}

TEST_F(scripted_receiver, that_starts_other_services_is_refused)
{
    lack_the_session();
    tum_nal_data_rec_sess_replay_resp response = success(3);
    response.field_3[0].field_5[1][0] = 'x';
    answer_replay(response);
    EXPECT_EQ(error_of_run(), "rec_sess_replay_resp: starts other services than those of the session sent");
}

TEST_F(scripted_receiver, that_starts_no_services_is_refused)
{
    lack_the_session();
    tum_nal_data_rec_sess_replay_resp response = success(3);
    response.field_3_count = 0;
    answer_replay(response);
    EXPECT_EQ(error_of_run(), "rec_sess_replay_resp: has 0 service starts instead of 1");
}
