#include "nal/convert_session_state.h"

#include "nal/convert_rows.h"

namespace mava_tum
{

void session_state_to_codec(mava_tum_rec_session_state &state, const tum_nal_data_session_state &entry)
{
    put<1>(state, state.field_1, entry.field_1);
    put<2>(state, state.field_2, entry.field_2);
    put<3>(state, state.field_3, entry.field_3);
}

void session_state_from_codec(tum_nal_data_session_state &entry, const mava_tum_rec_session_state &state)
{
    take<1>(entry.field_1, state, state.field_1);
    take<2>(entry.field_2, state, state.field_2);
    take<3>(entry.field_3, state, state.field_3);
}

} // namespace mava_tum
