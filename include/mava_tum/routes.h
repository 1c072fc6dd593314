/* A batch of subscriber routes and its answer.
 *
 * Result codes, the alias bit, callbacks and ownership are the same for all messages: codec_contract.h. */
#ifndef MAVA_TUM_ROUTES_H
#define MAVA_TUM_ROUTES_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "mava_tum/codec_contract.h"
#include "mava_tum/feature_records.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- sub_route ------------------------------------------------------------------------------------------- */

/* A batch of subscriber routes. */
typedef struct mava_tum_sub_route {
    uint32_t field_1;                            /* 1: varint, bit 0 */
    uint32_t field_2;                            /* 2: varint, bit 1 */
    uint32_t field_3;                            /* 3: varint, bit 2 */
    mava_tum_subscriber_route_ipv4 *ipv4_routes; /* 4: array of records, bit 3 */
    uint32_t ipv4_route_count;                   /* records in the array */
    mava_tum_subscriber_route_ipv6 *ipv6_routes; /* 5: array of records, bit 4 */
    uint32_t ipv6_route_count;                   /* records in the array */
    uint32_t field_6;                            /* 6: varint, bit 5 */
    uint8_t presence_mask;                       /* bits 6-7 reserved */
} mava_tum_sub_route;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`,
 * and bytes fields if the alias bit of `flags` is clear; the record owns those blocks, also after a failure. If the
 * alias bit is set, bytes fields point into `data`, which must outlive them. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_sub_route_decode_ext(mava_tum_sub_route *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. If the alias bit of `flags` is set, bytes fields are not copied: each is a segment of
 * its own. Returns the size needed in bytes. If it is above `length`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t mava_tum_sub_route_encode_ext(const mava_tum_sub_route *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`, also bytes that `source` aliases: free the copy with the alias bit clear. Returns MAVA_TUM_OK, or
 * MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent, all others are copied. */
MAVA_TUM_API int32_t mava_tum_sub_route_duplicate(
    mava_tum_sub_route *destination, const mava_tum_sub_route *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`, and its bytes fields if the alias bit of `flags` is
 * clear. Their pointers become null. `flags` must be those of the decode. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_sub_route_free_ext(
    mava_tum_sub_route *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- subscriber_route_resp ------------------------------------------------------------------------------- */

/* The answer to a batch of subscriber routes. */
typedef struct mava_tum_subscriber_route_resp {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    char *field_3;         /* 3: text, bit 2 */
    char *field_4;         /* 4: text, bit 3 */
    uint8_t presence_mask; /* bits 4-7 reserved */
} mava_tum_subscriber_route_resp;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`; the record
 * owns those blocks, also after a failure. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE,
 * MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_subscriber_route_resp_decode_ext(mava_tum_subscriber_route_resp *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_route_resp_encode_ext(const mava_tum_subscriber_route_resp *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_subscriber_route_resp_duplicate(mava_tum_subscriber_route_resp *destination,
    const mava_tum_subscriber_route_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`. Their pointers become null. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_subscriber_route_resp_free_ext(
    mava_tum_subscriber_route_resp *record, mava_tum_release_fn release_fn, void *release_ctx);

#ifdef __cplusplus
}
#endif

#endif
