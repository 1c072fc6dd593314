/* The reconciliation of two planes: start, session states, replay, complete.
 *
 * Result codes, the alias bit, callbacks and ownership are the same for all messages: codec_contract.h. */
#ifndef MAVA_TUM_RECONCILIATION_H
#define MAVA_TUM_RECONCILIATION_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "mava_tum/codec_contract.h"
#include "mava_tum/session_messages.h"
#include "mava_tum/statistics.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- rec_start_req --------------------------------------------------------------------------------------- */

/* Opens a reconciliation run. */
typedef struct mava_tum_rec_start_req {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    uint32_t field_3;      /* 3: varint, bit 2 */
    char *field_4;         /* 4: text, bit 3 */
    uint8_t presence_mask; /* bits 4-7 reserved */
} mava_tum_rec_start_req;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`; the record
 * owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_rec_start_req_decode_ext(mava_tum_rec_start_req *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_rec_start_req_encode_ext(const mava_tum_rec_start_req *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_rec_start_req_duplicate(mava_tum_rec_start_req *destination,
    const mava_tum_rec_start_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`. Their pointers become null. `flags` is ignored. The record itself,
 * its scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_rec_start_req_free_ext(
    mava_tum_rec_start_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- rec_complete_req ------------------------------------------------------------------------------------ */

/* Closes a reconciliation run. */
typedef struct mava_tum_rec_complete_req {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint32_t field_2;      /* 2: varint, bit 1 */
    uint32_t field_3;      /* 3: varint, bit 2 */
    char *field_4;         /* 4: text, bit 3 */
    uint8_t presence_mask; /* bits 4-7 reserved */
} mava_tum_rec_complete_req;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`; the record
 * owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_rec_complete_req_decode_ext(mava_tum_rec_complete_req *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_rec_complete_req_encode_ext(const mava_tum_rec_complete_req *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_rec_complete_req_duplicate(mava_tum_rec_complete_req *destination,
    const mava_tum_rec_complete_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`. Their pointers become null. `flags` is ignored. The record itself,
 * its scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_rec_complete_req_free_ext(
    mava_tum_rec_complete_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- rec_resp -------------------------------------------------------------------------------------------- */

/* Answers rec_start_req and rec_complete_req. */
typedef struct mava_tum_rec_resp {
    uint32_t field_1;      /* 1: varint, bit 0 */
    char *field_2;         /* 2: text, bit 1 */
    uint32_t field_3;      /* 3: varint, bit 2 */
    uint8_t presence_mask; /* bits 3-7 reserved */
} mava_tum_rec_resp;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts with `alloc_fn`; the record
 * owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_rec_resp_decode_ext(mava_tum_rec_resp *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_rec_resp_encode_ext(const mava_tum_rec_resp *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_rec_resp_duplicate(
    mava_tum_rec_resp *destination, const mava_tum_rec_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts of `record` with `release_fn`. Their pointers become null. `flags` is ignored. The record itself,
 * its scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_rec_resp_free_ext(
    mava_tum_rec_resp *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- rec_session_state ----------------------------------------------------------------------------------- */

/* The state of one session. An element of rec_sess_req and rec_sess_resp. */
typedef struct mava_tum_rec_session_state {
    uint32_t field_1;      /* 1: varint, bit 0 */
    uint64_t field_2;      /* 2: 64-bit varint, bit 1 */
    uint32_t field_3;      /* 3: varint, bit 2 */
    uint8_t presence_mask; /* bits 3-7 reserved */
} mava_tum_rec_session_state;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates nothing. Returns MAVA_TUM_OK,
 * MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE or MAVA_TUM_WRONG_WIRE_TYPE. */
MAVA_TUM_API int32_t mava_tum_rec_session_state_decode_ext(
    mava_tum_rec_session_state *record, const uint8_t *data, uint64_t length);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_rec_session_state_encode_ext(const mava_tum_rec_session_state *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies every field of `source` and its presence bit into `destination`; reserved bits of `destination` are not
 * modified. `alloc_fn` and `alloc_ctx` are ignored: the record owns no memory. Returns MAVA_TUM_OK. */
MAVA_TUM_API int32_t mava_tum_rec_session_state_duplicate(mava_tum_rec_session_state *destination,
    const mava_tum_rec_session_state *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Does nothing: the record owns no memory. Every argument is ignored and may be null. */
MAVA_TUM_API void mava_tum_rec_session_state_free_ext(
    mava_tum_rec_session_state *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- rec_sess_req ---------------------------------------------------------------------------------------- */

/* Asks for, or announces, the states of a batch of sessions. */
typedef struct mava_tum_rec_sess_req {
    uint32_t field_1;                    /* 1: varint, bit 0 */
    uint32_t field_2;                    /* 2: varint, bit 1 */
    mava_tum_rec_session_state *field_3; /* 3: array of records, bit 2 */
    uint32_t field_3_count;              /* records in the array */
    char *field_4;                       /* 4: text, bit 3 */
    char *field_5;                       /* 5: text, bit 4 */
    uint32_t field_6;                    /* 6: varint, bit 5 */
    uint8_t presence_mask;               /* bits 6-7 reserved */
} mava_tum_rec_sess_req;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`;
 * the record owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns
 * MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_rec_sess_req_decode_ext(mava_tum_rec_sess_req *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_rec_sess_req_encode_ext(const mava_tum_rec_sess_req *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_rec_sess_req_duplicate(mava_tum_rec_sess_req *destination,
    const mava_tum_rec_sess_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`. Their pointers become null. `flags` is ignored. The
 * record itself, its scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_rec_sess_req_free_ext(
    mava_tum_rec_sess_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- rec_sess_resp --------------------------------------------------------------------------------------- */

/* Answers rec_sess_req with a batch of session states. */
typedef struct mava_tum_rec_sess_resp {
    uint32_t field_1;                    /* 1: varint, bit 0 */
    mava_tum_rec_session_state *field_2; /* 2: array of records, bit 1 */
    uint32_t field_2_count;              /* records in the array */
    uint32_t field_3;                    /* 3: varint, bit 2 */
    uint32_t field_4;                    /* 4: varint, bit 3 */
    uint8_t presence_mask;               /* bits 4-7 reserved */
} mava_tum_rec_sess_resp;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates arrays with `alloc_fn`; the
 * record owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns
 * MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_rec_sess_resp_decode_ext(mava_tum_rec_sess_resp *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_rec_sess_resp_encode_ext(const mava_tum_rec_sess_resp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_rec_sess_resp_duplicate(mava_tum_rec_sess_resp *destination,
    const mava_tum_rec_sess_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the arrays of `record` with `release_fn`. Their pointers become null. `flags` is ignored. The record itself,
 * its scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_rec_sess_resp_free_ext(
    mava_tum_rec_sess_resp *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- rec_sess_replay_req --------------------------------------------------------------------------------- */

/* Replays whole sessions. */
typedef struct mava_tum_rec_sess_replay_req {
    uint32_t field_1;                  /* 1: varint, bit 0 */
    uint32_t field_2;                  /* 2: varint, bit 1 */
    uint32_t field_3;                  /* 3: varint, bit 2 */
    mava_tum_session_context *field_4; /* 4: array of records, bit 3 */
    uint32_t field_4_count;            /* records in the array */
    uint32_t field_5;                  /* 5: varint, bit 4 */
    char *field_6;                     /* 6: text, bit 5 */
    uint8_t presence_mask;             /* bits 6-7 reserved */
} mava_tum_rec_sess_replay_req;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`,
 * and bytes fields if the alias bit of `flags` is clear; the record owns those blocks, also after a failure. If the
 * alias bit is set, bytes fields point into `data`, which must outlive them. Returns MAVA_TUM_OK, MAVA_TUM_TRUNCATED,
 * MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_req_decode_ext(mava_tum_rec_sess_replay_req *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. If the alias bit of `flags` is set, bytes fields are not copied: each is a segment of
 * its own. Returns the size needed in bytes. If it is above `length`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t mava_tum_rec_sess_replay_req_encode_ext(const mava_tum_rec_sess_replay_req *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`, also bytes that `source` aliases: free the copy with the alias bit clear. Returns MAVA_TUM_OK, or
 * MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent, all others are copied. */
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_req_duplicate(mava_tum_rec_sess_replay_req *destination,
    const mava_tum_rec_sess_replay_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`, and its bytes fields if the alias bit of `flags` is
 * clear. Their pointers become null. `flags` must be those of the decode. The record itself, its scalars and its
 * presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_rec_sess_replay_req_free_ext(
    mava_tum_rec_sess_replay_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);

/* ---- rec_sess_replay_fail -------------------------------------------------------------------------------- */

/* One session that could not be replayed. An element of rec_sess_replay_resp. */
typedef struct mava_tum_rec_sess_replay_fail {
    uint64_t field_1;                  /* 1: 64-bit varint, bit 0 */
    uint32_t field_2;                  /* 2: varint, bit 1 */
    mava_tum_subscriber_stats field_3; /* 3: record, bit 2 */
    uint8_t presence_mask;             /* bits 3-7 reserved */
} mava_tum_rec_sess_replay_fail;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`;
 * the record owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns
 * MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_fail_decode_ext(mava_tum_rec_sess_replay_fail *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_rec_sess_replay_fail_encode_ext(const mava_tum_rec_sess_replay_fail *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_fail_duplicate(mava_tum_rec_sess_replay_fail *destination,
    const mava_tum_rec_sess_replay_fail *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`. Their pointers become null. The record itself, its
 * scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_rec_sess_replay_fail_free_ext(
    mava_tum_rec_sess_replay_fail *record, mava_tum_release_fn release_fn, void *release_ctx);

/* ---- sess_svc_start -------------------------------------------------------------------------------------- */

/* Services started for one session. An element of rec_sess_replay_resp. */
typedef struct mava_tum_sess_svc_start {
    uint64_t field_1;       /* 1: 64-bit varint, bit 0 */
    uint32_t field_2;       /* 2: varint, bit 1 */
    uint32_t field_3;       /* 3: varint, bit 2 */
    uint32_t field_4;       /* 4: varint, bit 3 */
    char **field_5;         /* 5: array of texts, bit 4 */
    uint32_t field_5_count; /* texts in the array */
    uint8_t presence_mask;  /* bits 5-7 reserved */
} mava_tum_sess_svc_start;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`;
 * the record owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns
 * MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_sess_svc_start_decode_ext(mava_tum_sess_svc_start *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_sess_svc_start_encode_ext(const mava_tum_sess_svc_start *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_sess_svc_start_duplicate(mava_tum_sess_svc_start *destination,
    const mava_tum_sess_svc_start *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`. Their pointers become null. The record itself, its
 * scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_sess_svc_start_free_ext(
    mava_tum_sess_svc_start *record, mava_tum_release_fn release_fn, void *release_ctx);

/* ---- rec_sess_replay_resp -------------------------------------------------------------------------------- */

/* Answers a replay: what failed and which services started. */
typedef struct mava_tum_rec_sess_replay_resp {
    uint32_t field_1;                       /* 1: varint, bit 0 */
    mava_tum_rec_sess_replay_fail *field_2; /* 2: array of records, bit 1 */
    uint32_t field_2_count;                 /* records in the array */
    mava_tum_sess_svc_start *field_3;       /* 3: array of records, bit 2 */
    uint32_t field_3_count;                 /* records in the array */
    char *field_4;                          /* 4: text, bit 3 */
    uint32_t field_5;                       /* 5: varint, bit 4 */
    uint8_t presence_mask;                  /* bits 5-7 reserved */
} mava_tum_rec_sess_replay_resp;

/* Decodes the `length` bytes at `data` into `record`, which is reset first. Allocates texts and arrays with `alloc_fn`;
 * the record owns those blocks, also after a failure. `flags` is ignored: the message holds no bytes field. Returns
 * MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE or MAVA_TUM_NO_MEMORY. */
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_resp_decode_ext(mava_tum_rec_sess_replay_resp *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

/* Encodes `record` into `buffer` (capacity `length` bytes; may be null if 0). Allocates nothing. `segments` and
 * `segment_count` may be null. Returns the size needed in bytes. If it is above `length`, the output is truncated: do
 * not send it. */
MAVA_TUM_API uint64_t mava_tum_rec_sess_replay_resp_encode_ext(const mava_tum_rec_sess_replay_resp *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);

/* Copies `source` into `destination`, whose pointers are overwritten and not released. Every block is copied with
 * `alloc_fn`. Returns MAVA_TUM_OK, or MAVA_TUM_NO_MEMORY if an allocation fails: its field is then empty and absent,
 * all others are copied. */
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_resp_duplicate(mava_tum_rec_sess_replay_resp *destination,
    const mava_tum_rec_sess_replay_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);

/* Releases the texts and arrays of `record` with `release_fn`. Their pointers become null. The record itself, its
 * scalars and its presence bits do not change. A second call does nothing. */
MAVA_TUM_API void mava_tum_rec_sess_replay_resp_free_ext(
    mava_tum_rec_sess_replay_resp *record, mava_tum_release_fn release_fn, void *release_ctx);

#ifdef __cplusplus
}
#endif

#endif
