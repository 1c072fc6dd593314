#include "tum_nal/nal_statistics.h"

#include "nal/adapter_frame.h"
#include "nal/convert_statistics.h"

#include <cstddef>

extern "C" uint64_t tum_nal_data_gpb_encode_tum_subscriber_stats(
    const tum_nal_data_subscriber_stats *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_subscriber_stats, mava_tum::subscriber_stats_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_subscriber_stats(
    const uint8_t *data, uint32_t length, tum_nal_data_subscriber_stats *record)
{
    mava_tum::decode_frame(
        data, length, record, mava_tum::subscriber_stats_from_codec, mava_tum_subscriber_stats_free_ext);
}

// ---- layout: programs built against the header rely on it ----

#if UINTPTR_MAX == UINT64_MAX // elsewhere a uint64_t may be aligned otherwise
static_assert(sizeof(tum_nal_data_stats_block) == 72 && alignof(tum_nal_data_stats_block) == 4);

static_assert(sizeof(tum_nal_data_service_entry) == 140 && alignof(tum_nal_data_service_entry) == 4);
static_assert(offsetof(tum_nal_data_service_entry, stats) == 68);

static_assert(sizeof(tum_nal_data_subscriber_stats) == 1376 && alignof(tum_nal_data_subscriber_stats) == 8);
static_assert(offsetof(tum_nal_data_subscriber_stats, value_2) == 8);
static_assert(offsetof(tum_nal_data_subscriber_stats, value_3) == 12);
static_assert(offsetof(tum_nal_data_subscriber_stats, value_4) == 16);
static_assert(offsetof(tum_nal_data_subscriber_stats, value_5) == 20);
static_assert(offsetof(tum_nal_data_subscriber_stats, value_6) == 24);
static_assert(offsetof(tum_nal_data_subscriber_stats, block_7) == 28);
static_assert(offsetof(tum_nal_data_subscriber_stats, service_count) == 100);
static_assert(offsetof(tum_nal_data_subscriber_stats, services) == 104);
static_assert(offsetof(tum_nal_data_subscriber_stats, block_10_switch) == 1224);
static_assert(offsetof(tum_nal_data_subscriber_stats, block_10) == 1228);
static_assert(offsetof(tum_nal_data_subscriber_stats, block_12_switch) == 1300);
static_assert(offsetof(tum_nal_data_subscriber_stats, block_12) == 1304);
#endif
