#include "stale_store.h"

#include "session_record.h"

#include <cstdio>

namespace examples::reconciliation
{

namespace
{

// Of so many sessions in the file, the last one is missing, is outdated, or has a neighbour who has gone.
constexpr size_t missing_one_in = 5, outdated_one_in = 7, gone_one_in = 11;

bool is_last_of(size_t group, size_t i)
{
    return i % group == group - 1;
}

// As it may have been: another number, another label, and no routes yet.
void make_outdated(tum_nal_data_session_context &session)
{
    session.session_value_3 ^= 1;
    std::snprintf(session.session_label, sizeof session.session_label, "as before the restart");
    session.feature_mask &= ~uint32_t{TUM_NAL_FEATURE_IPV4_ROUTES | TUM_NAL_FEATURE_IPV6_ROUTES};
}

void make_another_subscriber(tum_nal_data_session_context &session, size_t i)
{
    std::snprintf(session.session_text, sizeof session.session_text, "gone %zu", i + 1);
    std::snprintf(session.session_name, sizeof session.session_name, "gone%zu@example.com", i + 1);
}

} // namespace

session_set sessions_of(const std::vector<subscriber> &subscribers)
{
    session_set sessions;
    tum_nal_data_session_context session;
    for (const subscriber &who : subscribers) {
        fill_session_record(session, who);
        sessions.put(session);
    }
    return sessions;
}

session_set sessions_in_stale_store(const std::vector<subscriber> &subscribers)
{
    session_set sessions;
    tum_nal_data_session_context session;
    for (size_t i = 0; i < subscribers.size(); ++i) {
        fill_session_record(session, subscribers[i]);
        if (is_last_of(outdated_one_in, i))
            make_outdated(session);
        if (!is_last_of(missing_one_in, i))
            sessions.put(session);
        if (is_last_of(gone_one_in, i)) {
            make_another_subscriber(session, i);
            sessions.put(session);
        }
    }
    return sessions;
}

} // namespace examples::reconciliation
