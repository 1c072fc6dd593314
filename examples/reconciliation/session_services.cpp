#include "session_services.h"

#include <cstring>

namespace examples::reconciliation
{

namespace
{

// Every service of a session has a place.
static_assert(int{TUM_NAL_SESSION_QOS_ENTRIES} <= int{TUM_NAL_STATS_SERVICES});
static_assert(int{TUM_NAL_SESSION_QOS_ENTRIES} <= int{TUM_NAL_REC_SERVICE_NAMES});

using service_name = char[sizeof tum_nal_data_qos_element{}.text_3];

void copy_name(service_name &to, const service_name &from)
{
    std::memcpy(to, from, sizeof to);
}

bool same_name(const service_name &a, const service_name &b)
{
    return std::strcmp(a, b) == 0;
}

} // namespace

void fill_statistics(
    tum_nal_data_subscriber_stats &stats, uint64_t session_number, const tum_nal_data_session_context &session)
{
    stats = {};
    stats.value_1 = session_number;
    stats.value_6 = 1; // without it, block_7 stays at home
    stats.block_7.counter[0] = session.session_value_2;
    stats.service_count = session.qos_count;
    for (uint8_t i = 0; i < session.qos_count; ++i) {
        copy_name(stats.services[i].name, session.qos[i].text_3);
        stats.services[i].stats.counter[0] = i + 1U;
    }
}

bool are_statistics_of(
    const tum_nal_data_subscriber_stats &stats, uint64_t session_number, const tum_nal_data_session_context &session)
{
    if (stats.value_1 != session_number || stats.block_7.counter[0] != session.session_value_2 ||
        stats.service_count != session.qos_count)
        return false;
    for (uint8_t i = 0; i < session.qos_count; ++i) {
        if (!same_name(stats.services[i].name, session.qos[i].text_3) || stats.services[i].stats.counter[0] != i + 1U)
            return false;
    }
    return true;
}

void fill_service_start(
    tum_nal_data_service_start &start, uint64_t session_number, const tum_nal_data_session_context &session)
{
    start = {};
    start.field_1 = session_number;
    start.field_2 = session.session_value_1;
    start.field_5_count = session.qos_count;
    for (uint8_t i = 0; i < session.qos_count; ++i)
        copy_name(start.field_5[i], session.qos[i].text_3);
}

bool is_service_start_of(
    const tum_nal_data_service_start &start, uint64_t session_number, const tum_nal_data_session_context &session)
{
    if (start.field_1 != session_number || start.field_5_count != session.qos_count)
        return false;
    for (uint8_t i = 0; i < session.qos_count; ++i) {
        if (!same_name(start.field_5[i], session.qos[i].text_3))
            return false;
    }
    return true;
}

} // namespace examples::reconciliation
