// The services of a session as the messages carry them: in the statistics of a session that could not be set up, and in
// the list of services started for one that was. Each QoS entry of the session is a service, named by its `text_3`.
#ifndef RECONCILIATION_SESSION_SERVICES_H
#define RECONCILIATION_SESSION_SERVICES_H

#include "tum_nal/nal_reconciliation.h"

namespace examples::reconciliation
{

// The statistics are simulated: the session has counted up to its `session_value_2`, its n-th service up to n.
void fill_statistics(
    tum_nal_data_subscriber_stats &stats, uint64_t session_number, const tum_nal_data_session_context &session);

// Whether they are what fill_statistics() says of the session.
bool are_statistics_of(
    const tum_nal_data_subscriber_stats &stats, uint64_t session_number, const tum_nal_data_session_context &session);

void fill_service_start(
    tum_nal_data_service_start &start, uint64_t session_number, const tum_nal_data_session_context &session);

// Whether it names exactly the services of the session.
bool is_service_start_of(
    const tum_nal_data_service_start &start, uint64_t session_number, const tum_nal_data_session_context &session);

} // namespace examples::reconciliation

#endif
