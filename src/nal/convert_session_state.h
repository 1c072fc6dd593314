// One session state, as it stands in the batches of a reconciliation: its way to the wire, and its way back into a
// cleared entry.
#pragma once

#include "mava_tum/reconciliation.h"
#include "nal/convert_rows.h"
#include "tum_nal/nal_reconciliation.h"

namespace mava_tum
{

struct session_state_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_state &entry)
    {
        put<1>(fields, entry.field_1);
        put<2>(fields, entry.field_2);
        put<3>(fields, entry.field_3);
    }
};

inline void session_state_from_codec(tum_nal_data_session_state &entry, const mava_tum_rec_session_state &state)
{
    take(entry.field_1, state.field_1);
    take(entry.field_2, state.field_2);
    take(entry.field_3, state.field_3);
}

} // namespace mava_tum
