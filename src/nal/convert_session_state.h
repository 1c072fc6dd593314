// One session state, as it stands in the batches of a reconciliation. `..._to_codec` expects a cleared codec record,
// `..._from_codec` a cleared entry.
#pragma once

#include "mava_tum/reconciliation.h"
#include "tum_nal/nal_reconciliation.h"

namespace mava_tum
{

void session_state_to_codec(mava_tum_rec_session_state &state, const tum_nal_data_session_state &entry);
void session_state_from_codec(tum_nal_data_session_state &entry, const mava_tum_rec_session_state &state);

} // namespace mava_tum
