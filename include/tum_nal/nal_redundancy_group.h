/* Application records and adapters of the reconciliation of redundancy groups.
 *
 * Counts, texts, short buffers and malformed input are the same for all adapters: adapter_contract.h. */
#ifndef TUM_NAL_NAL_REDUNDANCY_GROUP_H
#define TUM_NAL_NAL_REDUNDANCY_GROUP_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "tum_nal/adapter_contract.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Slots of each list of group data. */
enum { TUM_NAL_SRG_GROUPS = 15 };

/* Bytes of the largest message that each encode adapter below makes. */
enum {
    TUM_NAL_SRG_GROUP_REC_START_REQ_MAX_SIZE = 16,    /* start request */
    TUM_NAL_SRG_GROUP_REC_RESP_MAX_SIZE = 12,         /* answer to a start or a complete request */
    TUM_NAL_SRG_GROUP_REC_COMPLETE_REQ_MAX_SIZE = 16, /* complete request */
    TUM_NAL_SRG_GROUP_REC_REPLAY_REQ_MAX_SIZE = 1393, /* replay request */
    TUM_NAL_SRG_GROUP_REC_REPLAY_RESP_MAX_SIZE = 2772 /* its answer */
};

/* Opens a run. All three fields are always sent, zeros too. */
typedef struct tum_nal_data_srg_group_rec_start_req {
    uint32_t field_1; /* 1: always */
    uint16_t field_2; /* 2: always */
    uint32_t field_3; /* 3: always */
} tum_nal_data_srg_group_rec_start_req;

/* Answers a start or a complete request. Fields are sent when not zero. */
typedef struct tum_nal_data_srg_group_rec_resp {
    uint32_t field_1; /* 1: non-zero */
    uint32_t field_2; /* 2: non-zero */
} tum_nal_data_srg_group_rec_resp;

/* Closes a run. Fields are sent when not zero. */
typedef struct tum_nal_data_srg_group_rec_complete_req {
    uint32_t field_1; /* 1: non-zero */
    uint32_t field_2; /* 2: non-zero */
    uint16_t field_3; /* 3: non-zero */
} tum_nal_data_srg_group_rec_complete_req;

/* The data of one group. Fields are sent when not zero or empty. */
typedef struct tum_nal_data_group_data {
    uint32_t field_1; /* 1: non-zero */
    uint32_t field_2; /* 2: non-zero */
    uint32_t field_3; /* 3: non-zero */
    uint32_t field_4; /* 4: non-zero */
    char field_5[65]; /* 5: not empty */
} tum_nal_data_group_data;

/* Replays the data of groups. Fields are sent when not zero. */
typedef struct tum_nal_data_srg_group_rec_replay_req {
    uint32_t field_1;                                    /* 1: non-zero */
    uint16_t field_2;                                    /* 2: non-zero */
    uint32_t field_3_count;                              /* used elements of `field_3` */
    tum_nal_data_group_data field_3[TUM_NAL_SRG_GROUPS]; /* 3: as many as the count says */
    uint8_t field_4;                                     /* 4: non-zero */
} tum_nal_data_srg_group_rec_replay_req;

/* Answers a replay with two lists of group data. Fields are sent when not zero. */
typedef struct tum_nal_data_srg_group_rec_replay_resp {
    uint32_t field_1;                                    /* 1: non-zero */
    uint32_t field_2_count;                              /* used elements of `field_2` */
    tum_nal_data_group_data field_2[TUM_NAL_SRG_GROUPS]; /* 2: as many as the count says */
    uint32_t field_3_count;                              /* used elements of `field_3` */
    tum_nal_data_group_data field_3[TUM_NAL_SRG_GROUPS]; /* 3: as many as the count says */
    uint32_t field_4;                                    /* 4: non-zero */
} tum_nal_data_srg_group_rec_replay_resp;

/* Encodes one srg_group_rec_start_req message into `buffer` (`capacity` bytes; may be null if 0). Returns the size
 * needed in bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_start_req(
    const tum_nal_data_srg_group_rec_start_req *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the srg_group_rec_start_req message in the `length` bytes at `data` into `record`, which is overwritten
 * completely. Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_srg_group_rec_start_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_start_req *record);

/* Encodes one srg_group_rec_resp message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed in
 * bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_resp(
    const tum_nal_data_srg_group_rec_resp *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the srg_group_rec_resp message in the `length` bytes at `data` into `record`, which is overwritten
 * completely. Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_srg_group_rec_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_resp *record);

/* Encodes one srg_group_rec_complete_req message into `buffer` (`capacity` bytes; may be null if 0). Returns the size
 * needed in bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_complete_req(
    const tum_nal_data_srg_group_rec_complete_req *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the srg_group_rec_complete_req message in the `length` bytes at `data` into `record`, which is overwritten
 * completely. Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_srg_group_rec_complete_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_complete_req *record);

/* Encodes one srg_group_rec_replay_req message into `buffer` (`capacity` bytes; may be null if 0). Returns the size
 * needed in bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_replay_req(
    const tum_nal_data_srg_group_rec_replay_req *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the srg_group_rec_replay_req message in the `length` bytes at `data` into `record`, which is overwritten
 * completely. Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_replay_req *record);

/* Encodes one srg_group_rec_replay_resp message into `buffer` (`capacity` bytes; may be null if 0). Returns the size
 * needed in bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_replay_resp(
    const tum_nal_data_srg_group_rec_replay_resp *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the srg_group_rec_replay_resp message in the `length` bytes at `data` into `record`, which is overwritten
 * completely. Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_srg_group_rec_replay_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_replay_resp *record);

#ifdef __cplusplus
}
#endif

#endif
