/* Traffic statistics of a subscriber and of its services.
 *
 * Result codes, the alias bit, callbacks and ownership are the same for all messages: codec_contract.h. */
#ifndef MAVA_TUM_STATISTICS_H
#define MAVA_TUM_STATISTICS_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "mava_tum/codec_contract.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- stats ----------------------------------------------------------------------------------------------- */

/* Eighteen traffic counters. */
typedef struct mava_tum_stats {
    uint32_t field_1;       /* 1: varint, bit 0 */
    uint32_t field_2;       /* 2: varint, bit 1 */
    uint32_t field_3;       /* 3: varint, bit 2 */
    uint32_t field_4;       /* 4: varint, bit 3 */
    uint32_t field_5;       /* 5: varint, bit 4 */
    uint32_t field_6;       /* 6: varint, bit 5 */
    uint32_t field_7;       /* 7: varint, bit 6 */
    uint32_t field_8;       /* 8: varint, bit 7 */
    uint32_t field_9;       /* 9: varint, bit 8 */
    uint32_t field_10;      /* 10: varint, bit 9 */
    uint32_t field_11;      /* 11: varint, bit 10 */
    uint32_t field_12;      /* 12: varint, bit 11 */
    uint32_t field_13;      /* 13: varint, bit 12 */
    uint32_t field_14;      /* 14: varint, bit 13 */
    uint32_t field_15;      /* 15: varint, bit 14 */
    uint32_t field_16;      /* 16: varint, bit 15 */
    uint32_t field_17;      /* 17: varint, bit 16 */
    uint32_t field_18;      /* 18: varint, bit 17 */
    uint32_t presence_mask; /* bits 18-31 reserved */
} mava_tum_stats;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_stats_decode_ext(mava_tum_stats *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_stats_encode_ext(const mava_tum_stats *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_stats_duplicate(mava_tum_stats *destination, const mava_tum_stats *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_stats_free_ext(mava_tum_stats *record);

/* ---- service_stats --------------------------------------------------------------------------------------- */

/* A named service and its counters. An element of subscriber_stats. */
typedef struct mava_tum_service_stats {
    char *field_1;          /* 1: text, bit 0 */
    mava_tum_stats field_2; /* 2: record, bit 1 */
    uint8_t presence_mask;  /* bits 2-7 reserved */
} mava_tum_service_stats;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`; the record
 * owns those blocks, also after a failure. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE,
 * MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_service_stats_decode_ext(
    mava_tum_service_stats *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_service_stats_encode_ext(const mava_tum_service_stats *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_service_stats_duplicate(mava_tum_service_stats *destination,
    const mava_tum_service_stats *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`. Their pointers become null. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_service_stats_free_ext(
    mava_tum_service_stats *record, mava_tum_release_fn release_fn, void *release_ctx);

/* ---- subscriber_stats ------------------------------------------------------------------------------------ */

/* A subscriber's statistics: totals, blocks of counters, services. */
typedef struct mava_tum_subscriber_stats {
    uint64_t field_1;                /* 1: 64-bit varint, bit 0 */
    uint32_t field_2;                /* 2: varint, bit 1 */
    uint32_t field_3;                /* 3: varint, bit 2 */
    uint32_t field_4;                /* 4: varint, bit 3 */
    uint32_t field_5;                /* 5: varint, bit 4 */
    uint32_t field_6;                /* 6: varint, bit 5 */
    mava_tum_stats field_7;          /* 7: record, bit 6 */
    mava_tum_service_stats *field_8; /* 8: array of records, bit 7 */
    uint32_t field_8_count;          /* records in the array */
    uint32_t field_9;                /* 9: varint, bit 8 */
    mava_tum_stats field_10;         /* 10: record, bit 9 */
    uint32_t field_11;               /* 11: varint, bit 10 */
    mava_tum_stats field_12;         /* 12: record, bit 11 */
    uint16_t presence_mask;          /* bits 12-15 reserved */
} mava_tum_subscriber_stats;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`;
 * the record owns those blocks, also after a failure. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_subscriber_stats_decode_ext(mava_tum_subscriber_stats *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_stats_encode_ext(const mava_tum_subscriber_stats *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_subscriber_stats_duplicate(mava_tum_subscriber_stats *destination,
    const mava_tum_subscriber_stats *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`. Their pointers become null. The record itself, its
 * scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_subscriber_stats_free_ext(
    mava_tum_subscriber_stats *record, mava_tum_release_fn release_fn, void *release_ctx);

#ifdef __cplusplus
}
#endif

#endif
