/* The session as a whole, and the messages that delete it or answer an operation on it.
 *
 * Result codes, the alias bit, callbacks and ownership are the same for all messages: codec_contract.h. */
#ifndef MAVA_TUM_SESSION_MESSAGES_H
#define MAVA_TUM_SESSION_MESSAGES_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "mava_tum/codec_contract.h"
#include "mava_tum/feature_records.h"
#include "mava_tum/statistics.h"
#include "mava_tum/subscriber_records.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- session_context ------------------------------------------------------------------------------------- */

/* One subscriber session as a whole: identity, access and features. */
typedef struct mava_tum_session_context {
    uint32_t field_1;                           /* 1: varint, bit 0 */
    uint32_t field_2;                           /* 2: varint, bit 1 */
    uint32_t field_3;                           /* 3: varint, bit 2 */
    uint32_t field_4;                           /* 4: varint, bit 3 */
    uint32_t feature_mask;                      /* 5: varint, bit 4 */
    mava_tum_bytes field_6;                     /* 6: bytes, bit 5 */
    uint32_t field_7;                           /* 7: varint, bit 6 */
    mava_tum_subscriber_v4 subscriber_v4;       /* 8: record, bit 7 */
    mava_tum_subscriber_v6 subscriber_v6;       /* 9: record, bit 8 */
    mava_tum_session_data session_data;         /* 10: record, bit 9 */
    mava_tum_subscriber_qos *qos;               /* 11: array of records, bit 10 */
    uint32_t qos_count;                         /* records in the array */
    mava_tum_subscriber_acl acl;                /* 12: record, bit 11 */
    mava_tum_subscriber_httpr httpr;            /* 13: record, bit 12 */
    mava_tum_subscriber_li li;                  /* 14: record, bit 13 */
    mava_tum_subscriber_urpf urpf_1;            /* 15: record, bit 14 */
    mava_tum_subscriber_urpf urpf_2;            /* 16: record, bit 15 */
    mava_tum_subscriber_icmp icmp_1;            /* 17: record, bit 16 */
    mava_tum_subscriber_icmp icmp_2;            /* 18: record, bit 17 */
    mava_tum_subscriber_mtu mtu_1;              /* 19: record, bit 18 */
    mava_tum_subscriber_mtu mtu_2;              /* 20: record, bit 19 */
    mava_tum_subscriber_mtu mtu_3;              /* 21: record, bit 20 */
    mava_tum_subscriber_acct acct;              /* 22: record, bit 21 */
    mava_tum_subscriber_route_ipv4 *route_ipv4; /* 23: array of records, bit 22 */
    uint32_t route_ipv4_count;                  /* records in the array */
    mava_tum_subscriber_route_ipv6 *route_ipv6; /* 24: array of records, bit 23 */
    uint32_t route_ipv6_count;                  /* records in the array */
    uint32_t presence_mask;                     /* bits 24-31 reserved */
} mava_tum_session_context;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`,
 * and bytes fields if the alias bit of `flags` is clear; the record owns those blocks, also after a failure. If the
 * alias bit is set, bytes fields point into `data`, which must outlive them. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_session_context_decode_ext(mava_tum_session_context *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. If the alias bit of `flags` is set, bytes fields are not copied: each is a segment of
 * its own. Returns the size needed in bytes. If it is above `length`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t mava_tum_session_context_encode_ext(const mava_tum_session_context *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`, also bytes that `source` aliases: free the copy with the alias bit clear. Returns MAVA_TUM_OK, or
 * MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent, all others are copied. */
MAVA_TUM_API int32_t mava_tum_session_context_duplicate(mava_tum_session_context *destination,
    const mava_tum_session_context *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`, and its bytes fields if the alias bit of `flags` is
 * clear. Their pointers become null. `flags` must be those of the decode. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_session_context_free_ext(
    mava_tum_session_context *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- session_delete -------------------------------------------------------------------------------------- */

/* A request to remove a session. */
typedef struct mava_tum_session_delete {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    uint32_t field_3;      /* 3: varint, bit 2 */
    uint64_t field_4;      /* 4: 64-bit varint, bit 3 */
    uint32_t field_5;      /* 5: varint, bit 4 */
    uint8_t presence_mask; /* bits 5-7 reserved */
} mava_tum_session_delete;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. `alloc_fn` and `alloc_ctx` are ignored: the
 * record owns no memory. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or
 * MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_session_delete_decode_ext(
    mava_tum_session_delete *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_session_delete_encode_ext(const mava_tum_session_delete *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_session_delete_duplicate(
    mava_tum_session_delete *destination, const mava_tum_session_delete *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_session_delete_free_ext(mava_tum_session_delete *record);

/* ---- sess_oper_resp -------------------------------------------------------------------------------------- */

/* The answer to an operation on a session. */
typedef struct mava_tum_sess_oper_resp {
    uint32_t field_1;                  /* 1: varint, bit 0 */
    uint32_t field_2;                  /* 2: varint, bit 1 */
    uint32_t field_3;                  /* 3: varint, bit 2 */
    uint64_t field_4;                  /* 4: 64-bit varint, bit 3 */
    uint32_t field_5;                  /* 5: varint, bit 4 */
    char *field_6;                     /* 6: text, bit 5 */
    char *field_7;                     /* 7: text, bit 6 */
    char *field_8;                     /* 8: text, bit 7 */
    mava_tum_subscriber_stats field_9; /* 9: record, bit 8 */
    mava_tum_bytes field_10;           /* 10: bytes, bit 9 */
    uint16_t presence_mask;            /* bits 10-15 reserved */
} mava_tum_sess_oper_resp;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`,
 * and bytes fields if the alias bit of `flags` is clear; the record owns those blocks, also after a failure. If the
 * alias bit is set, bytes fields point into `data`, which must outlive them. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_sess_oper_resp_decode_ext(mava_tum_sess_oper_resp *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. If the alias bit of `flags` is set, bytes fields are not copied: each is a segment of
 * its own. Returns the size needed in bytes. If it is above `length`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t mava_tum_sess_oper_resp_encode_ext(const mava_tum_sess_oper_resp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`, also bytes that `source` aliases: free the copy with the alias bit clear. Returns MAVA_TUM_OK, or
 * MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent, all others are copied. */
MAVA_TUM_API int32_t mava_tum_sess_oper_resp_duplicate(mava_tum_sess_oper_resp *destination,
    const mava_tum_sess_oper_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`, and its bytes fields if the alias bit of `flags` is
 * clear. Their pointers become null. `flags` must be those of the decode. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_sess_oper_resp_free_ext(
    mava_tum_sess_oper_resp *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

#ifdef __cplusplus
}
#endif

#endif
