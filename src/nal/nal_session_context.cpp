// The adapters of a session.
#include "tum_nal/nal_session_context.h"

#include "nal/session_context_rows.h"

extern "C" uint64_t tum_nal_data_gpb_encode_tum_session_context(
    const tum_nal_data_session_context *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::session_context_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_session_context(
    const uint8_t *data, uint32_t length, tum_nal_data_session_context *record)
{
    mava_tum::decode_mapped<mava_tum::session_context_rows>(*record, data, length);
}
