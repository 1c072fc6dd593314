/* Application record and adapters of subscriber statistics.
 *
 * Counts, texts, short buffers and malformed input are the same for all adapters: adapter_contract.h. */
#ifndef TUM_NAL_NAL_STATISTICS_H
#define TUM_NAL_NAL_STATISTICS_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "tum_nal/adapter_contract.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Slots and counters. */
enum { TUM_NAL_STATS_COUNTERS = 18, TUM_NAL_STATS_SERVICES = 8 };

/* Bytes of the largest message that the encode adapter below makes. */
enum { TUM_NAL_SUBSCRIBER_STATS_MAX_SIZE = 1836 };

/* Counter k of the message stands in `counter[k - 1]`. Counters that are zero are not sent. */
typedef struct tum_nal_data_stats_block {
    uint32_t counter[TUM_NAL_STATS_COUNTERS]; /* 1 to 18: non-zero */
} tum_nal_data_stats_block;

/* A service. Its name and its statistics are always sent: an empty name too, and statistics that are all zero as an
 * empty record. */
typedef struct tum_nal_data_service_entry {
    char name[65];                  /* 1: always */
    tum_nal_data_stats_block stats; /* 2: always */
} tum_nal_data_service_entry;

/* A subscriber's statistics. Values are sent when not zero. A block is sent when the value before it is not zero.
 * Not symmetric: `value_6` is itself sent, the two switches are not; what a message carries in fields 9 and 11
 * arrives in them. A block that arrives fills its counters whatever the value before it. */
typedef struct tum_nal_data_subscriber_stats {
    uint64_t value_1;                                            /* 1: non-zero */
    uint32_t value_2;                                            /* 2: non-zero */
    uint32_t value_3;                                            /* 3: non-zero */
    uint32_t value_4;                                            /* 4: non-zero */
    uint32_t value_5;                                            /* 5: non-zero */
    uint32_t value_6;                                            /* 6: non-zero; decides over `block_7` */
    tum_nal_data_stats_block block_7;                            /* 7: `value_6` non-zero */
    uint8_t service_count;                                       /* used elements of `services` */
    tum_nal_data_service_entry services[TUM_NAL_STATS_SERVICES]; /* 8: as many as the count says */
    uint32_t block_10_switch;                                    /* 9: never; only received; decides over `block_10` */
    tum_nal_data_stats_block block_10;                           /* 10: `block_10_switch` non-zero */
    uint32_t block_12_switch;                                    /* 11: never; only received; decides over `block_12` */
    tum_nal_data_stats_block block_12;                           /* 12: `block_12_switch` non-zero */
} tum_nal_data_subscriber_stats;

/* Encodes statistics as one subscriber_stats message into `buffer` (`capacity` bytes; may be null if 0). Returns the
 * size needed in bytes (0 for an all-zero record). If it is above `capacity`, the output is truncated: do not send
 * it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_subscriber_stats(
    const tum_nal_data_subscriber_stats *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the subscriber_stats message in the `length` bytes at `data` into `record`, which is overwritten completely.
 * Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_subscriber_stats(
    const uint8_t *data, uint32_t length, tum_nal_data_subscriber_stats *record);

#ifdef __cplusplus
}
#endif

#endif
