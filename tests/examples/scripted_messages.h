// A scripted side of a reconciliation: its messages are in a pipe before the test starts. The answers of the tested
// side are discarded.
#ifndef TESTS_EXAMPLES_SCRIPTED_MESSAGES_H
#define TESTS_EXAMPLES_SCRIPTED_MESSAGES_H

#include "message_channel.h"
#include "tum_nal/nal_session_context.h"

#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

class scripted_messages
{
public:
    scripted_messages() : m_nowhere(open("/dev/null", O_WRONLY))
    {
        if (pipe(m_ends) != 0 || m_nowhere < 0)
            throw std::runtime_error("cannot make a pipe");
    }

    ~scripted_messages()
    {
        end();
        close(m_ends[0]);
        close(m_nowhere);
    }

    scripted_messages(const scripted_messages &) = delete;
    scripted_messages &operator=(const scripted_messages &) = delete;

    // All messages of a script together must fit into the pipe, some 64 kB.
    template <typename Record>
    void add(examples::reconciliation::message_kind kind, const Record &record)
    {
        examples::reconciliation::message_channel(-1, m_ends[1]).send(kind, record);
    }

    // The stream ends after the last message.
    examples::reconciliation::message_channel channel()
    {
        end();
        return {m_ends[0], m_nowhere};
    }

private:
    void end()
    {
        if (m_ends[1] >= 0)
            close(m_ends[1]);
        m_ends[1] = -1;
    }

    int m_ends[2] = {-1, -1};
    int m_nowhere;
};

inline tum_nal_data_session_context session_with(const std::string &line, uint8_t qos_count = 0)
{
    tum_nal_data_session_context session{};
    session.feature_mask = qos_count != 0 ? TUM_NAL_FEATURE_QOS : 0;
    line.copy(session.session_text, sizeof session.session_text - 1);
    session.qos_count = qos_count;
    for (uint8_t i = 0; i < qos_count; ++i)
        session.qos[i].text_3[0] = static_cast<char>('a' + i);
    return session;
}

// The message of the call's exception; empty if it throws nothing.
template <typename Call>
std::string error_of(Call call)
{
    try {
        call();
    } catch (const std::exception &error) {
        return error.what();
    }
    return "";
}

#endif
