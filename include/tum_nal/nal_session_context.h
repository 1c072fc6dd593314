/* Application record and adapters of a whole subscriber session.
 *
 * Counts, texts, short buffers and malformed input are the same for all adapters: adapter_contract.h. */
#ifndef TUM_NAL_NAL_SESSION_CONTEXT_H
#define TUM_NAL_NAL_SESSION_CONTEXT_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "tum_nal/adapter_contract.h"
#include "tum_nal/nal_routes.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Slots of a session. */
enum { TUM_NAL_SESSION_QOS_ENTRIES = 8, TUM_NAL_SESSION_IPV4_ROUTES = 4, TUM_NAL_SESSION_IPV6_ROUTES = 4 };

/* Bytes of the largest message that the encode adapter below makes. */
enum { TUM_NAL_SESSION_CONTEXT_MAX_SIZE = 9207 };

/* Bits of `feature_mask`. The mask is sent unchanged. On encode, its bits also decide which members are sent. On
 * decode, they are ignored: everything in the message arrives. Bits without a name here select nothing. */
enum {
    TUM_NAL_FEATURE_QOS = 1 << 0,             /* `qos` */
    TUM_NAL_FEATURE_REDIRECT = 1 << 1,        /* `redirect_...` */
    TUM_NAL_FEATURE_INTERCEPT = 1 << 2,       /* `intercept_...` */
    TUM_NAL_FEATURE_URPF_1 = 1 << 3,          /* `urpf_1_...` */
    TUM_NAL_FEATURE_URPF_2 = 1 << 4,          /* `urpf_2_...` */
    TUM_NAL_FEATURE_ICMP_1 = 1 << 5,          /* `icmp_1_value` */
    TUM_NAL_FEATURE_ICMP_2 = 1 << 6,          /* `icmp_2_value` */
    TUM_NAL_FEATURE_ACCOUNTING = 1 << 7,      /* `accounting_...` */
    TUM_NAL_FEATURE_ACL = 1 << 8,             /* `acl_...` */
    TUM_NAL_FEATURE_IPV4 = 1 << 9,            /* `ipv4_value_1`, `ipv4_address` */
    TUM_NAL_FEATURE_IPV6_PART_2 = 1 << 10,    /* `ipv6_part_2` */
    TUM_NAL_FEATURE_IPV6_PART_3 = 1 << 11,    /* `ipv6_part_3`, `ipv6_value_5` */
    TUM_NAL_FEATURE_IPV6_PART_4 = 1 << 12,    /* `ipv6_part_4` */
    TUM_NAL_FEATURE_IPV4_ROUTES = 1 << 13,    /* `ipv4_routes` */
    TUM_NAL_FEATURE_IPV6_ROUTES = 1 << 14,    /* `ipv6_routes` */
    TUM_NAL_FEATURE_VLAN_1 = 1 << 16,         /* `vlan_value_1` */
    TUM_NAL_FEATURE_VLAN_2 = 1 << 17,         /* `vlan_value_2` */
    TUM_NAL_FEATURE_PPP_1_4 = 1 << 19,        /* `ppp_value_1`, `ppp_value_4` */
    TUM_NAL_FEATURE_PPP_2_3 = 1 << 20,        /* `ppp_value_2`, `ppp_value_3` */
    TUM_NAL_FEATURE_MTU_1 = 1 << 21,          /* `mtu_1_value` */
    TUM_NAL_FEATURE_MTU_2 = 1 << 22,          /* `mtu_2_value` */
    TUM_NAL_FEATURE_PPP_IDENTIFIER = 1 << 23, /* `ppp_identifier` */
    TUM_NAL_FEATURE_MTU_3 = 1 << 24,          /* `mtu_3_value` */
    TUM_NAL_FEATURE_L2TP = 1 << 25,           /* `l2tp_...` */
    TUM_NAL_FEATURE_IPV6_PART_6 = 1 << 26     /* `ipv6_part_6`, `ipv6_value_7` */
};

/* Values of `session_value_1` that decide which members of a session are sent. */
enum {
    TUM_NAL_SESSION_KIND_1 = 1, /* `session_identifier` is sent */
    TUM_NAL_SESSION_KIND_4 = 4  /* `session_identifier` and `session_value_9` are sent */
};

/* Values of `l2tp_kind` that decide which end points are sent. */
enum { TUM_NAL_L2TP_IPV4 = 1, TUM_NAL_L2TP_IPV6 = 2 };

/* Bits of `accounting_flags` that decide which accounting values are sent. */
enum { TUM_NAL_ACCOUNTING_VALUE_2 = 1 << 0, TUM_NAL_ACCOUNTING_VALUE_3 = 1 << 1 };

/* One QoS entry. Sent: `value_1` always, all others when not zero or empty. */
typedef struct tum_nal_data_qos_element {
    uint32_t value_1; /* 1: always */
    uint32_t value_2; /* 2: non-zero */
    char text_3[65];  /* 3: not empty */
    char text_4[256]; /* 4: not empty */
    char text_5[256]; /* 5: not empty */
    uint16_t value_6; /* 6: non-zero */
    uint16_t value_7; /* 7: non-zero */
    uint32_t value_8; /* 8: non-zero */
    char text_12[65]; /* 12: not empty */
    char text_10[65]; /* 10: not empty */
    char text_11[65]; /* 11: not empty */
} tum_nal_data_qos_element;

/* A subscriber session. The comment beside a member says when it is sent: "always", "non-zero" (a text: not empty), a
 * bit of the feature mask, or several of these. The comment above a group applies to the whole group; its members are
 * then sent also if zero, unless their comment has a condition. A message always has session data with a PPP record;
 * both may be empty. 8848 bytes. */
typedef struct tum_nal_data_session_context {
    uint32_t session_value_1; /* always; see TUM_NAL_SESSION_KIND_... */
    uint32_t session_value_2; /* always */
    uint32_t session_value_3; /* always */
    uint32_t session_value_4; /* always */
    uint32_t feature_mask;    /* always; TUM_NAL_FEATURE_... */
    uint8_t reserved_6[20];   /* not read; zero after a decode */
    uint32_t session_value_7; /* always */

    /* IPv4: TUM_NAL_FEATURE_IPV4 and `ipv4_address` non-zero. */
    uint32_t ipv4_value_1;
    uint32_t ipv4_address; /* host byte order */
    uint32_t reserved_10;  /* not read; zero after a decode */

    /* IPv6. The two values go with their part in both directions. */
    uint32_t ipv6_value_1;   /* any of TUM_NAL_FEATURE_IPV6_PART_2, _3, _4, _6 */
    uint32_t reserved_11;    /* not read; zero after a decode */
    uint8_t ipv6_part_2[16]; /* TUM_NAL_FEATURE_IPV6_PART_2 */
    uint8_t ipv6_part_3[16]; /* TUM_NAL_FEATURE_IPV6_PART_3 */
    uint8_t ipv6_part_4[16]; /* TUM_NAL_FEATURE_IPV6_PART_4 */
    uint8_t ipv6_part_6[16]; /* TUM_NAL_FEATURE_IPV6_PART_6 */
    uint8_t ipv6_value_5;    /* with `ipv6_part_3` */
    uint8_t ipv6_value_7;    /* with `ipv6_part_6` */

    uint32_t session_data_value_1; /* non-zero */
    uint64_t session_data_value_2; /* non-zero */

    /* PPP. */
    uint32_t ppp_value_1;      /* TUM_NAL_FEATURE_PPP_1_4 and non-zero */
    uint32_t ppp_value_2;      /* TUM_NAL_FEATURE_PPP_2_3 and non-zero */
    uint32_t ppp_value_3;      /* TUM_NAL_FEATURE_PPP_2_3 and non-zero */
    uint32_t ppp_value_4;      /* TUM_NAL_FEATURE_PPP_1_4 and non-zero */
    uint8_t ppp_identifier[9]; /* TUM_NAL_FEATURE_PPP_IDENTIFIER */
    uint16_t ppp_value_6;      /* non-zero */

    /* L2TP: TUM_NAL_FEATURE_L2TP, and the condition beside the member. */
    uint32_t l2tp_kind;      /* also when zero; TUM_NAL_L2TP_... */
    uint32_t l2tp_ipv4_2;    /* kind IPV4 and non-zero; host byte order */
    uint32_t l2tp_ipv4_3;    /* kind IPV4 and non-zero; host byte order */
    uint8_t l2tp_ipv6_4[16]; /* kind IPV6 and not all zero */
    uint8_t l2tp_ipv6_5[16]; /* kind IPV6 and not all zero */
    uint16_t l2tp_value_6;   /* non-zero */
    uint16_t l2tp_value_7;   /* non-zero */
    uint16_t l2tp_value_8;   /* non-zero */
    uint16_t l2tp_value_9;   /* non-zero */
    uint8_t l2tp_value_10;   /* non-zero */
    uint32_t l2tp_value_11;  /* non-zero */
    uint32_t l2tp_value_12;  /* non-zero */
    uint32_t l2tp_value_13;  /* non-zero */
    uint32_t l2tp_value_14;  /* non-zero */
    uint32_t l2tp_value_15;  /* non-zero */
    uint32_t l2tp_value_16;  /* non-zero, and `l2tp_value_15` non-zero */
    uint32_t l2tp_value_17;  /* non-zero */
    uint32_t l2tp_value_18;  /* non-zero, and `l2tp_value_17` non-zero */
    char l2tp_name[33];      /* non-zero */

    char session_name[65];          /* non-zero */
    uint8_t session_identifier[7];  /* `session_value_1` equal to 1 or 4 */
    char session_label[33];         /* non-zero */
    char session_text[65];          /* non-zero */
    uint16_t session_value_9;       /* non-zero, and `session_value_1` equal to 4 */
    uint16_t vlan_value_1;          /* TUM_NAL_FEATURE_VLAN_1 */
    uint16_t vlan_value_2;          /* TUM_NAL_FEATURE_VLAN_2 */
    uint32_t session_data_value_11; /* non-zero */

    /* QoS: TUM_NAL_FEATURE_QOS and a count above zero. */
    tum_nal_data_qos_element qos[TUM_NAL_SESSION_QOS_ENTRIES];
    uint8_t qos_count;

    /* Access lists: TUM_NAL_FEATURE_ACL; a text when not empty. */
    uint32_t acl_value_1;
    char acl_text_2[65];
    char acl_text_3[65];
    char acl_text_4[65];
    char acl_text_5[65];

    /* HTTP redirect: TUM_NAL_FEATURE_REDIRECT; the text when not empty. */
    uint32_t redirect_value_1;
    char redirect_text_2[256];

    /* Lawful intercept: TUM_NAL_FEATURE_INTERCEPT; the addresses when not zero. */
    uint32_t intercept_value_1;
    uint32_t intercept_value_2;
    uint16_t intercept_value_3;
    uint8_t intercept_identifier[8];
    uint32_t intercept_value_5;
    uint32_t intercept_value_6;
    uint32_t intercept_ipv4_address; /* host byte order */
    uint8_t intercept_ipv6_address[16];

    uint32_t urpf_1_value_1; /* TUM_NAL_FEATURE_URPF_1 */
    uint32_t urpf_1_value_2; /* TUM_NAL_FEATURE_URPF_1 */
    uint32_t urpf_2_value_1; /* TUM_NAL_FEATURE_URPF_2 */
    uint32_t urpf_2_value_2; /* TUM_NAL_FEATURE_URPF_2 */
    uint32_t icmp_1_value;   /* TUM_NAL_FEATURE_ICMP_1 */
    uint32_t icmp_2_value;   /* TUM_NAL_FEATURE_ICMP_2 */
    uint32_t mtu_1_value;    /* TUM_NAL_FEATURE_MTU_1 */
    uint32_t mtu_2_value;    /* TUM_NAL_FEATURE_MTU_2 */
    uint32_t mtu_3_value;    /* TUM_NAL_FEATURE_MTU_3 */

    uint32_t accounting_flags;   /* TUM_NAL_FEATURE_ACCOUNTING; TUM_NAL_ACCOUNTING_... */
    uint32_t accounting_value_2; /* TUM_NAL_FEATURE_ACCOUNTING and TUM_NAL_ACCOUNTING_VALUE_2 */
    uint32_t accounting_value_3; /* TUM_NAL_FEATURE_ACCOUNTING and TUM_NAL_ACCOUNTING_VALUE_3 */

    /* Routes: TUM_NAL_FEATURE_IPV4_ROUTES, TUM_NAL_FEATURE_IPV6_ROUTES and a count above zero. */
    uint8_t ipv4_route_count;
    uint8_t ipv6_route_count;
    tum_nal_data_ipv4_route ipv4_routes[TUM_NAL_SESSION_IPV4_ROUTES];
    tum_nal_data_ipv6_route ipv6_routes[TUM_NAL_SESSION_IPV6_ROUTES];
} tum_nal_data_session_context;

/* Encodes a session as one session_context message into `buffer` (`capacity` bytes; may be null if 0). Returns the size
 * needed in bytes. If it is above `capacity`, the output is truncated: do not send it. The message's field 6 (bytes)
 * and field 9 of its QoS entries have no member here and are never sent. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_session_context(
    const tum_nal_data_session_context *record, uint8_t *buffer, uint32_t capacity);

/* Decodes the session_context message in the `length` bytes at `data` into `record`, which is overwritten completely.
 * Reports nothing: of a malformed message, the fields before the fault arrive. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_session_context(
    const uint8_t *data, uint32_t length, tum_nal_data_session_context *record);

#ifdef __cplusplus
}
#endif

#endif
