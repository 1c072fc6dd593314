// What a session takes of the session as a whole.
#pragma once

#include "inspect/limits/limits_routes.h"
#include "inspect/limits/limits_session_access.h"
#include "inspect/limits/limits_session_features.h"
#include "messages/session_messages_schema.h"

namespace mava_tum_inspect
{

struct session_context_limits {
    using wire = mava_tum_session_context;
    using own = tum_nal_data_session_context;
    using rows = limit_rows<takes<&wire::field_1, &own::session_value_1>, takes<&wire::field_2, &own::session_value_2>,
        takes<&wire::field_3, &own::session_value_3>, takes<&wire::field_4, &own::session_value_4>,
        takes<&wire::feature_mask, &own::feature_mask>, takes<&wire::field_7, &own::session_value_7>,
        part<&wire::subscriber_v4, subscriber_v4_limits>, part<&wire::subscriber_v6, subscriber_v6_limits>,
        part<&wire::session_data, session_data_limits>, part<&wire::acl, acl_limits>,
        part<&wire::httpr, redirect_limits>, part<&wire::li, intercept_limits>,
        part<&wire::urpf_1, urpf_limits<&own::urpf_1_value_1, &own::urpf_1_value_2>>,
        part<&wire::urpf_2, urpf_limits<&own::urpf_2_value_1, &own::urpf_2_value_2>>,
        part<&wire::icmp_1, single_value_limits<&mava_tum_subscriber_icmp::field_1, &own::icmp_1_value>>,
        part<&wire::icmp_2, single_value_limits<&mava_tum_subscriber_icmp::field_1, &own::icmp_2_value>>,
        part<&wire::mtu_1, single_value_limits<&mava_tum_subscriber_mtu::field_1, &own::mtu_1_value>>,
        part<&wire::mtu_2, single_value_limits<&mava_tum_subscriber_mtu::field_1, &own::mtu_2_value>>,
        part<&wire::mtu_3, single_value_limits<&mava_tum_subscriber_mtu::field_1, &own::mtu_3_value>>,
        part<&wire::acct, accounting_limits>, list<&wire::qos, &own::qos, &own::qos_count, qos_limits>,
        list<&wire::route_ipv4, &own::ipv4_routes, &own::ipv4_route_count, ipv4_route_limits>,
        list<&wire::route_ipv6, &own::ipv6_routes, &own::ipv6_route_count, ipv6_route_limits>>;
};

} // namespace mava_tum_inspect
