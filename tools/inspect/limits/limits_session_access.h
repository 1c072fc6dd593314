// What a session takes of the records that say how its subscriber is reached.
#pragma once

#include "inspect/limits/limit_rows.h"
#include "messages/subscriber_records_schema.h"
#include "tum_nal/nal_session_context.h"

namespace mava_tum_inspect
{

struct subscriber_v4_limits {
    using wire = mava_tum_subscriber_v4;
    using own = tum_nal_data_session_context;
    using rows = limit_rows<takes<&wire::field_1, &own::ipv4_value_1>, takes<&wire::ipv4_address, &own::ipv4_address>>;
};

struct subscriber_v6_limits {
    using wire = mava_tum_subscriber_v6;
    using own = tum_nal_data_session_context;
    using rows = limit_rows<takes<&wire::field_1, &own::ipv6_value_1>, takes<&wire::field_2, &own::ipv6_part_2>,
        takes<&wire::field_3, &own::ipv6_part_3>, takes<&wire::field_4, &own::ipv6_part_4>,
        takes<&wire::field_6, &own::ipv6_part_6>, takes_with<&wire::field_5, &own::ipv6_value_5, &wire::field_3>,
        takes_with<&wire::field_7, &own::ipv6_value_7, &wire::field_6>>;
};

struct ppp_limits {
    using wire = mava_tum_ppp_data;
    using own = tum_nal_data_session_context;
    using rows = limit_rows<takes<&wire::field_1, &own::ppp_value_1>, takes<&wire::field_2, &own::ppp_value_2>,
        takes<&wire::field_3, &own::ppp_value_3>, takes<&wire::field_4, &own::ppp_value_4>,
        takes<&wire::field_5, &own::ppp_identifier>, takes<&wire::field_6, &own::ppp_value_6>>;
};

struct l2tp_limits {
    using wire = mava_tum_l2tp_data;
    using own = tum_nal_data_session_context;
    using rows = limit_rows<takes<&wire::field_1, &own::l2tp_kind>, takes<&wire::field_2, &own::l2tp_ipv4_2>,
        takes<&wire::field_3, &own::l2tp_ipv4_3>, takes<&wire::field_4, &own::l2tp_ipv6_4>,
        takes<&wire::field_5, &own::l2tp_ipv6_5>, takes<&wire::field_6, &own::l2tp_value_6>,
        takes<&wire::field_7, &own::l2tp_value_7>, takes<&wire::field_8, &own::l2tp_value_8>,
        takes<&wire::field_9, &own::l2tp_value_9>, takes<&wire::field_10, &own::l2tp_value_10>,
        takes<&wire::field_11, &own::l2tp_value_11>, takes<&wire::field_12, &own::l2tp_value_12>,
        takes<&wire::field_13, &own::l2tp_value_13>, takes<&wire::field_14, &own::l2tp_value_14>,
        takes<&wire::field_15, &own::l2tp_value_15>, takes<&wire::field_16, &own::l2tp_value_16>,
        takes<&wire::field_17, &own::l2tp_value_17>, takes<&wire::field_18, &own::l2tp_value_18>,
        takes<&wire::field_19, &own::l2tp_name>>;
};

struct vlan_limits {
    using wire = mava_tum_vlan_info;
    using own = tum_nal_data_session_context;
    using rows = limit_rows<takes<&wire::field_1, &own::vlan_value_1>, takes<&wire::field_2, &own::vlan_value_2>>;
};

struct session_data_limits {
    using wire = mava_tum_session_data;
    using own = tum_nal_data_session_context;
    using rows =
        limit_rows<takes<&wire::field_1, &own::session_data_value_1>, takes<&wire::field_2, &own::session_data_value_2>,
            part<&wire::ppp, ppp_limits>, part<&wire::l2tp, l2tp_limits>, takes<&wire::field_5, &own::session_name>,
            takes<&wire::field_6, &own::session_identifier>, takes<&wire::field_7, &own::session_label>,
            takes<&wire::field_8, &own::session_text>, takes<&wire::field_9, &own::session_value_9>,
            part<&wire::vlan, vlan_limits>, takes<&wire::field_11, &own::session_data_value_11>>;
};

} // namespace mava_tum_inspect
