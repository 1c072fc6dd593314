// The data of one group, in the replay of a redundancy group.
#pragma once

#include "messages/redundancy_group_schema.h"
#include "nal/rows.h"
#include "tum_nal/nal_redundancy_group.h"

namespace mava_tum
{

struct group_data_rows {
    using message = mava_tum_srg_group_data;
    using record = tum_nal_data_group_data;
    using rows = row_list<number<1, &record::field_1, if_nonzero>, number<2, &record::field_2, if_nonzero>,
        number<3, &record::field_3, if_nonzero>, number<4, &record::field_4, if_nonzero>, text<5, &record::field_5>>;
};

} // namespace mava_tum
