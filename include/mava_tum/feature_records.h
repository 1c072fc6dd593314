/* The features of a subscriber: QoS, access lists, redirect, intercept, checks, accounting, routes.
 *
 * Result codes, the alias bit, callbacks and ownership are the same for all messages: codec_contract.h. */
#ifndef MAVA_TUM_FEATURE_RECORDS_H
#define MAVA_TUM_FEATURE_RECORDS_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "mava_tum/codec_contract.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- subscriber_qos -------------------------------------------------------------------------------------- */

/* One quality-of-service entry. An element of session_context. */
typedef struct mava_tum_subscriber_qos {
    uint32_t field_1;       /* 1: varint, bit 0 */
    uint32_t field_2;       /* 2: varint, bit 1 */
    char *field_3;          /* 3: text, bit 2 */
    char *field_4;          /* 4: text, bit 3 */
    char *field_5;          /* 5: text, bit 4 */
    uint32_t field_6;       /* 6: varint, bit 5 */
    uint32_t field_7;       /* 7: varint, bit 6 */
    uint32_t field_8;       /* 8: varint, bit 7 */
    char *field_9;          /* 9: text, bit 8 */
    char *field_10;         /* 10: text, bit 9 */
    char *field_11;         /* 11: text, bit 10 */
    char *field_12;         /* 12: text, bit 11 */
    uint16_t presence_mask; /* bits 12-15 reserved */
} mava_tum_subscriber_qos;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`; the record
 * owns those blocks, also after a failure. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE,
 * MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_subscriber_qos_decode_ext(
    mava_tum_subscriber_qos *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_qos_encode_ext(const mava_tum_subscriber_qos *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_subscriber_qos_duplicate(mava_tum_subscriber_qos *destination,
    const mava_tum_subscriber_qos *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`. Their pointers become null. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_subscriber_qos_free_ext(
    mava_tum_subscriber_qos *record, mava_tum_release_fn release_fn, void *release_ctx);

/* ---- subscriber_acl -------------------------------------------------------------------------------------- */

/* Access lists. Nested in session_context. */
typedef struct mava_tum_subscriber_acl {
    uint32_t field_1;      /* 1: varint, bit 0 */
    char *field_2;         /* 2: text, bit 1 */
    char *field_3;         /* 3: text, bit 2 */
    char *field_4;         /* 4: text, bit 3 */
    char *field_5;         /* 5: text, bit 4 */
    uint8_t presence_mask; /* bits 5-7 reserved */
} mava_tum_subscriber_acl;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`; the record
 * owns those blocks, also after a failure. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE,
 * MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_subscriber_acl_decode_ext(
    mava_tum_subscriber_acl *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_acl_encode_ext(const mava_tum_subscriber_acl *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_subscriber_acl_duplicate(mava_tum_subscriber_acl *destination,
    const mava_tum_subscriber_acl *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`. Their pointers become null. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_subscriber_acl_free_ext(
    mava_tum_subscriber_acl *record, mava_tum_release_fn release_fn, void *release_ctx);

/* ---- subscriber_httpr ------------------------------------------------------------------------------------ */

/* HTTP redirect. Nested in session_context. */
typedef struct mava_tum_subscriber_httpr {
    uint32_t field_1;      /* 1: varint, bit 0 */
    char *field_2;         /* 2: text, bit 1 */
    uint8_t presence_mask; /* bits 2-7 reserved */
} mava_tum_subscriber_httpr;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`; the record
 * owns those blocks, also after a failure. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE,
 * MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_subscriber_httpr_decode_ext(mava_tum_subscriber_httpr *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_httpr_encode_ext(const mava_tum_subscriber_httpr *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_subscriber_httpr_duplicate(mava_tum_subscriber_httpr *destination,
    const mava_tum_subscriber_httpr *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`. Their pointers become null. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_subscriber_httpr_free_ext(
    mava_tum_subscriber_httpr *record, mava_tum_release_fn release_fn, void *release_ctx);

/* ---- subscriber_li --------------------------------------------------------------------------------------- */

/* Lawful intercept. Nested in session_context. */
typedef struct mava_tum_subscriber_li {
    uint32_t field_1;       /* 1: varint, bit 0 */
    uint32_t field_2;       /* 2: varint, bit 1 */
    uint32_t field_3;       /* 3: varint, bit 2 */
    mava_tum_bytes field_4; /* 4: bytes, bit 3 */
    uint32_t field_5;       /* 5: varint, bit 4 */
    uint32_t field_6;       /* 6: varint, bit 5 */
    uint32_t field_7;       /* 7: fixed32, bit 6; IPv4 address, network byte order */
    mava_tum_bytes field_8; /* 8: bytes, bit 7 */
    uint8_t presence_mask;  /* no reserved bits */
} mava_tum_subscriber_li;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates bytes fields with `alloc_fn` if
 * the alias bit of `flags` is clear; the record owns those blocks, also after a failure. If the alias bit is set, bytes
 * fields point into `data`, which must outlive them. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_subscriber_li_decode_ext(mava_tum_subscriber_li *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. If the alias bit of `flags` is set, bytes fields are not copied: each is a segment of
 * its own. Returns the size needed in bytes. If it is above `length`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_li_encode_ext(const mava_tum_subscriber_li *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`, also bytes that `source` aliases: free the copy with the alias bit clear. Returns MAVA_TUM_OK, or
 * MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent, all others are copied. */
MAVA_TUM_API int32_t mava_tum_subscriber_li_duplicate(mava_tum_subscriber_li *destination,
    const mava_tum_subscriber_li *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the bytes fields of `record` with `release_fn` if the alias bit of `flags` is clear; otherwise nothing.
 * Their pointers become null. `flags` must be those of the decode. The record itself, its scalars and its presence bits
 * do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_subscriber_li_free_ext(
    mava_tum_subscriber_li *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- subscriber_urpf ------------------------------------------------------------------------------------- */

/* A unicast reverse-path-forwarding check. Nested in session_context. */
typedef struct mava_tum_subscriber_urpf {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    uint8_t presence_mask; /* bits 2-7 reserved */
} mava_tum_subscriber_urpf;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_subscriber_urpf_decode_ext(
    mava_tum_subscriber_urpf *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_urpf_encode_ext(const mava_tum_subscriber_urpf *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_subscriber_urpf_duplicate(
    mava_tum_subscriber_urpf *destination, const mava_tum_subscriber_urpf *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_subscriber_urpf_free_ext(mava_tum_subscriber_urpf *record);

/* ---- subscriber_icmp ------------------------------------------------------------------------------------- */

/* An ICMP setting. Nested in session_context. */
typedef struct mava_tum_subscriber_icmp {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint8_t presence_mask; /* bits 1-7 reserved */
} mava_tum_subscriber_icmp;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_subscriber_icmp_decode_ext(
    mava_tum_subscriber_icmp *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_icmp_encode_ext(const mava_tum_subscriber_icmp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_subscriber_icmp_duplicate(
    mava_tum_subscriber_icmp *destination, const mava_tum_subscriber_icmp *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_subscriber_icmp_free_ext(mava_tum_subscriber_icmp *record);

/* ---- subscriber_mtu -------------------------------------------------------------------------------------- */

/* An MTU setting. Nested in session_context. */
typedef struct mava_tum_subscriber_mtu {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint8_t presence_mask; /* bits 1-7 reserved */
} mava_tum_subscriber_mtu;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_subscriber_mtu_decode_ext(
    mava_tum_subscriber_mtu *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_mtu_encode_ext(const mava_tum_subscriber_mtu *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_subscriber_mtu_duplicate(
    mava_tum_subscriber_mtu *destination, const mava_tum_subscriber_mtu *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_subscriber_mtu_free_ext(mava_tum_subscriber_mtu *record);

/* ---- subscriber_acct ------------------------------------------------------------------------------------- */

/* Accounting settings. Nested in session_context. */
typedef struct mava_tum_subscriber_acct {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    uint32_t field_3;      /* 3: varint, bit 2 */
    uint8_t presence_mask; /* bits 3-7 reserved */
} mava_tum_subscriber_acct;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_subscriber_acct_decode_ext(
    mava_tum_subscriber_acct *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_acct_encode_ext(const mava_tum_subscriber_acct *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_subscriber_acct_duplicate(
    mava_tum_subscriber_acct *destination, const mava_tum_subscriber_acct *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_subscriber_acct_free_ext(mava_tum_subscriber_acct *record);

/* ---- subscriber_route_ipv4 ------------------------------------------------------------------------------- */

/* One IPv4 route. An element of session_context and of sub_route. */
typedef struct mava_tum_subscriber_route_ipv4 {
    uint32_t field_1;       /* 1: varint, bit 0 */
    char *field_2;          /* 2: text, bit 1 */
    uint32_t field_3;       /* 3: fixed32, bit 2; IPv4 address, network byte order */
    uint32_t field_4;       /* 4: varint, bit 3 */
    uint32_t field_5;       /* 5: fixed32, bit 4; IPv4 address, network byte order */
    char *field_6;          /* 6: text, bit 5 */
    uint32_t field_7;       /* 7: varint, bit 6 */
    uint32_t field_8;       /* 8: varint, bit 7 */
    char *field_9;          /* 9: text, bit 8 */
    uint16_t presence_mask; /* bits 9-15 reserved */
} mava_tum_subscriber_route_ipv4;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`; the record
 * owns those blocks, also after a failure. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE,
 * MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_subscriber_route_ipv4_decode_ext(mava_tum_subscriber_route_ipv4 *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_route_ipv4_encode_ext(const mava_tum_subscriber_route_ipv4 *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_subscriber_route_ipv4_duplicate(mava_tum_subscriber_route_ipv4 *destination,
    const mava_tum_subscriber_route_ipv4 *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`. Their pointers become null. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_subscriber_route_ipv4_free_ext(
    mava_tum_subscriber_route_ipv4 *record, mava_tum_release_fn release_fn, void *release_ctx);

/* ---- subscriber_route_ipv6 ------------------------------------------------------------------------------- */

/* One IPv6 route. An element of session_context and of sub_route. */
typedef struct mava_tum_subscriber_route_ipv6 {
    uint32_t field_1;       /* 1: varint, bit 0 */
    char *field_2;          /* 2: text, bit 1 */
    mava_tum_bytes field_3; /* 3: bytes, bit 2 */
    uint32_t field_4;       /* 4: varint, bit 3 */
    mava_tum_bytes field_5; /* 5: bytes, bit 4 */
    char *field_6;          /* 6: text, bit 5 */
    uint32_t field_7;       /* 7: varint, bit 6 */
    uint32_t field_8;       /* 8: varint, bit 7 */
    char *field_9;          /* 9: text, bit 8 */
    uint16_t presence_mask; /* bits 9-15 reserved */
} mava_tum_subscriber_route_ipv6;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`, and bytes
 * fields if the alias bit of `flags` is clear; the record owns those blocks, also after a failure. If the alias bit is
 * set, bytes fields point into `data`, which must outlive them. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_subscriber_route_ipv6_decode_ext(mava_tum_subscriber_route_ipv6 *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. If the alias bit of `flags` is set, bytes fields are not copied: each is a segment of
 * its own. Returns the size needed in bytes. If it is above `length`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_route_ipv6_encode_ext(const mava_tum_subscriber_route_ipv6 *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`, also bytes that `source` aliases: free the copy with the alias bit clear. Returns MAVA_TUM_OK, or
 * MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent, all others are copied. */
MAVA_TUM_API int32_t mava_tum_subscriber_route_ipv6_duplicate(mava_tum_subscriber_route_ipv6 *destination,
    const mava_tum_subscriber_route_ipv6 *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`, and its bytes fields if the alias bit of `flags` is clear. Their
 * pointers become null. `flags` must be those of the decode. The record itself, its scalars and its presence bits do
 * not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_subscriber_route_ipv6_free_ext(
    mava_tum_subscriber_route_ipv6 *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

#ifdef __cplusplus
}
#endif

#endif
