// The adapters of a subscriber's statistics.
#include "tum_nal/nal_statistics.h"

#include "nal/statistics_rows.h"

extern "C" uint64_t tum_nal_data_gpb_encode_tum_subscriber_stats(
    const tum_nal_data_subscriber_stats *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_mapped<mava_tum::subscriber_stats_rows>(*record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_subscriber_stats(
    const uint8_t *data, uint32_t length, tum_nal_data_subscriber_stats *record)
{
    mava_tum::decode_mapped<mava_tum::subscriber_stats_rows>(*record, data, length);
}
