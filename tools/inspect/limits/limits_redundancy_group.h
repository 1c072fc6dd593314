// What the records of redundancy groups take.
#pragma once

#include "inspect/limits/limit_rows.h"
#include "messages/redundancy_group_schema.h"
#include "tum_nal/nal_redundancy_group.h"

namespace mava_tum_inspect
{

struct srg_group_rec_start_req_limits {
    using wire = mava_tum_srg_group_rec_start_req;
    using own = tum_nal_data_srg_group_rec_start_req;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>>;
};

struct srg_group_rec_resp_limits {
    using wire = mava_tum_srg_group_rec_resp;
    using own = tum_nal_data_srg_group_rec_resp;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>>;
};

struct srg_group_rec_complete_req_limits {
    using wire = mava_tum_srg_group_rec_complete_req;
    using own = tum_nal_data_srg_group_rec_complete_req;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>>;
};

struct group_data_limits {
    using wire = mava_tum_srg_group_data;
    using own = tum_nal_data_group_data;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        takes<&wire::field_3, &own::field_3>, takes<&wire::field_4, &own::field_4>,
        takes<&wire::field_5, &own::field_5>>;
};

struct srg_group_rec_replay_req_limits {
    using wire = mava_tum_srg_group_rec_replay_req;
    using own = tum_nal_data_srg_group_rec_replay_req;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>, takes<&wire::field_2, &own::field_2>,
        list<&wire::field_3, &own::field_3, &own::field_3_count, group_data_limits>,
        takes<&wire::field_4, &own::field_4>>;
};

struct srg_group_rec_replay_resp_limits {
    using wire = mava_tum_srg_group_rec_replay_resp;
    using own = tum_nal_data_srg_group_rec_replay_resp;
    using rows = limit_rows<takes<&wire::field_1, &own::field_1>,
        list<&wire::field_2, &own::field_2, &own::field_2_count, group_data_limits>,
        list<&wire::field_3, &own::field_3, &own::field_3_count, group_data_limits>,
        takes<&wire::field_4, &own::field_4>>;
};

} // namespace mava_tum_inspect
