/* Application records and adapters of subscriber routes.
 *
 * Counts, texts, short buffers and malformed input are the same for all adapters: adapter_contract.h. */
#ifndef TUM_NAL_NAL_ROUTES_H
#define TUM_NAL_NAL_ROUTES_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "tum_nal/adapter_contract.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Slots of a route batch. */
enum { TUM_NAL_SUB_ROUTE_IPV4_ROUTES = 50, TUM_NAL_SUB_ROUTE_IPV6_ROUTES = 50 };

/* Bytes of the largest message that each encode adapter below makes. */
enum { TUM_NAL_SUB_ROUTE_MAX_SIZE = 18722, TUM_NAL_SUBSCRIBER_ROUTE_RESP_MAX_SIZE = 144 };

/* One IPv4 route. Sent: `field_1` always, all others when not zero or empty.
 * Texts are received up to 32, 32 and 64 characters, although their arrays hold 35, 35 and 67.
 * Not symmetric: a non-zero `field_8` is sent in the place of `field_7`; a received field 8 arrives in `field_8`. */
typedef struct tum_nal_data_ipv4_route {
    uint32_t field_1; /* 1: always */
    char field_2[36]; /* 2: not empty */
    uint32_t field_3; /* 3: non-zero; IPv4 address, host byte order */
    uint8_t field_4;  /* 4: non-zero */
    uint32_t field_5; /* 5: non-zero; IPv4 address, host byte order */
    char field_6[36]; /* 6: not empty */
    uint32_t field_7; /* 7: non-zero, and `field_8` zero */
    uint32_t field_8; /* 7: non-zero; received from field 8 */
    char field_9[68]; /* 9: not empty */
} tum_nal_data_ipv4_route;

/* One IPv6 route. As the IPv4 route, but `field_8` is sent as itself. */
typedef struct tum_nal_data_ipv6_route {
    uint32_t field_1;    /* 1: always */
    char field_2[36];    /* 2: not empty */
    uint8_t field_3[16]; /* 3: not all zero; IPv6 address */
    uint8_t field_4;     /* 4: non-zero */
    uint8_t field_5[16]; /* 5: not all zero; IPv6 address */
    char field_6[36];    /* 6: not empty */
    uint32_t field_7;    /* 7: non-zero */
    uint32_t field_8;    /* 8: non-zero */
    char field_9[68];    /* 9: not empty */
} tum_nal_data_ipv6_route;

/* A batch of routes. `field_1`, `field_2`, `field_3` and `field_6` are always sent, also when zero. */
typedef struct tum_nal_data_sub_route {
    uint32_t field_1;                                                   /* 1: always */
    uint16_t field_2;                                                   /* 2: always */
    uint32_t field_3;                                                   /* 3: always */
    uint8_t ipv4_route_count;                                           /* used elements of `ipv4_routes` */
    uint8_t ipv6_route_count;                                           /* used elements of `ipv6_routes` */
    tum_nal_data_ipv4_route ipv4_routes[TUM_NAL_SUB_ROUTE_IPV4_ROUTES]; /* 4: as many as the count says */
    tum_nal_data_ipv6_route ipv6_routes[TUM_NAL_SUB_ROUTE_IPV6_ROUTES]; /* 5: as many as the count says */
    uint32_t field_6;                                                   /* 6: always */
} tum_nal_data_sub_route;

/* The answer to a batch. Sent: the numbers always, the texts when not empty. */
typedef struct tum_nal_data_subscriber_route_resp {
    uint32_t field_1; /* 1: always */
    uint32_t field_2; /* 2: always */
    char field_3[65]; /* 3: not empty */
    char field_4[65]; /* 4: not empty */
} tum_nal_data_subscriber_route_resp;

/* Encodes a batch of routes as one sub_route message into `buffer` (`capacity` bytes; may be null if 0). Returns the
 * size needed in bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_sub_route(
    const tum_nal_data_sub_route *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the sub_route message in the `length` bytes at `data` into `record`, which is overwritten completely. Reports
 * nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_sub_route(
    const uint8_t *data, uint32_t length, tum_nal_data_sub_route *record);

/* Encodes one subscriber_route_resp message into `buffer` (`capacity` bytes; may be null if 0). Returns the size needed
 * in bytes. If it is above `capacity`, the output is truncated: do not send it. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_subscriber_route_resp(
    const tum_nal_data_subscriber_route_resp *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the subscriber_route_resp message in the `length` bytes at `data` into `record`, which is overwritten
 * completely. Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_subscriber_route_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_subscriber_route_resp *record);

#ifdef __cplusplus
}
#endif

#endif
