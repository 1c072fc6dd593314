// One session state, in the batches of a reconciliation.
#pragma once

#include "messages/reconciliation_schema.h"
#include "nal/rows.h"
#include "tum_nal/nal_reconciliation.h"

namespace mava_tum
{

struct session_state_rows {
    using message = mava_tum_rec_session_state;
    using record = tum_nal_data_session_state;
    using rows = row_list<number<1, &record::field_1>, number<2, &record::field_2>, number<3, &record::field_3>>;
};

} // namespace mava_tum
