// What the records of a reconciliation take. Its start request takes two of four fields (L28).
#pragma once

#include "inspect/limits/limits_session_context.h"
#include "inspect/limits/limits_statistics.h"
#include "messages/reconciliation_schema.h"
#include "tum_nal/nal_reconciliation.h"

namespace mava_tum_inspect
{

struct rec_start_req_limits {
    using wire = mava_tum_rec_start_req;
    using own = tum_nal_data_rec_start_req;
    using rows = limit_rows<takes<&wire::field_3, &own::field_1>, takes<&wire::field_4, &own::field_4>>;
};

struct rec_complete_req_limits {
    using wire = mava_tum_rec_complete_req;
    using own = tum_nal_data_rec_complete_req;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>, takes<&wire::field_4, &own::field_4>>;
};

struct rec_res_limits {
    using wire = mava_tum_rec_resp;
    using own = tum_nal_data_rec_res;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>>;
};

struct session_state_limits {
    using wire = mava_tum_rec_session_state;
    using own = tum_nal_data_session_state;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>>;
};

struct rec_sess_req_limits {
    using wire = mava_tum_rec_sess_req;
    using own = tum_nal_data_rec_sess_req;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        list<&wire::field_3, &own::field_3, &own::field_3_count, session_state_limits>,
        takes<&wire::field_4, &own::field_4>, takes<&wire::field_5, &own::field_5>,
        takes<&wire::field_6, &own::field_6>>;
};

struct rec_sess_res_limits {
    using wire = mava_tum_rec_sess_resp;
    using own = tum_nal_data_rec_sess_res;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>,
        list<&wire::field_2, &own::field_2, &own::field_2_count, session_state_limits>,
        takes<&wire::field_3, &own::field_3>, takes<&wire::field_4, &own::field_4>>;
};

struct rec_sess_replay_req_limits {
    using wire = mava_tum_rec_sess_replay_req;
    using own = tum_nal_data_rec_sess_replay_req_decode;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>,
        list<&wire::field_4, &own::field_4, &own::field_4_count, session_context_limits>,
        takes<&wire::field_5, &own::field_5>, takes<&wire::field_6, &own::field_6>>;
};

struct replay_failure_limits {
    using wire = mava_tum_rec_sess_replay_fail;
    using own = tum_nal_data_replay_failure;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        block<&wire::field_3, &own::field_3, subscriber_stats_limits>>;
};

struct service_start_limits {
    using wire = mava_tum_sess_svc_start;
    using own = tum_nal_data_service_start;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>, takes<&wire::field_4, &own::field_4>,
        texts<&wire::field_5, &own::field_5, &own::field_5_count>>;
};

struct rec_sess_replay_resp_limits {
    using wire = mava_tum_rec_sess_replay_resp;
    using own = tum_nal_data_rec_sess_replay_resp;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>,
        list<&wire::field_2, &own::field_2, &own::field_2_count, replay_failure_limits>,
        list<&wire::field_3, &own::field_3, &own::field_3_count, service_start_limits>,
        takes<&wire::field_4, &own::field_4>, takes<&wire::field_5, &own::field_5>>;
};

} // namespace mava_tum_inspect
