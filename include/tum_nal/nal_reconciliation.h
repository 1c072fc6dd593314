/* Application records and adapters of reconciliation: start, session states, replay, complete.
 *
 * Counts, texts, short buffers and malformed input are the same for all adapters: adapter_contract.h. */
#ifndef TUM_NAL_NAL_RECONCILIATION_H
#define TUM_NAL_NAL_RECONCILIATION_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "tum_nal/adapter_contract.h"
#include "tum_nal/nal_session_context.h"
#include "tum_nal/nal_statistics.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Slots. */
enum {
    TUM_NAL_REC_SESSION_STATES = 30, /* states of a batch */
    TUM_NAL_REC_REPLAY_SESSIONS = 1, /* sessions of a replay request */
    TUM_NAL_REC_REPLAY_FAILURES = 1, /* failures of its answer */
    TUM_NAL_REC_SERVICE_STARTS = 1,  /* service starts of its answer */
    TUM_NAL_REC_SERVICE_NAMES = 8    /* services of one start */
};

/* Bytes of the largest message that each encode adapter below makes. */
enum {
    TUM_NAL_REC_START_REQ_MAX_SIZE = 82,         /* start request */
    TUM_NAL_REC_START_RES_MAX_SIZE = 78,         /* its answer */
    TUM_NAL_REC_COMPLETE_REQ_MAX_SIZE = 82,      /* complete request */
    TUM_NAL_REC_COMPLETE_RES_MAX_SIZE = 78,      /* its answer */
    TUM_NAL_REC_SESS_REQ_MAX_SIZE = 892,         /* batch of session states */
    TUM_NAL_REC_SESS_RES_MAX_SIZE = 765,         /* its answer */
    TUM_NAL_REC_SESS_REPLAY_REQ_MAX_SIZE = 9295, /* replay request */
    TUM_NAL_REC_SESS_REPLAY_RESP_MAX_SIZE = 2497 /* its answer */
};

/* Opens a run. Sent: the numbers always, the text when not empty.
 * Not symmetric: a decode puts the message's field 3 into `field_1` and leaves `field_2` and `field_3` zero. */
typedef struct tum_nal_data_rec_start_req {
    uint32_t field_1; /* 1: always; received from field 3 */
    uint16_t field_2; /* 2: always; not received */
    uint32_t field_3; /* 3: always; received in `field_1` */
    char field_4[65]; /* 4: not empty */
} tum_nal_data_rec_start_req;

/* Closes a run. Sent: the numbers always, the text when not empty. */
typedef struct tum_nal_data_rec_complete_req {
    uint32_t field_1; /* 1: always */
    uint32_t field_2; /* 2: always */
    uint16_t field_3; /* 3: always */
    char field_4[65]; /* 4: not empty */
} tum_nal_data_rec_complete_req;

/* Answers a start or a complete request: both travel as one message, rec_resp, and the receiver knows from what it
 * asked which answer it holds. Sent: the numbers always, the text when not empty. */
typedef struct tum_nal_data_rec_res {
    uint32_t field_1; /* 1: always */
    char field_2[65]; /* 2: not empty */
    uint32_t field_3; /* 3: always */
} tum_nal_data_rec_res;

/* The state of one session. All fields are always sent. */
typedef struct tum_nal_data_session_state {
    uint32_t field_1; /* 1: always */
    uint64_t field_2; /* 2: always */
    uint32_t field_3; /* 3: always */
} tum_nal_data_session_state;

/* A batch of session states. Sent: the numbers always, the texts when not empty.
 * Not symmetric: `field_6` is never sent, only received. */
typedef struct tum_nal_data_rec_sess_req {
    uint32_t field_1;                                               /* 1: always */
    uint16_t field_2;                                               /* 2: always */
    uint32_t field_3_count;                                         /* used elements of `field_3` */
    tum_nal_data_session_state field_3[TUM_NAL_REC_SESSION_STATES]; /* 3: as many as the count says */
    char field_4[65];                                               /* 4: not empty */
    char field_5[65];                                               /* 5: not empty */
    uint8_t field_6;                                                /* 6: never; only received */
} tum_nal_data_rec_sess_req;

/* The answer, with a batch of session states. All fields are always sent. */
typedef struct tum_nal_data_rec_sess_res {
    uint32_t field_1;                                               /* 1: always */
    uint32_t field_2_count;                                         /* used elements of `field_2` */
    tum_nal_data_session_state field_2[TUM_NAL_REC_SESSION_STATES]; /* 2: as many as the count says */
    uint8_t field_3;                                                /* 3: always */
    uint32_t field_4;                                               /* 4: always */
} tum_nal_data_rec_sess_res;

/* A replay request as the encode adapter reads it. Sent: the numbers always, the text when not empty.
 * The decode adapter writes another layout, of equal size: the type below. */
typedef struct tum_nal_data_rec_sess_replay_req_encode {
    char field_6[65];                                                  /* 6: not empty */
    uint32_t field_3;                                                  /* 3: always */
    uint32_t field_4_count;                                            /* used elements of `field_4` */
    uint32_t field_1;                                                  /* 1: always */
    uint16_t field_2;                                                  /* 2: always */
    uint8_t field_5;                                                   /* 5: always */
    tum_nal_data_session_context field_4[TUM_NAL_REC_REPLAY_SESSIONS]; /* 4: as many as the count says */
} tum_nal_data_rec_sess_replay_req_encode;

/* A replay request as the decode adapter writes it. */
typedef struct tum_nal_data_rec_sess_replay_req_decode {
    uint32_t field_1;                                                  /* 1 */
    uint16_t field_2;                                                  /* 2 */
    uint32_t field_4_count;                                            /* used elements of `field_4` */
    uint32_t field_3;                                                  /* 3 */
    tum_nal_data_session_context field_4[TUM_NAL_REC_REPLAY_SESSIONS]; /* 4 */
    uint8_t field_5;                                                   /* 5 */
    char field_6[65];                                                  /* 6 */
} tum_nal_data_rec_sess_replay_req_decode;

/* A session that could not be replayed. All fields are always sent; statistics that are all zero as an empty record. */
typedef struct tum_nal_data_replay_failure {
    uint64_t field_1;                      /* 1: always */
    uint32_t field_2;                      /* 2: always */
    tum_nal_data_subscriber_stats field_3; /* 3: always */
} tum_nal_data_replay_failure;

/* The services started for a session. The numbers are always sent; `field_5_count` texts are, empty ones too. */
typedef struct tum_nal_data_service_start {
    uint64_t field_1;                            /* 1: always */
    uint32_t field_2;                            /* 2: always */
    uint32_t field_3;                            /* 3: always */
    uint32_t field_4;                            /* 4: always */
    uint8_t field_5_count;                       /* used elements of `field_5` */
    char field_5[TUM_NAL_REC_SERVICE_NAMES][65]; /* 5: as many as the count says, empty ones too */
} tum_nal_data_service_start;

/* Answers a replay request. Sent: `field_1` and `field_5` always, the text when not empty. */
typedef struct tum_nal_data_rec_sess_replay_resp {
    uint32_t field_1;                                                 /* 1: always */
    uint32_t field_2_count;                                           /* used elements of `field_2` */
    uint32_t field_3_count;                                           /* used elements of `field_3` */
    tum_nal_data_replay_failure field_2[TUM_NAL_REC_REPLAY_FAILURES]; /* 2: as many as the count says */
    tum_nal_data_service_start field_3[TUM_NAL_REC_SERVICE_STARTS];   /* 3: as many as the count says */
    char field_4[65];                                                 /* 4: not empty */
    uint32_t field_5;                                                 /* 5: always */
} tum_nal_data_rec_sess_replay_resp;

/* Encodes one rec_start_req message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed in
 * bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_start_req(
    const tum_nal_data_rec_start_req *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the rec_start_req message in the `length` bytes at `data` into `record`, which is overwritten completely. The
 * message's field 3 arrives in `field_1`; its fields 1 and 2 are dropped. Reports nothing: of a malformed message, the
 * fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_start_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_start_req *record);

/* Encodes one rec_resp message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed in bytes. If
 * it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_start_res(
    const tum_nal_data_rec_res *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the rec_resp message in the `length` bytes at `data` into `record`, which is overwritten completely. Reports
 * nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_start_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_res *record);

/* Encodes one rec_complete_req message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed in
 * bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_complete_req(
    const tum_nal_data_rec_complete_req *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the rec_complete_req message in the `length` bytes at `data` into `record`, which is overwritten completely.
 * Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_complete_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_complete_req *record);

/* Encodes one rec_resp message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed in bytes. If
 * it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_complete_res(
    const tum_nal_data_rec_res *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the rec_resp message in the `length` bytes at `data` into `record`, which is overwritten completely. Reports
 * nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_complete_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_res *record);

/* Encodes one rec_sess_req message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed in
 * bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_sess_req(
    const tum_nal_data_rec_sess_req *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the rec_sess_req message in the `length` bytes at `data` into `record`, which is overwritten completely.
 * Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_sess_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_req *record);

/* Encodes one rec_sess_resp message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed in
 * bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_sess_res(
    const tum_nal_data_rec_sess_res *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the rec_sess_resp message in the `length` bytes at `data` into `record`, which is overwritten completely.
 * Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_sess_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_res *record);

/* Encodes one rec_sess_replay_req message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed
 * in bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_sess_replay_req(
    const tum_nal_data_rec_sess_replay_req_encode *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the rec_sess_replay_req message in the `length` bytes at `data` into `record`, which is overwritten
 * completely. Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_sess_replay_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_replay_req_decode *record);

/* Encodes one rec_sess_replay_resp message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed
 * in bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_sess_replay_resp(
    const tum_nal_data_rec_sess_replay_resp *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the rec_sess_replay_resp message in the `length` bytes at `data` into `record`, which is overwritten
 * completely. Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_sess_replay_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_replay_resp *record);

#ifdef __cplusplus
}
#endif

#endif
