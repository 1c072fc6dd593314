// What the records of a removal and of an answer take.
#pragma once

#include "inspect/limits/limits_statistics.h"
#include "messages/session_messages_schema.h"
#include "tum_nal/nal_session.h"

namespace mava_tum_inspect
{

struct session_delete_limits {
    using wire = mava_tum_session_delete;
    using own = tum_nal_data_session_delete;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>, takes<&wire::field_4, &own::field_4>,
        takes<&wire::field_5, &own::field_5>>;
};

struct sess_oper_resp_limits {
    using wire = mava_tum_sess_oper_resp;
    using own = tum_nal_data_sess_oper_resp;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>, takes<&wire::field_4, &own::field_4>,
        takes<&wire::field_5, &own::field_5>, takes<&wire::field_6, &own::field_6>,
        takes<&wire::field_7, &own::field_7>, takes<&wire::field_8, &own::field_8>,
        block<&wire::field_9, &own::field_9, subscriber_stats_limits>>;
};

} // namespace mava_tum_inspect
