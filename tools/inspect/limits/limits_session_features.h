// What a session takes of the records of its features.
#pragma once

#include "inspect/limits/limit_rows.h"
#include "messages/feature_records_schema.h"
#include "tum_nal/nal_session_context.h"

namespace mava_tum_inspect
{

// Two records of the same kind arrive in members of their own, and so do the records of a single value.
template <auto Value1, auto Value2>
struct urpf_limits {
    using wire = mava_tum_subscriber_urpf;
    using rows = limit_rows<takes<&wire::field_1, Value1>, takes<&wire::field_2, Value2>>;
};

template <auto Field, auto Member>
struct single_value_limits {
    using rows = limit_rows<takes<Field, Member>>;
};

struct qos_limits {
    using wire = mava_tum_subscriber_qos;
    using own = tum_nal_data_qos_element;
    using rows = limit_rows<takes<&wire::field_1, &own::value_1>, takes<&wire::field_2, &own::value_2>,
        takes<&wire::field_3, &own::text_3>, takes<&wire::field_4, &own::text_4>, takes<&wire::field_5, &own::text_5>,
        takes<&wire::field_6, &own::value_6>, takes<&wire::field_7, &own::value_7>,
        takes<&wire::field_8, &own::value_8>, takes<&wire::field_10, &own::text_10>,
        takes<&wire::field_11, &own::text_11>, takes<&wire::field_12, &own::text_12>>;
};

struct acl_limits {
    using wire = mava_tum_subscriber_acl;
    using own = tum_nal_data_session_context;
    using rows = limit_rows<takes<&wire::field_1, &own::acl_value_1>, takes<&wire::field_2, &own::acl_text_2>,
        takes<&wire::field_3, &own::acl_text_3>, takes<&wire::field_4, &own::acl_text_4>,
        takes<&wire::field_5, &own::acl_text_5>>;
};

struct redirect_limits {
    using wire = mava_tum_subscriber_httpr;
    using own = tum_nal_data_session_context;
    using rows =
        limit_rows<takes<&wire::field_1, &own::redirect_value_1>, takes<&wire::field_2, &own::redirect_text_2>>;
};

struct intercept_limits {
    using wire = mava_tum_subscriber_li;
    using own = tum_nal_data_session_context;
    using rows =
        limit_rows<takes<&wire::field_1, &own::intercept_value_1>, takes<&wire::field_2, &own::intercept_value_2>,
            takes<&wire::field_3, &own::intercept_value_3>, takes<&wire::field_4, &own::intercept_identifier>,
            takes<&wire::field_5, &own::intercept_value_5>, takes<&wire::field_6, &own::intercept_value_6>,
            takes<&wire::field_7, &own::intercept_ipv4_address>, takes<&wire::field_8, &own::intercept_ipv6_address>>;
};

struct accounting_limits {
    using wire = mava_tum_subscriber_acct;
    using own = tum_nal_data_session_context;
    using rows = limit_rows<takes<&wire::field_1, &own::accounting_flags>,
        takes<&wire::field_2, &own::accounting_value_2>, takes<&wire::field_3, &own::accounting_value_3>>;
};

} // namespace mava_tum_inspect
