/* Application records and adapters of the messages about a session: its removal, the answer to an operation.
 *
 * Counts, texts, short buffers and malformed input are the same for all adapters: adapter_contract.h. */
#ifndef TUM_NAL_NAL_SESSION_H
#define TUM_NAL_NAL_SESSION_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "tum_nal/adapter_contract.h"
#include "tum_nal/nal_statistics.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The largest `field_1` of a session_delete that is sent. */
enum { TUM_NAL_SESSION_DELETE_MAX_FIELD_1 = 5 };

/* Bytes of the largest message that each encode adapter below makes. */
enum { TUM_NAL_SESSION_DELETE_MAX_SIZE = 29, TUM_NAL_SESS_OPER_RESP_MAX_SIZE = 2072 };

/* A request to remove a session. Sent: `field_1` when it is at most 5, 0 included (6 and more are left out, and arrive
 * as 0); the others when not zero. */
typedef struct tum_nal_data_session_delete {
    uint32_t field_1; /* 1: at most TUM_NAL_SESSION_DELETE_MAX_FIELD_1 */
    uint32_t field_2; /* 2: non-zero */
    uint16_t field_3; /* 3: non-zero */
    uint64_t field_4; /* 4: non-zero */
    uint32_t field_5; /* 5: non-zero */
} tum_nal_data_session_delete;

/* The answer to an operation on a session. Sent: `field_1` and the statistics always (statistics that are all zero as
 * an empty record), the others when not zero or empty. The message's field 10 (bytes) has no member here. */
typedef struct tum_nal_data_sess_oper_resp {
    uint32_t field_1;                      /* 1: always */
    uint32_t field_2;                      /* 2: non-zero */
    uint32_t field_3;                      /* 3: non-zero */
    uint64_t field_4;                      /* 4: non-zero */
    uint32_t field_5;                      /* 5: non-zero */
    char field_6[65];                      /* 6: not empty */
    char field_7[65];                      /* 7: not empty */
    char field_8[65];                      /* 8: not empty */
    tum_nal_data_subscriber_stats field_9; /* 9: always */
} tum_nal_data_sess_oper_resp;

/* Encodes one session_delete message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed in
 * bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_session_delete(
    const tum_nal_data_session_delete *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the session_delete message in the `length` bytes at `data` into `record`, which is overwritten completely.
 * Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_session_delete(
    const uint8_t *data, uint32_t length, tum_nal_data_session_delete *record);

/* Encodes one sess_oper_resp message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed in
 * bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_sess_oper_resp(
    const tum_nal_data_sess_oper_resp *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the sess_oper_resp message in the `length` bytes at `data` into `record`, which is overwritten completely.
 * Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_sess_oper_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_sess_oper_resp *record);

#ifdef __cplusplus
}
#endif

#endif
