// The effect of the keeper's messages on the restarted receiver. The keeper is a script;
// test_reconciliation_program.cpp tests the answers with a real keeper.
#include "restarted_receiver.h"
#include "scripted_messages.h"

#include <gtest/gtest.h>

namespace
{

using namespace examples::reconciliation;

class scripted_keeper : public testing::Test
{
protected:
    void start(uint32_t sessions)
    {
        tum_nal_data_rec_start_req request{};
        request.field_1 = 5; // a number that does not arrive
        request.field_3 = sessions;
        m_script.add(message_kind::rec_start_req, request);
    }

    void name(const std::vector<session_number> &numbers)
    {
        tum_nal_data_rec_sess_req request{};
        for (const session_number number : numbers)
            request.field_3[request.field_3_count++] = {1, number, 1};
        m_script.add(message_kind::rec_sess_req, request);
    }

    void replay(const tum_nal_data_session_context &session, uint32_t count = 1)
    {
        tum_nal_data_rec_sess_replay_req_encode request{};
        request.field_2 = 1;
        request.field_4_count = count;
        request.field_4[0] = session;
        m_script.add(message_kind::rec_sess_replay_req, request);
    }

    void complete()
    {
        m_script.add(message_kind::rec_complete_req, tum_nal_data_rec_complete_req{});
    }

    std::string error_of_run()
    {
        message_channel channel = m_script.channel();
        return error_of([&] { restarted_receiver({}, channel).reconcile(); });
    }

    scripted_messages m_script;
};

} // namespace

TEST_F(scripted_keeper, may_complete_a_run_without_sessions)
{
    start(0);
    name({});
    complete();
    EXPECT_EQ(error_of_run(), "");
}

TEST_F(scripted_keeper, that_asks_for_unknown_sessions_before_it_named_its_own_is_refused)
{
    start(2);
    name({1});
    name({});
    EXPECT_EQ(error_of_run(), "the keeper named 1 of its 2 sessions only");
}

TEST_F(scripted_keeper, that_replays_no_session_is_refused)
{
    start(0);
    replay({}, 0);
    EXPECT_EQ(error_of_run(), "a rec_sess_replay_req without a session came");
}

TEST_F(scripted_keeper, that_ends_before_the_run_is_complete_is_an_error)
{
    start(1);
    replay(session_with("node-01 1/1"));
    EXPECT_EQ(error_of_run(), "the keeper has closed its stream before it completed the run");
}

TEST_F(scripted_keeper, that_sends_an_answer_is_refused)
{
    m_script.add(message_kind::rec_start_res, tum_nal_data_rec_res{});
    EXPECT_EQ(error_of_run(), "a rec_start_res came, which a keeper does not send");
}
