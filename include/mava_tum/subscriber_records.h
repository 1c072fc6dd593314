/* A subscriber's addresses, access records and session data.
 *
 * Result codes, the alias bit, callbacks and ownership are the same for all messages: codec_contract.h. */
#ifndef MAVA_TUM_SUBSCRIBER_RECORDS_H
#define MAVA_TUM_SUBSCRIBER_RECORDS_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "mava_tum/codec_contract.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- subscriber_v4 --------------------------------------------------------------------------------------- */

/* A subscriber's IPv4 address. Nested in session_context. */
typedef struct mava_tum_subscriber_v4 {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t ipv4_address; /* 2: fixed32, bit 1; IPv4 address in network byte order */
    uint8_t presence_mask; /* bits 2-7 reserved */
} mava_tum_subscriber_v4;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_subscriber_v4_decode_ext(
    mava_tum_subscriber_v4 *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_v4_encode_ext(const mava_tum_subscriber_v4 *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_subscriber_v4_duplicate(
    mava_tum_subscriber_v4 *destination, const mava_tum_subscriber_v4 *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_subscriber_v4_free_ext(mava_tum_subscriber_v4 *record);

/* ---- subscriber_v6 --------------------------------------------------------------------------------------- */

/* A subscriber's IPv6 addresses and prefixes. Nested in session_context. */
typedef struct mava_tum_subscriber_v6 {
    uint32_t field_1;       /* 1: varint, bit 0 */
    mava_tum_bytes field_2; /* 2: bytes, bit 1 */
    mava_tum_bytes field_3; /* 3: bytes, bit 2 */
    mava_tum_bytes field_4; /* 4: bytes, bit 3 */
    uint32_t field_5;       /* 5: varint, bit 4 */
    mava_tum_bytes field_6; /* 6: bytes, bit 5 */
    uint32_t field_7;       /* 7: varint, bit 6 */
    uint8_t presence_mask;  /* bit 7 reserved */
} mava_tum_subscriber_v6;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates bytes fields with `alloc_fn` if
 * the alias bit of `flags` is clear; the record owns those blocks, also after a failure. If the alias bit is set, bytes
 * fields point into `data`, which must outlive them. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_subscriber_v6_decode_ext(mava_tum_subscriber_v6 *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. If the alias bit of `flags` is set, bytes fields are not copied: each is a segment of
 * its own. Returns the size needed in bytes. If it is above `length`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t mava_tum_subscriber_v6_encode_ext(const mava_tum_subscriber_v6 *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`, also bytes that `source` aliases: free the copy with the alias bit clear. Returns MAVA_TUM_OK, or
 * MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent, all others are copied. */
MAVA_TUM_API int32_t mava_tum_subscriber_v6_duplicate(mava_tum_subscriber_v6 *destination,
    const mava_tum_subscriber_v6 *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the bytes fields of `record` with `release_fn` if the alias bit of `flags` is clear; otherwise nothing.
 * Their pointers become null. `flags` must be those of the decode. The record itself, its scalars and its presence bits
 * do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_subscriber_v6_free_ext(
    mava_tum_subscriber_v6 *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- ppp_data -------------------------------------------------------------------------------------------- */

/* PPP access values. Nested in session_data. */
typedef struct mava_tum_ppp_data {
    uint32_t field_1;       /* 1: varint, bit 0 */
    uint32_t field_2;       /* 2: varint, bit 1 */
    uint32_t field_3;       /* 3: varint, bit 2 */
    uint32_t field_4;       /* 4: varint, bit 3 */
    mava_tum_bytes field_5; /* 5: bytes, bit 4 */
    uint32_t field_6;       /* 6: varint, bit 5 */
    uint8_t presence_mask;  /* bits 6-7 reserved */
} mava_tum_ppp_data;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates bytes fields with `alloc_fn` if
 * the alias bit of `flags` is clear; the record owns those blocks, also after a failure. If the alias bit is set, bytes
 * fields point into `data`, which must outlive them. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_ppp_data_decode_ext(mava_tum_ppp_data *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. If the alias bit of `flags` is set, bytes fields are not copied: each is a segment of
 * its own. Returns the size needed in bytes. If it is above `length`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t mava_tum_ppp_data_encode_ext(const mava_tum_ppp_data *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`, also bytes that `source` aliases: free the copy with the alias bit clear. Returns MAVA_TUM_OK, or
 * MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent, all others are copied. */
MAVA_TUM_API int32_t mava_tum_ppp_data_duplicate(
    mava_tum_ppp_data *destination, const mava_tum_ppp_data *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the bytes fields of `record` with `release_fn` if the alias bit of `flags` is clear; otherwise nothing.
 * Their pointers become null. `flags` must be those of the decode. The record itself, its scalars and its presence bits
 * do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_ppp_data_free_ext(
    mava_tum_ppp_data *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- l2tp_data ------------------------------------------------------------------------------------------- */

/* L2TP access values and tunnel end points. Nested in session_data. */
typedef struct mava_tum_l2tp_data {
    uint32_t field_1;       /* 1: varint, bit 0 */
    uint32_t field_2;       /* 2: fixed32, bit 1; IPv4 end point, network byte order */
    uint32_t field_3;       /* 3: fixed32, bit 2; IPv4 end point, network byte order */
    mava_tum_bytes field_4; /* 4: bytes, bit 3 */
    mava_tum_bytes field_5; /* 5: bytes, bit 4 */
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
    char *field_19;         /* 19: text, bit 18 */
    uint32_t presence_mask; /* bits 19-31 reserved */
} mava_tum_l2tp_data;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`, and bytes
 * fields if the alias bit of `flags` is clear; the record owns those blocks, also after a failure. If the alias bit is
 * set, bytes fields point into `data`, which must outlive them. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_l2tp_data_decode_ext(mava_tum_l2tp_data *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. If the alias bit of `flags` is set, bytes fields are not copied: each is a segment of
 * its own. Returns the size needed in bytes. If it is above `length`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t mava_tum_l2tp_data_encode_ext(const mava_tum_l2tp_data *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`, also bytes that `source` aliases: free the copy with the alias bit clear. Returns MAVA_TUM_OK, or
 * MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent, all others are copied. */
MAVA_TUM_API int32_t mava_tum_l2tp_data_duplicate(
    mava_tum_l2tp_data *destination, const mava_tum_l2tp_data *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`, and its bytes fields if the alias bit of `flags` is clear. Their
 * pointers become null. `flags` must be those of the decode. The record itself, its scalars and its presence bits do
 * not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_l2tp_data_free_ext(
    mava_tum_l2tp_data *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- vlan_info ------------------------------------------------------------------------------------------- */

/* VLAN access values. Nested in session_data. */
typedef struct mava_tum_vlan_info {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    uint8_t presence_mask; /* bits 2-7 reserved */
} mava_tum_vlan_info;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_vlan_info_decode_ext(mava_tum_vlan_info *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_vlan_info_encode_ext(const mava_tum_vlan_info *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_vlan_info_duplicate(mava_tum_vlan_info *destination, const mava_tum_vlan_info *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_vlan_info_free_ext(mava_tum_vlan_info *record);

/* ---- session_data ---------------------------------------------------------------------------------------- */

/* Per-session values and access records. Nested in session_context. */
typedef struct mava_tum_session_data {
    uint32_t field_1;        /* 1: varint, bit 0 */
    uint64_t field_2;        /* 2: 64-bit varint, bit 1 */
    mava_tum_ppp_data ppp;   /* 3: record, bit 2 */
    mava_tum_l2tp_data l2tp; /* 4: record, bit 3 */
    char *field_5;           /* 5: text, bit 4 */
    mava_tum_bytes field_6;  /* 6: bytes, bit 5 */
    char *field_7;           /* 7: text, bit 6 */
    char *field_8;           /* 8: text, bit 7 */
    uint32_t field_9;        /* 9: varint, bit 8 */
    mava_tum_vlan_info vlan; /* 10: record, bit 9 */
    uint32_t field_11;       /* 11: varint, bit 10 */
    uint16_t presence_mask;  /* bits 11-15 reserved */
} mava_tum_session_data;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`, and bytes
 * fields if the alias bit of `flags` is clear; the record owns those blocks, also after a failure. If the alias bit is
 * set, bytes fields point into `data`, which must outlive them. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_session_data_decode_ext(mava_tum_session_data *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. If the alias bit of `flags` is set, bytes fields are not copied: each is a segment of
 * its own. Returns the size needed in bytes. If it is above `length`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t mava_tum_session_data_encode_ext(const mava_tum_session_data *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`, also bytes that `source` aliases: free the copy with the alias bit clear. Returns MAVA_TUM_OK, or
 * MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent, all others are copied. */
MAVA_TUM_API int32_t mava_tum_session_data_duplicate(mava_tum_session_data *destination,
    const mava_tum_session_data *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`, and its bytes fields if the alias bit of `flags` is clear. Their
 * pointers become null. `flags` must be those of the decode. The record itself, its scalars and its presence bits do
 * not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_session_data_free_ext(
    mava_tum_session_data *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

#ifdef __cplusplus
}
#endif

#endif
