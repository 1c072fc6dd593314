/* The reconciliation of redundancy groups and the replay of their data.
 *
 * Result codes, the alias bit, callbacks and ownership are the same for all messages: codec_contract.h. */
#ifndef MAVA_TUM_REDUNDANCY_GROUP_H
#define MAVA_TUM_REDUNDANCY_GROUP_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "mava_tum/codec_contract.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- srg_group_rec_start_req ----------------------------------------------------------------------------- */

/* Opens the reconciliation of a redundancy group. */
typedef struct mava_tum_srg_group_rec_start_req {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    uint32_t field_3;      /* 3: varint, bit 2 */
    uint8_t presence_mask; /* bits 3-7 reserved */
} mava_tum_srg_group_rec_start_req;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_srg_group_rec_start_req_decode_ext(
    mava_tum_srg_group_rec_start_req *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_srg_group_rec_start_req_encode_ext(const mava_tum_srg_group_rec_start_req *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_srg_group_rec_start_req_duplicate(
    mava_tum_srg_group_rec_start_req *destination, const mava_tum_srg_group_rec_start_req *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_srg_group_rec_start_req_free_ext(mava_tum_srg_group_rec_start_req *record);

/* ---- srg_group_rec_resp ---------------------------------------------------------------------------------- */

/* Answers srg_group_rec_start_req and srg_group_rec_complete_req. */
typedef struct mava_tum_srg_group_rec_resp {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    uint8_t presence_mask; /* bits 2-7 reserved */
} mava_tum_srg_group_rec_resp;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_srg_group_rec_resp_decode_ext(
    mava_tum_srg_group_rec_resp *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_srg_group_rec_resp_encode_ext(const mava_tum_srg_group_rec_resp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_srg_group_rec_resp_duplicate(
    mava_tum_srg_group_rec_resp *destination, const mava_tum_srg_group_rec_resp *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_srg_group_rec_resp_free_ext(mava_tum_srg_group_rec_resp *record);

/* ---- srg_group_rec_complete_req -------------------------------------------------------------------------- */

/* Closes the reconciliation of a redundancy group. */
typedef struct mava_tum_srg_group_rec_complete_req {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    uint32_t field_3;      /* 3: varint, bit 2 */
    uint8_t presence_mask; /* bits 3-7 reserved */
} mava_tum_srg_group_rec_complete_req;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_srg_group_rec_complete_req_decode_ext(
    mava_tum_srg_group_rec_complete_req *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_srg_group_rec_complete_req_encode_ext(const mava_tum_srg_group_rec_complete_req *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_srg_group_rec_complete_req_duplicate(
    mava_tum_srg_group_rec_complete_req *destination, const mava_tum_srg_group_rec_complete_req *source);

/* Does nothing: the record owns no memory. `record` may be null. */
MAVA_TUM_API void mava_tum_srg_group_rec_complete_req_free_ext(mava_tum_srg_group_rec_complete_req *record);

/* ---- srg_group_data -------------------------------------------------------------------------------------- */

/* One group's data. An element of the two replay messages. */
typedef struct mava_tum_srg_group_data {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    uint32_t field_3;      /* 3: varint, bit 2 */
    uint32_t field_4;      /* 4: varint, bit 3 */
    char *field_5;         /* 5: text, bit 4 */
    uint8_t presence_mask; /* bits 5-7 reserved */
} mava_tum_srg_group_data;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`; the record
 * owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_srg_group_data_decode_ext(mava_tum_srg_group_data *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_srg_group_data_encode_ext(const mava_tum_srg_group_data *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_srg_group_data_duplicate(mava_tum_srg_group_data *destination,
    const mava_tum_srg_group_data *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`. Their pointers become null. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_srg_group_data_free_ext(
    mava_tum_srg_group_data *record, mava_tum_release_fn release_fn, void *release_ctx);

/* ---- srg_group_rec_replay_req ---------------------------------------------------------------------------- */

/* Replays the data of redundancy groups. */
typedef struct mava_tum_srg_group_rec_replay_req {
    uint32_t field_1;                 /* 1: varint, bit 0 */
    uint32_t field_2;                 /* 2: varint, bit 1 */
    mava_tum_srg_group_data *field_3; /* 3: array of records, bit 2 */
    uint32_t field_3_count;           /* records in the array */
    uint32_t field_4;                 /* 4: varint, bit 3 */
    uint8_t presence_mask;            /* bits 4-7 reserved */
} mava_tum_srg_group_rec_replay_req;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`;
 * the record owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns
 * MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_srg_group_rec_replay_req_decode_ext(mava_tum_srg_group_rec_replay_req *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_srg_group_rec_replay_req_encode_ext(const mava_tum_srg_group_rec_replay_req *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_srg_group_rec_replay_req_duplicate(mava_tum_srg_group_rec_replay_req *destination,
    const mava_tum_srg_group_rec_replay_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`. Their pointers become null. The record itself, its
 * scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_srg_group_rec_replay_req_free_ext(
    mava_tum_srg_group_rec_replay_req *record, mava_tum_release_fn release_fn, void *release_ctx);

/* ---- srg_group_rec_replay_resp --------------------------------------------------------------------------- */

/* Answers a replay with two lists of group data. */
typedef struct mava_tum_srg_group_rec_replay_resp {
    uint32_t field_1;                 /* 1: varint, bit 0 */
    mava_tum_srg_group_data *field_2; /* 2: array of records, bit 1 */
    uint32_t field_2_count;           /* records in the array */
    mava_tum_srg_group_data *field_3; /* 3: array of records, bit 2 */
    uint32_t field_3_count;           /* records in the array */
    uint32_t field_4;                 /* 4: varint, bit 3 */
    uint8_t presence_mask;            /* bits 4-7 reserved */
} mava_tum_srg_group_rec_replay_resp;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`;
 * the record owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns
 * MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_srg_group_rec_replay_resp_decode_ext(mava_tum_srg_group_rec_replay_resp *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_srg_group_rec_replay_resp_encode_ext(const mava_tum_srg_group_rec_replay_resp *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_srg_group_rec_replay_resp_duplicate(mava_tum_srg_group_rec_replay_resp *destination,
    const mava_tum_srg_group_rec_replay_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`. Their pointers become null. The record itself, its
 * scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_srg_group_rec_replay_resp_free_ext(
    mava_tum_srg_group_rec_replay_resp *record, mava_tum_release_fn release_fn, void *release_ctx);

#ifdef __cplusplus
}
#endif

#endif
