#ifndef MAVA_TUM_H
#define MAVA_TUM_H 
#ifndef MAVA_TUM_CODEC_CONTRACT_H
#define MAVA_TUM_CODEC_CONTRACT_H 
#include <stdint.h>
#if defined(__GNUC__)
#define MAVA_TUM_API __attribute__((visibility("default")))
#else
#define MAVA_TUM_API 
#endif
#ifdef __cplusplus
extern "C" {
#endif
enum {
    MAVA_TUM_OK = 0,
    MAVA_TUM_TRUNCATED = -1,
    MAVA_TUM_UNSUPPORTED_WIRE_TYPE = -2,
    MAVA_TUM_WRONG_WIRE_TYPE = -3,
    MAVA_TUM_NO_MEMORY = -4
};
enum { MAVA_TUM_ALIAS = 1 };
typedef void *(*mava_tum_alloc_fn)(uint64_t size, void *alloc_ctx);
typedef void (*mava_tum_release_fn)(void *pointer, void *release_ctx);
typedef struct mava_tum_bytes {
    uint8_t *data;
    uint64_t length;
} mava_tum_bytes;
typedef struct mava_tum_segment {
    const uint8_t *data;
    uint64_t length;
} mava_tum_segment;
#ifdef __cplusplus
}
#endif
#endif
#ifndef MAVA_TUM_FEATURE_RECORDS_H
#define MAVA_TUM_FEATURE_RECORDS_H 
#ifdef __cplusplus
extern "C" {
#endif
typedef struct mava_tum_subscriber_qos {
    uint32_t field_1;
    uint32_t field_2;
    char *field_3;
    char *field_4;
    char *field_5;
    uint32_t field_6;
    uint32_t field_7;
    uint32_t field_8;
    char *field_9;
    char *field_10;
    char *field_11;
    char *field_12;
    uint16_t presence_mask;
} mava_tum_subscriber_qos;
MAVA_TUM_API int32_t mava_tum_subscriber_qos_decode_ext(
    mava_tum_subscriber_qos *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API uint64_t mava_tum_subscriber_qos_encode_ext(const mava_tum_subscriber_qos *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_qos_duplicate(mava_tum_subscriber_qos *destination,
    const mava_tum_subscriber_qos *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_subscriber_qos_free_ext(
    mava_tum_subscriber_qos *record, mava_tum_release_fn release_fn, void *release_ctx);
typedef struct mava_tum_subscriber_acl {
    uint32_t field_1;
    char *field_2;
    char *field_3;
    char *field_4;
    char *field_5;
    uint8_t presence_mask;
} mava_tum_subscriber_acl;
MAVA_TUM_API int32_t mava_tum_subscriber_acl_decode_ext(
    mava_tum_subscriber_acl *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API uint64_t mava_tum_subscriber_acl_encode_ext(const mava_tum_subscriber_acl *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_acl_duplicate(mava_tum_subscriber_acl *destination,
    const mava_tum_subscriber_acl *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_subscriber_acl_free_ext(
    mava_tum_subscriber_acl *record, mava_tum_release_fn release_fn, void *release_ctx);
typedef struct mava_tum_subscriber_httpr {
    uint32_t field_1;
    char *field_2;
    uint8_t presence_mask;
} mava_tum_subscriber_httpr;
MAVA_TUM_API int32_t mava_tum_subscriber_httpr_decode_ext(mava_tum_subscriber_httpr *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API uint64_t mava_tum_subscriber_httpr_encode_ext(const mava_tum_subscriber_httpr *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_httpr_duplicate(mava_tum_subscriber_httpr *destination,
    const mava_tum_subscriber_httpr *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_subscriber_httpr_free_ext(
    mava_tum_subscriber_httpr *record, mava_tum_release_fn release_fn, void *release_ctx);
typedef struct mava_tum_subscriber_li {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    mava_tum_bytes field_4;
    uint32_t field_5;
    uint32_t field_6;
    uint32_t field_7;
    mava_tum_bytes field_8;
    uint8_t presence_mask;
} mava_tum_subscriber_li;
MAVA_TUM_API int32_t mava_tum_subscriber_li_decode_ext(mava_tum_subscriber_li *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_subscriber_li_encode_ext(const mava_tum_subscriber_li *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);
MAVA_TUM_API int32_t mava_tum_subscriber_li_duplicate(mava_tum_subscriber_li *destination,
    const mava_tum_subscriber_li *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_subscriber_li_free_ext(
    mava_tum_subscriber_li *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_subscriber_urpf {
    uint32_t field_1;
    uint32_t field_2;
    uint8_t presence_mask;
} mava_tum_subscriber_urpf;
MAVA_TUM_API int32_t mava_tum_subscriber_urpf_decode_ext(
    mava_tum_subscriber_urpf *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_subscriber_urpf_encode_ext(const mava_tum_subscriber_urpf *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_urpf_duplicate(
    mava_tum_subscriber_urpf *destination, const mava_tum_subscriber_urpf *source);
MAVA_TUM_API void mava_tum_subscriber_urpf_free_ext(mava_tum_subscriber_urpf *record);
typedef struct mava_tum_subscriber_icmp {
    uint32_t field_1;
    uint8_t presence_mask;
} mava_tum_subscriber_icmp;
MAVA_TUM_API int32_t mava_tum_subscriber_icmp_decode_ext(
    mava_tum_subscriber_icmp *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_subscriber_icmp_encode_ext(const mava_tum_subscriber_icmp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_icmp_duplicate(
    mava_tum_subscriber_icmp *destination, const mava_tum_subscriber_icmp *source);
MAVA_TUM_API void mava_tum_subscriber_icmp_free_ext(mava_tum_subscriber_icmp *record);
typedef struct mava_tum_subscriber_mtu {
    uint32_t field_1;
    uint8_t presence_mask;
} mava_tum_subscriber_mtu;
MAVA_TUM_API int32_t mava_tum_subscriber_mtu_decode_ext(
    mava_tum_subscriber_mtu *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_subscriber_mtu_encode_ext(const mava_tum_subscriber_mtu *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_mtu_duplicate(
    mava_tum_subscriber_mtu *destination, const mava_tum_subscriber_mtu *source);
MAVA_TUM_API void mava_tum_subscriber_mtu_free_ext(mava_tum_subscriber_mtu *record);
typedef struct mava_tum_subscriber_acct {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint8_t presence_mask;
} mava_tum_subscriber_acct;
MAVA_TUM_API int32_t mava_tum_subscriber_acct_decode_ext(
    mava_tum_subscriber_acct *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_subscriber_acct_encode_ext(const mava_tum_subscriber_acct *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_acct_duplicate(
    mava_tum_subscriber_acct *destination, const mava_tum_subscriber_acct *source);
MAVA_TUM_API void mava_tum_subscriber_acct_free_ext(mava_tum_subscriber_acct *record);
typedef struct mava_tum_subscriber_route_ipv4 {
    uint32_t field_1;
    char *field_2;
    uint32_t field_3;
    uint32_t field_4;
    uint32_t field_5;
    char *field_6;
    uint32_t field_7;
    uint32_t field_8;
    char *field_9;
    uint16_t presence_mask;
} mava_tum_subscriber_route_ipv4;
MAVA_TUM_API int32_t mava_tum_subscriber_route_ipv4_decode_ext(mava_tum_subscriber_route_ipv4 *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API uint64_t mava_tum_subscriber_route_ipv4_encode_ext(const mava_tum_subscriber_route_ipv4 *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_route_ipv4_duplicate(mava_tum_subscriber_route_ipv4 *destination,
    const mava_tum_subscriber_route_ipv4 *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_subscriber_route_ipv4_free_ext(
    mava_tum_subscriber_route_ipv4 *record, mava_tum_release_fn release_fn, void *release_ctx);
typedef struct mava_tum_subscriber_route_ipv6 {
    uint32_t field_1;
    char *field_2;
    mava_tum_bytes field_3;
    uint32_t field_4;
    mava_tum_bytes field_5;
    char *field_6;
    uint32_t field_7;
    uint32_t field_8;
    char *field_9;
    uint16_t presence_mask;
} mava_tum_subscriber_route_ipv6;
MAVA_TUM_API int32_t mava_tum_subscriber_route_ipv6_decode_ext(mava_tum_subscriber_route_ipv6 *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_subscriber_route_ipv6_encode_ext(const mava_tum_subscriber_route_ipv6 *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);
MAVA_TUM_API int32_t mava_tum_subscriber_route_ipv6_duplicate(mava_tum_subscriber_route_ipv6 *destination,
    const mava_tum_subscriber_route_ipv6 *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_subscriber_route_ipv6_free_ext(
    mava_tum_subscriber_route_ipv6 *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
#ifdef __cplusplus
}
#endif
#endif
#ifndef MAVA_TUM_RECONCILIATION_H
#define MAVA_TUM_RECONCILIATION_H 
#ifndef MAVA_TUM_SESSION_MESSAGES_H
#define MAVA_TUM_SESSION_MESSAGES_H 
#ifndef MAVA_TUM_STATISTICS_H
#define MAVA_TUM_STATISTICS_H 
#ifdef __cplusplus
extern "C" {
#endif
typedef struct mava_tum_stats {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint32_t field_4;
    uint32_t field_5;
    uint32_t field_6;
    uint32_t field_7;
    uint32_t field_8;
    uint32_t field_9;
    uint32_t field_10;
    uint32_t field_11;
    uint32_t field_12;
    uint32_t field_13;
    uint32_t field_14;
    uint32_t field_15;
    uint32_t field_16;
    uint32_t field_17;
    uint32_t field_18;
    uint32_t presence_mask;
} mava_tum_stats;
MAVA_TUM_API int32_t mava_tum_stats_decode_ext(mava_tum_stats *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_stats_encode_ext(const mava_tum_stats *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_stats_duplicate(mava_tum_stats *destination, const mava_tum_stats *source);
MAVA_TUM_API void mava_tum_stats_free_ext(mava_tum_stats *record);
typedef struct mava_tum_service_stats {
    char *field_1;
    mava_tum_stats field_2;
    uint8_t presence_mask;
} mava_tum_service_stats;
MAVA_TUM_API int32_t mava_tum_service_stats_decode_ext(
    mava_tum_service_stats *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API uint64_t mava_tum_service_stats_encode_ext(const mava_tum_service_stats *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_service_stats_duplicate(mava_tum_service_stats *destination,
    const mava_tum_service_stats *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_service_stats_free_ext(
    mava_tum_service_stats *record, mava_tum_release_fn release_fn, void *release_ctx);
typedef struct mava_tum_subscriber_stats {
    uint64_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint32_t field_4;
    uint32_t field_5;
    uint32_t field_6;
    mava_tum_stats field_7;
    mava_tum_service_stats *field_8;
    uint32_t field_8_count;
    uint32_t field_9;
    mava_tum_stats field_10;
    uint32_t field_11;
    mava_tum_stats field_12;
    uint16_t presence_mask;
} mava_tum_subscriber_stats;
MAVA_TUM_API int32_t mava_tum_subscriber_stats_decode_ext(mava_tum_subscriber_stats *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API uint64_t mava_tum_subscriber_stats_encode_ext(const mava_tum_subscriber_stats *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_stats_duplicate(mava_tum_subscriber_stats *destination,
    const mava_tum_subscriber_stats *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_subscriber_stats_free_ext(
    mava_tum_subscriber_stats *record, mava_tum_release_fn release_fn, void *release_ctx);
#ifdef __cplusplus
}
#endif
#endif
#ifndef MAVA_TUM_SUBSCRIBER_RECORDS_H
#define MAVA_TUM_SUBSCRIBER_RECORDS_H 
#ifdef __cplusplus
extern "C" {
#endif
typedef struct mava_tum_subscriber_v4 {
    uint32_t field_1;
    uint32_t ipv4_address;
    uint8_t presence_mask;
} mava_tum_subscriber_v4;
MAVA_TUM_API int32_t mava_tum_subscriber_v4_decode_ext(
    mava_tum_subscriber_v4 *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_subscriber_v4_encode_ext(const mava_tum_subscriber_v4 *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_v4_duplicate(
    mava_tum_subscriber_v4 *destination, const mava_tum_subscriber_v4 *source);
MAVA_TUM_API void mava_tum_subscriber_v4_free_ext(mava_tum_subscriber_v4 *record);
typedef struct mava_tum_subscriber_v6 {
    uint32_t field_1;
    mava_tum_bytes field_2;
    mava_tum_bytes field_3;
    mava_tum_bytes field_4;
    uint32_t field_5;
    mava_tum_bytes field_6;
    uint32_t field_7;
    uint8_t presence_mask;
} mava_tum_subscriber_v6;
MAVA_TUM_API int32_t mava_tum_subscriber_v6_decode_ext(mava_tum_subscriber_v6 *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_subscriber_v6_encode_ext(const mava_tum_subscriber_v6 *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);
MAVA_TUM_API int32_t mava_tum_subscriber_v6_duplicate(mava_tum_subscriber_v6 *destination,
    const mava_tum_subscriber_v6 *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_subscriber_v6_free_ext(
    mava_tum_subscriber_v6 *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_ppp_data {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint32_t field_4;
    mava_tum_bytes field_5;
    uint32_t field_6;
    uint8_t presence_mask;
} mava_tum_ppp_data;
MAVA_TUM_API int32_t mava_tum_ppp_data_decode_ext(mava_tum_ppp_data *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_ppp_data_encode_ext(const mava_tum_ppp_data *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);
MAVA_TUM_API int32_t mava_tum_ppp_data_duplicate(
    mava_tum_ppp_data *destination, const mava_tum_ppp_data *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_ppp_data_free_ext(
    mava_tum_ppp_data *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_l2tp_data {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    mava_tum_bytes field_4;
    mava_tum_bytes field_5;
    uint32_t field_6;
    uint32_t field_7;
    uint32_t field_8;
    uint32_t field_9;
    uint32_t field_10;
    uint32_t field_11;
    uint32_t field_12;
    uint32_t field_13;
    uint32_t field_14;
    uint32_t field_15;
    uint32_t field_16;
    uint32_t field_17;
    uint32_t field_18;
    char *field_19;
    uint32_t presence_mask;
} mava_tum_l2tp_data;
MAVA_TUM_API int32_t mava_tum_l2tp_data_decode_ext(mava_tum_l2tp_data *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_l2tp_data_encode_ext(const mava_tum_l2tp_data *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);
MAVA_TUM_API int32_t mava_tum_l2tp_data_duplicate(
    mava_tum_l2tp_data *destination, const mava_tum_l2tp_data *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_l2tp_data_free_ext(
    mava_tum_l2tp_data *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_vlan_info {
    uint32_t field_1;
    uint32_t field_2;
    uint8_t presence_mask;
} mava_tum_vlan_info;
MAVA_TUM_API int32_t mava_tum_vlan_info_decode_ext(mava_tum_vlan_info *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_vlan_info_encode_ext(const mava_tum_vlan_info *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_vlan_info_duplicate(mava_tum_vlan_info *destination, const mava_tum_vlan_info *source);
MAVA_TUM_API void mava_tum_vlan_info_free_ext(mava_tum_vlan_info *record);
typedef struct mava_tum_session_data {
    uint32_t field_1;
    uint64_t field_2;
    mava_tum_ppp_data ppp;
    mava_tum_l2tp_data l2tp;
    char *field_5;
    mava_tum_bytes field_6;
    char *field_7;
    char *field_8;
    uint32_t field_9;
    mava_tum_vlan_info vlan;
    uint32_t field_11;
    uint16_t presence_mask;
} mava_tum_session_data;
MAVA_TUM_API int32_t mava_tum_session_data_decode_ext(mava_tum_session_data *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_session_data_encode_ext(const mava_tum_session_data *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);
MAVA_TUM_API int32_t mava_tum_session_data_duplicate(mava_tum_session_data *destination,
    const mava_tum_session_data *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_session_data_free_ext(
    mava_tum_session_data *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
#ifdef __cplusplus
}
#endif
#endif
#ifdef __cplusplus
extern "C" {
#endif
typedef struct mava_tum_session_context {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint32_t field_4;
    uint32_t feature_mask;
    mava_tum_bytes field_6;
    uint32_t field_7;
    mava_tum_subscriber_v4 subscriber_v4;
    mava_tum_subscriber_v6 subscriber_v6;
    mava_tum_session_data session_data;
    mava_tum_subscriber_qos *qos;
    uint32_t qos_count;
    mava_tum_subscriber_acl acl;
    mava_tum_subscriber_httpr httpr;
    mava_tum_subscriber_li li;
    mava_tum_subscriber_urpf urpf_1;
    mava_tum_subscriber_urpf urpf_2;
    mava_tum_subscriber_icmp icmp_1;
    mava_tum_subscriber_icmp icmp_2;
    mava_tum_subscriber_mtu mtu_1;
    mava_tum_subscriber_mtu mtu_2;
    mava_tum_subscriber_mtu mtu_3;
    mava_tum_subscriber_acct acct;
    mava_tum_subscriber_route_ipv4 *route_ipv4;
    uint32_t route_ipv4_count;
    mava_tum_subscriber_route_ipv6 *route_ipv6;
    uint32_t route_ipv6_count;
    uint32_t presence_mask;
} mava_tum_session_context;
MAVA_TUM_API int32_t mava_tum_session_context_decode_ext(mava_tum_session_context *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_session_context_encode_ext(const mava_tum_session_context *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);
MAVA_TUM_API int32_t mava_tum_session_context_duplicate(mava_tum_session_context *destination,
    const mava_tum_session_context *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_session_context_free_ext(
    mava_tum_session_context *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_session_delete {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint64_t field_4;
    uint32_t field_5;
    uint8_t presence_mask;
} mava_tum_session_delete;
MAVA_TUM_API int32_t mava_tum_session_delete_decode_ext(
    mava_tum_session_delete *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API uint64_t mava_tum_session_delete_encode_ext(const mava_tum_session_delete *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_session_delete_duplicate(
    mava_tum_session_delete *destination, const mava_tum_session_delete *source);
MAVA_TUM_API void mava_tum_session_delete_free_ext(mava_tum_session_delete *record);
typedef struct mava_tum_sess_oper_resp {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint64_t field_4;
    uint32_t field_5;
    char *field_6;
    char *field_7;
    char *field_8;
    mava_tum_subscriber_stats field_9;
    mava_tum_bytes field_10;
    uint16_t presence_mask;
} mava_tum_sess_oper_resp;
MAVA_TUM_API int32_t mava_tum_sess_oper_resp_decode_ext(mava_tum_sess_oper_resp *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_sess_oper_resp_encode_ext(const mava_tum_sess_oper_resp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);
MAVA_TUM_API int32_t mava_tum_sess_oper_resp_duplicate(mava_tum_sess_oper_resp *destination,
    const mava_tum_sess_oper_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_sess_oper_resp_free_ext(
    mava_tum_sess_oper_resp *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
#ifdef __cplusplus
}
#endif
#endif
#ifdef __cplusplus
extern "C" {
#endif
typedef struct mava_tum_rec_start_req {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    char *field_4;
    uint8_t presence_mask;
} mava_tum_rec_start_req;
MAVA_TUM_API int32_t mava_tum_rec_start_req_decode_ext(mava_tum_rec_start_req *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_rec_start_req_encode_ext(const mava_tum_rec_start_req *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_rec_start_req_duplicate(mava_tum_rec_start_req *destination,
    const mava_tum_rec_start_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_rec_start_req_free_ext(
    mava_tum_rec_start_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_rec_complete_req {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    char *field_4;
    uint8_t presence_mask;
} mava_tum_rec_complete_req;
MAVA_TUM_API int32_t mava_tum_rec_complete_req_decode_ext(mava_tum_rec_complete_req *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_rec_complete_req_encode_ext(const mava_tum_rec_complete_req *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_rec_complete_req_duplicate(mava_tum_rec_complete_req *destination,
    const mava_tum_rec_complete_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_rec_complete_req_free_ext(
    mava_tum_rec_complete_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_rec_resp {
    uint32_t field_1;
    char *field_2;
    uint32_t field_3;
    uint8_t presence_mask;
} mava_tum_rec_resp;
MAVA_TUM_API int32_t mava_tum_rec_resp_decode_ext(mava_tum_rec_resp *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_rec_resp_encode_ext(const mava_tum_rec_resp *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_rec_resp_duplicate(
    mava_tum_rec_resp *destination, const mava_tum_rec_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_rec_resp_free_ext(
    mava_tum_rec_resp *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_rec_session_state {
    uint32_t field_1;
    uint64_t field_2;
    uint32_t field_3;
    uint8_t presence_mask;
} mava_tum_rec_session_state;
MAVA_TUM_API int32_t mava_tum_rec_session_state_decode_ext(
    mava_tum_rec_session_state *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_rec_session_state_encode_ext(const mava_tum_rec_session_state *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_rec_session_state_duplicate(mava_tum_rec_session_state *destination,
    const mava_tum_rec_session_state *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_rec_session_state_free_ext(
    mava_tum_rec_session_state *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_rec_sess_req {
    uint32_t field_1;
    uint32_t field_2;
    mava_tum_rec_session_state *field_3;
    uint32_t field_3_count;
    char *field_4;
    char *field_5;
    uint32_t field_6;
    uint8_t presence_mask;
} mava_tum_rec_sess_req;
MAVA_TUM_API int32_t mava_tum_rec_sess_req_decode_ext(mava_tum_rec_sess_req *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_rec_sess_req_encode_ext(const mava_tum_rec_sess_req *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_rec_sess_req_duplicate(mava_tum_rec_sess_req *destination,
    const mava_tum_rec_sess_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_rec_sess_req_free_ext(
    mava_tum_rec_sess_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_rec_sess_resp {
    uint32_t field_1;
    mava_tum_rec_session_state *field_2;
    uint32_t field_2_count;
    uint32_t field_3;
    uint32_t field_4;
    uint8_t presence_mask;
} mava_tum_rec_sess_resp;
MAVA_TUM_API int32_t mava_tum_rec_sess_resp_decode_ext(mava_tum_rec_sess_resp *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_rec_sess_resp_encode_ext(const mava_tum_rec_sess_resp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_rec_sess_resp_duplicate(mava_tum_rec_sess_resp *destination,
    const mava_tum_rec_sess_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_rec_sess_resp_free_ext(
    mava_tum_rec_sess_resp *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_rec_sess_replay_req {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    mava_tum_session_context *field_4;
    uint32_t field_4_count;
    uint32_t field_5;
    char *field_6;
    uint8_t presence_mask;
} mava_tum_rec_sess_replay_req;
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_req_decode_ext(mava_tum_rec_sess_replay_req *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_rec_sess_replay_req_encode_ext(const mava_tum_rec_sess_replay_req *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_req_duplicate(mava_tum_rec_sess_replay_req *destination,
    const mava_tum_rec_sess_replay_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_rec_sess_replay_req_free_ext(
    mava_tum_rec_sess_replay_req *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_rec_sess_replay_fail {
    uint64_t field_1;
    uint32_t field_2;
    mava_tum_subscriber_stats field_3;
    uint8_t presence_mask;
} mava_tum_rec_sess_replay_fail;
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_fail_decode_ext(mava_tum_rec_sess_replay_fail *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_rec_sess_replay_fail_encode_ext(const mava_tum_rec_sess_replay_fail *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_fail_duplicate(mava_tum_rec_sess_replay_fail *destination,
    const mava_tum_rec_sess_replay_fail *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_rec_sess_replay_fail_free_ext(
    mava_tum_rec_sess_replay_fail *record, mava_tum_release_fn release_fn, void *release_ctx);
typedef struct mava_tum_sess_svc_start {
    uint64_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint32_t field_4;
    char **field_5;
    uint32_t field_5_count;
    uint8_t presence_mask;
} mava_tum_sess_svc_start;
MAVA_TUM_API int32_t mava_tum_sess_svc_start_decode_ext(mava_tum_sess_svc_start *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_sess_svc_start_encode_ext(const mava_tum_sess_svc_start *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_sess_svc_start_duplicate(mava_tum_sess_svc_start *destination,
    const mava_tum_sess_svc_start *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_sess_svc_start_free_ext(
    mava_tum_sess_svc_start *record, mava_tum_release_fn release_fn, void *release_ctx);
typedef struct mava_tum_rec_sess_replay_resp {
    uint32_t field_1;
    mava_tum_rec_sess_replay_fail *field_2;
    uint32_t field_2_count;
    mava_tum_sess_svc_start *field_3;
    uint32_t field_3_count;
    char *field_4;
    uint32_t field_5;
    uint8_t presence_mask;
} mava_tum_rec_sess_replay_resp;
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_resp_decode_ext(mava_tum_rec_sess_replay_resp *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_rec_sess_replay_resp_encode_ext(const mava_tum_rec_sess_replay_resp *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_rec_sess_replay_resp_duplicate(mava_tum_rec_sess_replay_resp *destination,
    const mava_tum_rec_sess_replay_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_rec_sess_replay_resp_free_ext(
    mava_tum_rec_sess_replay_resp *record, mava_tum_release_fn release_fn, void *release_ctx);
#ifdef __cplusplus
}
#endif
#endif
#ifndef MAVA_TUM_REDUNDANCY_GROUP_H
#define MAVA_TUM_REDUNDANCY_GROUP_H 
#ifdef __cplusplus
extern "C" {
#endif
typedef struct mava_tum_srg_group_rec_start_req {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint8_t presence_mask;
} mava_tum_srg_group_rec_start_req;
MAVA_TUM_API int32_t mava_tum_srg_group_rec_start_req_decode_ext(
    mava_tum_srg_group_rec_start_req *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_srg_group_rec_start_req_encode_ext(const mava_tum_srg_group_rec_start_req *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_srg_group_rec_start_req_duplicate(
    mava_tum_srg_group_rec_start_req *destination, const mava_tum_srg_group_rec_start_req *source);
MAVA_TUM_API void mava_tum_srg_group_rec_start_req_free_ext(mava_tum_srg_group_rec_start_req *record);
typedef struct mava_tum_srg_group_rec_resp {
    uint32_t field_1;
    uint32_t field_2;
    uint8_t presence_mask;
} mava_tum_srg_group_rec_resp;
MAVA_TUM_API int32_t mava_tum_srg_group_rec_resp_decode_ext(
    mava_tum_srg_group_rec_resp *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_srg_group_rec_resp_encode_ext(const mava_tum_srg_group_rec_resp *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_srg_group_rec_resp_duplicate(
    mava_tum_srg_group_rec_resp *destination, const mava_tum_srg_group_rec_resp *source);
MAVA_TUM_API void mava_tum_srg_group_rec_resp_free_ext(mava_tum_srg_group_rec_resp *record);
typedef struct mava_tum_srg_group_rec_complete_req {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint8_t presence_mask;
} mava_tum_srg_group_rec_complete_req;
MAVA_TUM_API int32_t mava_tum_srg_group_rec_complete_req_decode_ext(
    mava_tum_srg_group_rec_complete_req *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_srg_group_rec_complete_req_encode_ext(const mava_tum_srg_group_rec_complete_req *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_srg_group_rec_complete_req_duplicate(
    mava_tum_srg_group_rec_complete_req *destination, const mava_tum_srg_group_rec_complete_req *source);
MAVA_TUM_API void mava_tum_srg_group_rec_complete_req_free_ext(mava_tum_srg_group_rec_complete_req *record);
typedef struct mava_tum_srg_group_data {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint32_t field_4;
    char *field_5;
    uint8_t presence_mask;
} mava_tum_srg_group_data;
MAVA_TUM_API int32_t mava_tum_srg_group_data_decode_ext(mava_tum_srg_group_data *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_srg_group_data_encode_ext(const mava_tum_srg_group_data *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_srg_group_data_duplicate(mava_tum_srg_group_data *destination,
    const mava_tum_srg_group_data *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_srg_group_data_free_ext(
    mava_tum_srg_group_data *record, mava_tum_release_fn release_fn, void *release_ctx);
typedef struct mava_tum_srg_group_rec_replay_req {
    uint32_t field_1;
    uint32_t field_2;
    mava_tum_srg_group_data *field_3;
    uint32_t field_3_count;
    uint32_t field_4;
    uint8_t presence_mask;
} mava_tum_srg_group_rec_replay_req;
MAVA_TUM_API int32_t mava_tum_srg_group_rec_replay_req_decode_ext(mava_tum_srg_group_rec_replay_req *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_srg_group_rec_replay_req_encode_ext(const mava_tum_srg_group_rec_replay_req *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_srg_group_rec_replay_req_duplicate(mava_tum_srg_group_rec_replay_req *destination,
    const mava_tum_srg_group_rec_replay_req *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_srg_group_rec_replay_req_free_ext(
    mava_tum_srg_group_rec_replay_req *record, mava_tum_release_fn release_fn, void *release_ctx);
typedef struct mava_tum_srg_group_rec_replay_resp {
    uint32_t field_1;
    mava_tum_srg_group_data *field_2;
    uint32_t field_2_count;
    mava_tum_srg_group_data *field_3;
    uint32_t field_3_count;
    uint32_t field_4;
    uint8_t presence_mask;
} mava_tum_srg_group_rec_replay_resp;
MAVA_TUM_API int32_t mava_tum_srg_group_rec_replay_resp_decode_ext(mava_tum_srg_group_rec_replay_resp *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_srg_group_rec_replay_resp_encode_ext(const mava_tum_srg_group_rec_replay_resp *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_srg_group_rec_replay_resp_duplicate(mava_tum_srg_group_rec_replay_resp *destination,
    const mava_tum_srg_group_rec_replay_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_srg_group_rec_replay_resp_free_ext(
    mava_tum_srg_group_rec_replay_resp *record, mava_tum_release_fn release_fn, void *release_ctx);
#ifdef __cplusplus
}
#endif
#endif
#ifndef MAVA_TUM_ROUTES_H
#define MAVA_TUM_ROUTES_H 
#ifdef __cplusplus
extern "C" {
#endif
typedef struct mava_tum_sub_route {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    mava_tum_subscriber_route_ipv4 *ipv4_routes;
    uint32_t ipv4_route_count;
    mava_tum_subscriber_route_ipv6 *ipv6_routes;
    uint32_t ipv6_route_count;
    uint32_t field_6;
    uint8_t presence_mask;
} mava_tum_sub_route;
MAVA_TUM_API int32_t mava_tum_sub_route_decode_ext(mava_tum_sub_route *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);
MAVA_TUM_API uint64_t mava_tum_sub_route_encode_ext(const mava_tum_sub_route *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags);
MAVA_TUM_API int32_t mava_tum_sub_route_duplicate(
    mava_tum_sub_route *destination, const mava_tum_sub_route *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_sub_route_free_ext(
    mava_tum_sub_route *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
typedef struct mava_tum_subscriber_route_resp {
    uint32_t field_1;
    uint32_t field_2;
    char *field_3;
    char *field_4;
    uint8_t presence_mask;
} mava_tum_subscriber_route_resp;
MAVA_TUM_API int32_t mava_tum_subscriber_route_resp_decode_ext(mava_tum_subscriber_route_resp *record,
    const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API uint64_t mava_tum_subscriber_route_resp_encode_ext(const mava_tum_subscriber_route_resp *record,
    uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count);
MAVA_TUM_API int32_t mava_tum_subscriber_route_resp_duplicate(mava_tum_subscriber_route_resp *destination,
    const mava_tum_subscriber_route_resp *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
MAVA_TUM_API void mava_tum_subscriber_route_resp_free_ext(
    mava_tum_subscriber_route_resp *record, mava_tum_release_fn release_fn, void *release_ctx);
#ifdef __cplusplus
}
#endif
#endif
#ifndef TUM_NAL_ADAPTER_CONTRACT_H
#define TUM_NAL_ADAPTER_CONTRACT_H 
#endif
#ifndef TUM_NAL_NAL_QUEUE_H
#define TUM_NAL_NAL_QUEUE_H 
#ifdef __cplusplus
extern "C" {
#endif
typedef struct nal_queue_node {
    struct nal_queue_node *prev;
    struct nal_queue_node *next;
} nal_queue_node_t;
typedef struct nal_queue {
    nal_queue_node_t *head;
    nal_queue_node_t *tail;
    uint32_t count;
} nal_queue_t;
MAVA_TUM_API void nal_queue_enqueue(nal_queue_t *queue, nal_queue_node_t *node);
MAVA_TUM_API nal_queue_node_t *nal_queue_dequeue(nal_queue_t *queue);
MAVA_TUM_API int32_t nal_queue_delete(nal_queue_t *queue, nal_queue_node_t *node);
#ifdef __cplusplus
}
#endif
#endif
#ifndef TUM_NAL_NAL_RECONCILIATION_H
#define TUM_NAL_NAL_RECONCILIATION_H 
#ifndef TUM_NAL_NAL_SESSION_CONTEXT_H
#define TUM_NAL_NAL_SESSION_CONTEXT_H 
#ifndef TUM_NAL_NAL_ROUTES_H
#define TUM_NAL_NAL_ROUTES_H 
#ifdef __cplusplus
extern "C" {
#endif
enum { TUM_NAL_SUB_ROUTE_IPV4_ROUTES = 50, TUM_NAL_SUB_ROUTE_IPV6_ROUTES = 50 };
enum { TUM_NAL_SUB_ROUTE_MAX_SIZE = 18722, TUM_NAL_SUBSCRIBER_ROUTE_RESP_MAX_SIZE = 144 };
typedef struct tum_nal_data_ipv4_route {
    uint32_t field_1;
    char field_2[36];
    uint32_t field_3;
    uint8_t field_4;
    uint32_t field_5;
    char field_6[36];
    uint32_t field_7;
    uint32_t field_8;
    char field_9[68];
} tum_nal_data_ipv4_route;
typedef struct tum_nal_data_ipv6_route {
    uint32_t field_1;
    char field_2[36];
    uint8_t field_3[16];
    uint8_t field_4;
    uint8_t field_5[16];
    char field_6[36];
    uint32_t field_7;
    uint32_t field_8;
    char field_9[68];
} tum_nal_data_ipv6_route;
typedef struct tum_nal_data_sub_route {
    uint32_t field_1;
    uint16_t field_2;
    uint32_t field_3;
    uint8_t ipv4_route_count;
    uint8_t ipv6_route_count;
    tum_nal_data_ipv4_route ipv4_routes[TUM_NAL_SUB_ROUTE_IPV4_ROUTES];
    tum_nal_data_ipv6_route ipv6_routes[TUM_NAL_SUB_ROUTE_IPV6_ROUTES];
    uint32_t field_6;
} tum_nal_data_sub_route;
typedef struct tum_nal_data_subscriber_route_resp {
    uint32_t field_1;
    uint32_t field_2;
    char field_3[65];
    char field_4[65];
} tum_nal_data_subscriber_route_resp;
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_sub_route(
    const tum_nal_data_sub_route *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_sub_route(
    const uint8_t *data, uint32_t length, tum_nal_data_sub_route *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_subscriber_route_resp(
    const tum_nal_data_subscriber_route_resp *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_subscriber_route_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_subscriber_route_resp *record);
#ifdef __cplusplus
}
#endif
#endif
#ifdef __cplusplus
extern "C" {
#endif
enum { TUM_NAL_SESSION_QOS_ENTRIES = 8, TUM_NAL_SESSION_IPV4_ROUTES = 4, TUM_NAL_SESSION_IPV6_ROUTES = 4 };
enum { TUM_NAL_SESSION_CONTEXT_MAX_SIZE = 9207 };
enum {
    TUM_NAL_FEATURE_QOS = 1 << 0,
    TUM_NAL_FEATURE_REDIRECT = 1 << 1,
    TUM_NAL_FEATURE_INTERCEPT = 1 << 2,
    TUM_NAL_FEATURE_URPF_1 = 1 << 3,
    TUM_NAL_FEATURE_URPF_2 = 1 << 4,
    TUM_NAL_FEATURE_ICMP_1 = 1 << 5,
    TUM_NAL_FEATURE_ICMP_2 = 1 << 6,
    TUM_NAL_FEATURE_ACCOUNTING = 1 << 7,
    TUM_NAL_FEATURE_ACL = 1 << 8,
    TUM_NAL_FEATURE_IPV4 = 1 << 9,
    TUM_NAL_FEATURE_IPV6_PART_2 = 1 << 10,
    TUM_NAL_FEATURE_IPV6_PART_3 = 1 << 11,
    TUM_NAL_FEATURE_IPV6_PART_4 = 1 << 12,
    TUM_NAL_FEATURE_IPV4_ROUTES = 1 << 13,
    TUM_NAL_FEATURE_IPV6_ROUTES = 1 << 14,
    TUM_NAL_FEATURE_VLAN_1 = 1 << 16,
    TUM_NAL_FEATURE_VLAN_2 = 1 << 17,
    TUM_NAL_FEATURE_PPP_1_4 = 1 << 19,
    TUM_NAL_FEATURE_PPP_2_3 = 1 << 20,
    TUM_NAL_FEATURE_MTU_1 = 1 << 21,
    TUM_NAL_FEATURE_MTU_2 = 1 << 22,
    TUM_NAL_FEATURE_PPP_IDENTIFIER = 1 << 23,
    TUM_NAL_FEATURE_MTU_3 = 1 << 24,
    TUM_NAL_FEATURE_L2TP = 1 << 25,
    TUM_NAL_FEATURE_IPV6_PART_6 = 1 << 26
};
enum {
    TUM_NAL_SESSION_KIND_1 = 1,
    TUM_NAL_SESSION_KIND_4 = 4
};
enum { TUM_NAL_L2TP_IPV4 = 1, TUM_NAL_L2TP_IPV6 = 2 };
enum { TUM_NAL_ACCOUNTING_VALUE_2 = 1 << 0, TUM_NAL_ACCOUNTING_VALUE_3 = 1 << 1 };
typedef struct tum_nal_data_qos_element {
    uint32_t value_1;
    uint32_t value_2;
    char text_3[65];
    char text_4[256];
    char text_5[256];
    uint16_t value_6;
    uint16_t value_7;
    uint32_t value_8;
    char text_12[65];
    char text_10[65];
    char text_11[65];
} tum_nal_data_qos_element;
typedef struct tum_nal_data_session_context {
    uint32_t session_value_1;
    uint32_t session_value_2;
    uint32_t session_value_3;
    uint32_t session_value_4;
    uint32_t feature_mask;
    uint8_t reserved_6[20];
    uint32_t session_value_7;
    uint32_t ipv4_value_1;
    uint32_t ipv4_address;
    uint32_t reserved_10;
    uint32_t ipv6_value_1;
    uint32_t reserved_11;
    uint8_t ipv6_part_2[16];
    uint8_t ipv6_part_3[16];
    uint8_t ipv6_part_4[16];
    uint8_t ipv6_part_6[16];
    uint8_t ipv6_value_5;
    uint8_t ipv6_value_7;
    uint32_t session_data_value_1;
    uint64_t session_data_value_2;
    uint32_t ppp_value_1;
    uint32_t ppp_value_2;
    uint32_t ppp_value_3;
    uint32_t ppp_value_4;
    uint8_t ppp_identifier[9];
    uint16_t ppp_value_6;
    uint32_t l2tp_kind;
    uint32_t l2tp_ipv4_2;
    uint32_t l2tp_ipv4_3;
    uint8_t l2tp_ipv6_4[16];
    uint8_t l2tp_ipv6_5[16];
    uint16_t l2tp_value_6;
    uint16_t l2tp_value_7;
    uint16_t l2tp_value_8;
    uint16_t l2tp_value_9;
    uint8_t l2tp_value_10;
    uint32_t l2tp_value_11;
    uint32_t l2tp_value_12;
    uint32_t l2tp_value_13;
    uint32_t l2tp_value_14;
    uint32_t l2tp_value_15;
    uint32_t l2tp_value_16;
    uint32_t l2tp_value_17;
    uint32_t l2tp_value_18;
    char l2tp_name[33];
    char session_name[65];
    uint8_t session_identifier[7];
    char session_label[33];
    char session_text[65];
    uint16_t session_value_9;
    uint16_t vlan_value_1;
    uint16_t vlan_value_2;
    uint32_t session_data_value_11;
    tum_nal_data_qos_element qos[TUM_NAL_SESSION_QOS_ENTRIES];
    uint8_t qos_count;
    uint32_t acl_value_1;
    char acl_text_2[65];
    char acl_text_3[65];
    char acl_text_4[65];
    char acl_text_5[65];
    uint32_t redirect_value_1;
    char redirect_text_2[256];
    uint32_t intercept_value_1;
    uint32_t intercept_value_2;
    uint16_t intercept_value_3;
    uint8_t intercept_identifier[8];
    uint32_t intercept_value_5;
    uint32_t intercept_value_6;
    uint32_t intercept_ipv4_address;
    uint8_t intercept_ipv6_address[16];
    uint32_t urpf_1_value_1;
    uint32_t urpf_1_value_2;
    uint32_t urpf_2_value_1;
    uint32_t urpf_2_value_2;
    uint32_t icmp_1_value;
    uint32_t icmp_2_value;
    uint32_t mtu_1_value;
    uint32_t mtu_2_value;
    uint32_t mtu_3_value;
    uint32_t accounting_flags;
    uint32_t accounting_value_2;
    uint32_t accounting_value_3;
    uint8_t ipv4_route_count;
    uint8_t ipv6_route_count;
    tum_nal_data_ipv4_route ipv4_routes[TUM_NAL_SESSION_IPV4_ROUTES];
    tum_nal_data_ipv6_route ipv6_routes[TUM_NAL_SESSION_IPV6_ROUTES];
} tum_nal_data_session_context;
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_session_context(
    const tum_nal_data_session_context *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_session_context(
    const uint8_t *data, uint32_t length, tum_nal_data_session_context *record);
#ifdef __cplusplus
}
#endif
#endif
#ifndef TUM_NAL_NAL_STATISTICS_H
#define TUM_NAL_NAL_STATISTICS_H 
#ifdef __cplusplus
extern "C" {
#endif
enum { TUM_NAL_STATS_COUNTERS = 18, TUM_NAL_STATS_SERVICES = 8 };
enum { TUM_NAL_SUBSCRIBER_STATS_MAX_SIZE = 1836 };
typedef struct tum_nal_data_stats_block {
    uint32_t counter[TUM_NAL_STATS_COUNTERS];
} tum_nal_data_stats_block;
typedef struct tum_nal_data_service_entry {
    char name[65];
    tum_nal_data_stats_block stats;
} tum_nal_data_service_entry;
typedef struct tum_nal_data_subscriber_stats {
    uint64_t value_1;
    uint32_t value_2;
    uint32_t value_3;
    uint32_t value_4;
    uint32_t value_5;
    uint32_t value_6;
    tum_nal_data_stats_block block_7;
    uint8_t service_count;
    tum_nal_data_service_entry services[TUM_NAL_STATS_SERVICES];
    uint32_t block_10_switch;
    tum_nal_data_stats_block block_10;
    uint32_t block_12_switch;
    tum_nal_data_stats_block block_12;
} tum_nal_data_subscriber_stats;
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_subscriber_stats(
    const tum_nal_data_subscriber_stats *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_subscriber_stats(
    const uint8_t *data, uint32_t length, tum_nal_data_subscriber_stats *record);
#ifdef __cplusplus
}
#endif
#endif
#ifdef __cplusplus
extern "C" {
#endif
enum {
    TUM_NAL_REC_SESSION_STATES = 30,
    TUM_NAL_REC_REPLAY_SESSIONS = 1,
    TUM_NAL_REC_REPLAY_FAILURES = 1,
    TUM_NAL_REC_SERVICE_STARTS = 1,
    TUM_NAL_REC_SERVICE_NAMES = 8
};
enum {
    TUM_NAL_REC_START_REQ_MAX_SIZE = 82,
    TUM_NAL_REC_START_RES_MAX_SIZE = 78,
    TUM_NAL_REC_COMPLETE_REQ_MAX_SIZE = 82,
    TUM_NAL_REC_COMPLETE_RES_MAX_SIZE = 78,
    TUM_NAL_REC_SESS_REQ_MAX_SIZE = 892,
    TUM_NAL_REC_SESS_RES_MAX_SIZE = 765,
    TUM_NAL_REC_SESS_REPLAY_REQ_MAX_SIZE = 9295,
    TUM_NAL_REC_SESS_REPLAY_RESP_MAX_SIZE = 2497
};
typedef struct tum_nal_data_rec_start_req {
    uint32_t field_1;
    uint16_t field_2;
    uint32_t field_3;
    char field_4[65];
} tum_nal_data_rec_start_req;
typedef struct tum_nal_data_rec_complete_req {
    uint32_t field_1;
    uint32_t field_2;
    uint16_t field_3;
    char field_4[65];
} tum_nal_data_rec_complete_req;
typedef struct tum_nal_data_rec_res {
    uint32_t field_1;
    char field_2[65];
    uint32_t field_3;
} tum_nal_data_rec_res;
typedef struct tum_nal_data_session_state {
    uint32_t field_1;
    uint64_t field_2;
    uint32_t field_3;
} tum_nal_data_session_state;
typedef struct tum_nal_data_rec_sess_req {
    uint32_t field_1;
    uint16_t field_2;
    uint32_t field_3_count;
    tum_nal_data_session_state field_3[TUM_NAL_REC_SESSION_STATES];
    char field_4[65];
    char field_5[65];
    uint8_t field_6;
} tum_nal_data_rec_sess_req;
typedef struct tum_nal_data_rec_sess_res {
    uint32_t field_1;
    uint32_t field_2_count;
    tum_nal_data_session_state field_2[TUM_NAL_REC_SESSION_STATES];
    uint8_t field_3;
    uint32_t field_4;
} tum_nal_data_rec_sess_res;
typedef struct tum_nal_data_rec_sess_replay_req_encode {
    char field_6[65];
    uint32_t field_3;
    uint32_t field_4_count;
    uint32_t field_1;
    uint16_t field_2;
    uint8_t field_5;
    tum_nal_data_session_context field_4[TUM_NAL_REC_REPLAY_SESSIONS];
} tum_nal_data_rec_sess_replay_req_encode;
typedef struct tum_nal_data_rec_sess_replay_req_decode {
    uint32_t field_1;
    uint16_t field_2;
    uint32_t field_4_count;
    uint32_t field_3;
    tum_nal_data_session_context field_4[TUM_NAL_REC_REPLAY_SESSIONS];
    uint8_t field_5;
    char field_6[65];
} tum_nal_data_rec_sess_replay_req_decode;
typedef struct tum_nal_data_replay_failure {
    uint64_t field_1;
    uint32_t field_2;
    tum_nal_data_subscriber_stats field_3;
} tum_nal_data_replay_failure;
typedef struct tum_nal_data_service_start {
    uint64_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint32_t field_4;
    uint8_t field_5_count;
    char field_5[TUM_NAL_REC_SERVICE_NAMES][65];
} tum_nal_data_service_start;
typedef struct tum_nal_data_rec_sess_replay_resp {
    uint32_t field_1;
    uint32_t field_2_count;
    uint32_t field_3_count;
    tum_nal_data_replay_failure field_2[TUM_NAL_REC_REPLAY_FAILURES];
    tum_nal_data_service_start field_3[TUM_NAL_REC_SERVICE_STARTS];
    char field_4[65];
    uint32_t field_5;
} tum_nal_data_rec_sess_replay_resp;
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_start_req(
    const tum_nal_data_rec_start_req *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_start_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_start_req *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_start_res(
    const tum_nal_data_rec_res *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_start_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_res *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_complete_req(
    const tum_nal_data_rec_complete_req *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_complete_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_complete_req *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_complete_res(
    const tum_nal_data_rec_res *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_complete_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_res *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_sess_req(
    const tum_nal_data_rec_sess_req *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_sess_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_req *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_sess_res(
    const tum_nal_data_rec_sess_res *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_sess_res(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_res *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_sess_replay_req(
    const tum_nal_data_rec_sess_replay_req_encode *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_sess_replay_req(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_replay_req_decode *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_rec_sess_replay_resp(
    const tum_nal_data_rec_sess_replay_resp *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_rec_sess_replay_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_rec_sess_replay_resp *record);
#ifdef __cplusplus
}
#endif
#endif
#ifndef TUM_NAL_NAL_REDUNDANCY_GROUP_H
#define TUM_NAL_NAL_REDUNDANCY_GROUP_H 
#ifdef __cplusplus
extern "C" {
#endif
enum { TUM_NAL_SRG_GROUPS = 15 };
enum {
    TUM_NAL_SRG_GROUP_REC_START_REQ_MAX_SIZE = 16,
    TUM_NAL_SRG_GROUP_REC_RESP_MAX_SIZE = 12,
    TUM_NAL_SRG_GROUP_REC_COMPLETE_REQ_MAX_SIZE = 16,
    TUM_NAL_SRG_GROUP_REC_REPLAY_REQ_MAX_SIZE = 1393,
    TUM_NAL_SRG_GROUP_REC_REPLAY_RESP_MAX_SIZE = 2772
};
typedef struct tum_nal_data_srg_group_rec_start_req {
    uint32_t field_1;
    uint16_t field_2;
    uint32_t field_3;
} tum_nal_data_srg_group_rec_start_req;
typedef struct tum_nal_data_srg_group_rec_resp {
    uint32_t field_1;
    uint32_t field_2;
} tum_nal_data_srg_group_rec_resp;
typedef struct tum_nal_data_srg_group_rec_complete_req {
    uint32_t field_1;
    uint32_t field_2;
    uint16_t field_3;
} tum_nal_data_srg_group_rec_complete_req;
typedef struct tum_nal_data_group_data {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint32_t field_4;
    char field_5[65];
} tum_nal_data_group_data;
typedef struct tum_nal_data_srg_group_rec_replay_req {
    uint32_t field_1;
    uint16_t field_2;
    uint32_t field_3_count;
    tum_nal_data_group_data field_3[TUM_NAL_SRG_GROUPS];
    uint8_t field_4;
} tum_nal_data_srg_group_rec_replay_req;
typedef struct tum_nal_data_srg_group_rec_replay_resp {
    uint32_t field_1;
    uint32_t field_2_count;
    tum_nal_data_group_data field_2[TUM_NAL_SRG_GROUPS];
    uint32_t field_3_count;
    tum_nal_data_group_data field_3[TUM_NAL_SRG_GROUPS];
    uint32_t field_4;
} tum_nal_data_srg_group_rec_replay_resp;
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_start_req(
    const tum_nal_data_srg_group_rec_start_req *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_srg_group_rec_start_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_start_req *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_resp(
    const tum_nal_data_srg_group_rec_resp *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_srg_group_rec_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_resp *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_complete_req(
    const tum_nal_data_srg_group_rec_complete_req *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_srg_group_rec_complete_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_complete_req *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_replay_req(
    const tum_nal_data_srg_group_rec_replay_req *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_replay_req *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_srg_group_rec_replay_resp(
    const tum_nal_data_srg_group_rec_replay_resp *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_srg_group_rec_replay_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_srg_group_rec_replay_resp *record);
#ifdef __cplusplus
}
#endif
#endif
#ifndef TUM_NAL_NAL_SESSION_H
#define TUM_NAL_NAL_SESSION_H 
#ifdef __cplusplus
extern "C" {
#endif
enum { TUM_NAL_SESSION_DELETE_MAX_FIELD_1 = 5 };
enum { TUM_NAL_SESSION_DELETE_MAX_SIZE = 29, TUM_NAL_SESS_OPER_RESP_MAX_SIZE = 2072 };
typedef struct tum_nal_data_session_delete {
    uint32_t field_1;
    uint32_t field_2;
    uint16_t field_3;
    uint64_t field_4;
    uint32_t field_5;
} tum_nal_data_session_delete;
typedef struct tum_nal_data_sess_oper_resp {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
    uint64_t field_4;
    uint32_t field_5;
    char field_6[65];
    char field_7[65];
    char field_8[65];
    tum_nal_data_subscriber_stats field_9;
} tum_nal_data_sess_oper_resp;
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_session_delete(
    const tum_nal_data_session_delete *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_session_delete(
    const uint8_t *data, uint32_t length, tum_nal_data_session_delete *record);
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_sess_oper_resp(
    const tum_nal_data_sess_oper_resp *record, uint8_t *buffer, uint32_t capacity);
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_sess_oper_resp(
    const uint8_t *data, uint32_t length, tum_nal_data_sess_oper_resp *record);
#ifdef __cplusplus
}
#endif
#endif
#endif
