// How a subscriber of a session is reached: addresses, PPP, L2TP, VLAN and what surrounds them in the session data.
#pragma once

#include "messages/subscriber_records_schema.h"
#include "nal/rows.h"
#include "nal/session_features.h"

namespace mava_tum
{

// ---- addresses ----

struct subscriber_v4_rows {
    using message = mava_tum_subscriber_v4;
    using record = session;
    using rows = row_list<number<1, &session::ipv4_value_1>, ipv4<2, &session::ipv4_address>>;
};

struct subscriber_v6_rows {
    using message = mava_tum_subscriber_v6;
    using record = session;
    using rows = row_list<number<1, &session::ipv6_value_1>,
        octets<2, &session::ipv6_part_2, if_feature<TUM_NAL_FEATURE_IPV6_PART_2>>,
        octets<3, &session::ipv6_part_3, if_feature<TUM_NAL_FEATURE_IPV6_PART_3>>,
        octets<4, &session::ipv6_part_4, if_feature<TUM_NAL_FEATURE_IPV6_PART_4>>,
        number<5, &session::ipv6_value_5, if_feature<TUM_NAL_FEATURE_IPV6_PART_3>>,
        octets<6, &session::ipv6_part_6, if_feature<TUM_NAL_FEATURE_IPV6_PART_6>>,
        number<7, &session::ipv6_value_7, if_feature<TUM_NAL_FEATURE_IPV6_PART_6>>>;

    // L24: the two values belong to parts 3 and 6: without their part they are dropped.
    static void complete(session &record, uint32_t present)
    {
        if ((present & presence_bit(3)) == 0)
            record.ipv6_value_5 = 0;
        if ((present & presence_bit(6)) == 0)
            record.ipv6_value_7 = 0;
    }
};

// ---- PPP, L2TP and VLAN ----

struct ppp_rows {
    using message = mava_tum_ppp_data;
    using record = session;
    using if_1_4 = if_all<if_feature<TUM_NAL_FEATURE_PPP_1_4>, if_nonzero>;
    using if_2_3 = if_all<if_feature<TUM_NAL_FEATURE_PPP_2_3>, if_nonzero>;
    using rows = row_list<number<1, &session::ppp_value_1, if_1_4>, number<2, &session::ppp_value_2, if_2_3>,
        number<3, &session::ppp_value_3, if_2_3>, number<4, &session::ppp_value_4, if_1_4>,
        octets<5, &session::ppp_identifier, if_feature<TUM_NAL_FEATURE_PPP_IDENTIFIER>>,
        number<6, &session::ppp_value_6, if_nonzero>>;
};

// L25: both pairs of end points are received if the sender gave both: the kind decides only what we send.
struct l2tp_rows {
    using message = mava_tum_l2tp_data;
    using record = session;
    template <uint32_t Number, auto Member>
    using nonzero = number<Number, Member, if_nonzero>;
    using if_ipv4 = if_all<if_l2tp_kind<TUM_NAL_L2TP_IPV4>, if_nonzero>;
    using if_ipv6 = if_l2tp_kind<TUM_NAL_L2TP_IPV6>;
    using rows = row_list<number<1, &session::l2tp_kind>, ipv4<2, &session::l2tp_ipv4_2, if_ipv4>,
        ipv4<3, &session::l2tp_ipv4_3, if_ipv4>, ipv6<4, &session::l2tp_ipv6_4, if_ipv6>,
        ipv6<5, &session::l2tp_ipv6_5, if_ipv6>, nonzero<6, &session::l2tp_value_6>, nonzero<7, &session::l2tp_value_7>,
        nonzero<8, &session::l2tp_value_8>, nonzero<9, &session::l2tp_value_9>, nonzero<10, &session::l2tp_value_10>,
        nonzero<11, &session::l2tp_value_11>, nonzero<12, &session::l2tp_value_12>,
        nonzero<13, &session::l2tp_value_13>, nonzero<14, &session::l2tp_value_14>,
        nonzero<15, &session::l2tp_value_15>,
        // L37: sent with the value before them only.
        number<16, &session::l2tp_value_16, if_all<if_set<&session::l2tp_value_15>, if_nonzero>>,
        nonzero<17, &session::l2tp_value_17>,
        number<18, &session::l2tp_value_18, if_all<if_set<&session::l2tp_value_17>, if_nonzero>>,
        text<19, &session::l2tp_name>>;
};

struct vlan_rows {
    using message = mava_tum_vlan_info;
    using record = session;
    using rows = row_list<number<1, &session::vlan_value_1, if_feature<TUM_NAL_FEATURE_VLAN_1>>,
        number<2, &session::vlan_value_2, if_feature<TUM_NAL_FEATURE_VLAN_2>>>;
};

// ---- session data ----

struct session_data_rows {
    using message = mava_tum_session_data;
    using record = session;
    using rows = row_list<number<1, &session::session_data_value_1, if_nonzero>,
        number<2, &session::session_data_value_2, if_nonzero>, nested<3, ppp_rows>,
        nested<4, l2tp_rows, if_feature<TUM_NAL_FEATURE_L2TP>>, text<5, &session::session_name>,
        octets<6, &session::session_identifier, if_session_kind<TUM_NAL_SESSION_KIND_1, TUM_NAL_SESSION_KIND_4>>,
        text<7, &session::session_label>, text<8, &session::session_text>,
        number<9, &session::session_value_9, if_all<if_session_kind<TUM_NAL_SESSION_KIND_4>, if_nonzero>>,
        nested<10, vlan_rows, if_feature<TUM_NAL_FEATURE_VLAN_1 | TUM_NAL_FEATURE_VLAN_2>>,
        number<11, &session::session_data_value_11, if_nonzero>>;
};

} // namespace mava_tum
