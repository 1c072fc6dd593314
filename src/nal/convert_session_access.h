// How a subscriber of a session is reached: addresses, PPP, L2TP, VLAN and what surrounds them in the session data.
// Each record's way to the wire, and below it its way back into a cleared application record.
#pragma once

#include "mava_tum/subscriber_records.h"
#include "nal/convert_rows.h"
#include "nal/session_features.h"
#include "tum_nal/nal_session_context.h"

namespace mava_tum
{

// ---- addresses ----

struct subscriber_v4_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        put<1>(fields, record.ipv4_value_1);
        put_ipv4<2>(fields, record.ipv4_address);
    }
};

inline void subscriber_v4_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_v4 &v4)
{
    take(record.ipv4_value_1, v4.field_1);
    take_ipv4(record.ipv4_address, v4.ipv4_address);
}

struct subscriber_v6_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        put<1>(fields, record.ipv6_value_1);
        if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_2))
            put_bytes<2>(fields, record.ipv6_part_2);
        if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_3))
            put_bytes<3>(fields, record.ipv6_part_3);
        if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_4))
            put_bytes<4>(fields, record.ipv6_part_4);
        if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_3))
            put<5>(fields, record.ipv6_value_5);
        if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_6)) {
            put_bytes<6>(fields, record.ipv6_part_6);
            put<7>(fields, record.ipv6_value_7);
        }
    }
};

inline void subscriber_v6_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_v6 &v6)
{
    take(record.ipv6_value_1, v6.field_1);
    take_bytes<2>(record.ipv6_part_2, v6, v6.field_2);
    take_bytes<3>(record.ipv6_part_3, v6, v6.field_3);
    take_bytes<4>(record.ipv6_part_4, v6, v6.field_4);
    take_bytes<6>(record.ipv6_part_6, v6, v6.field_6);
    // L24: the two values belong to parts 3 and 6: they arrive by the bit of their part, and without it they are
    // dropped.
    take_with<3>(record.ipv6_value_5, v6, v6.field_5);
    take_with<6>(record.ipv6_value_7, v6, v6.field_7);
}

// ---- PPP, L2TP and VLAN ----

struct ppp_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        const bool sends_1_and_4 = has_feature(record, TUM_NAL_FEATURE_PPP_1_4);
        if (sends_1_and_4)
            put_nonzero<1>(fields, record.ppp_value_1);
        if (has_feature(record, TUM_NAL_FEATURE_PPP_2_3)) {
            put_nonzero<2>(fields, record.ppp_value_2);
            put_nonzero<3>(fields, record.ppp_value_3);
        }
        if (sends_1_and_4)
            put_nonzero<4>(fields, record.ppp_value_4);
        if (has_feature(record, TUM_NAL_FEATURE_PPP_IDENTIFIER))
            put_bytes<5>(fields, record.ppp_identifier);
        put_nonzero<6>(fields, record.ppp_value_6);
    }
};

inline void ppp_from_codec(tum_nal_data_session_context &record, const mava_tum_ppp_data &ppp)
{
    take(record.ppp_value_1, ppp.field_1);
    take(record.ppp_value_2, ppp.field_2);
    take(record.ppp_value_3, ppp.field_3);
    take(record.ppp_value_4, ppp.field_4);
    take_bytes<5>(record.ppp_identifier, ppp, ppp.field_5);
    take(record.ppp_value_6, ppp.field_6);
}

// L37: which pair of end points is sent follows from the kind; any other kind sends none.
template <class Fields>
void describe_l2tp_end_points(Fields &fields, const tum_nal_data_session_context &record)
{
    if (record.l2tp_kind == TUM_NAL_L2TP_IPV4) {
        put_ipv4_nonzero<2>(fields, record.l2tp_ipv4_2);
        put_ipv4_nonzero<3>(fields, record.l2tp_ipv4_3);
    }
    if (record.l2tp_kind == TUM_NAL_L2TP_IPV6) {
        put_ipv6_nonzero<4>(fields, record.l2tp_ipv6_4);
        put_ipv6_nonzero<5>(fields, record.l2tp_ipv6_5);
    }
}

struct l2tp_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        put<1>(fields, record.l2tp_kind);
        describe_l2tp_end_points(fields, record);
        put_nonzero<6>(fields, record.l2tp_value_6);
        put_nonzero<7>(fields, record.l2tp_value_7);
        put_nonzero<8>(fields, record.l2tp_value_8);
        put_nonzero<9>(fields, record.l2tp_value_9);
        put_nonzero<10>(fields, record.l2tp_value_10);
        put_nonzero<11>(fields, record.l2tp_value_11);
        put_nonzero<12>(fields, record.l2tp_value_12);
        put_nonzero<13>(fields, record.l2tp_value_13);
        put_nonzero<14>(fields, record.l2tp_value_14);
        put_nonzero<15>(fields, record.l2tp_value_15);
        if (record.l2tp_value_15 != 0) // L37
            put_nonzero<16>(fields, record.l2tp_value_16);
        put_nonzero<17>(fields, record.l2tp_value_17);
        if (record.l2tp_value_17 != 0) // L37
            put_nonzero<18>(fields, record.l2tp_value_18);
        put_text<19>(fields, record.l2tp_name);
    }
};

// L25: takes both pairs of end points if the sender gave both: the kind decides only what we send.
inline void l2tp_from_codec(tum_nal_data_session_context &record, const mava_tum_l2tp_data &l2tp)
{
    take(record.l2tp_kind, l2tp.field_1);
    take_ipv4(record.l2tp_ipv4_2, l2tp.field_2);
    take_ipv4(record.l2tp_ipv4_3, l2tp.field_3);
    take_bytes<4>(record.l2tp_ipv6_4, l2tp, l2tp.field_4);
    take_bytes<5>(record.l2tp_ipv6_5, l2tp, l2tp.field_5);
    take(record.l2tp_value_6, l2tp.field_6);
    take(record.l2tp_value_7, l2tp.field_7);
    take(record.l2tp_value_8, l2tp.field_8);
    take(record.l2tp_value_9, l2tp.field_9);
    take(record.l2tp_value_10, l2tp.field_10);
    take(record.l2tp_value_11, l2tp.field_11);
    take(record.l2tp_value_12, l2tp.field_12);
    take(record.l2tp_value_13, l2tp.field_13);
    take(record.l2tp_value_14, l2tp.field_14);
    take(record.l2tp_value_15, l2tp.field_15);
    take(record.l2tp_value_16, l2tp.field_16);
    take(record.l2tp_value_17, l2tp.field_17);
    take(record.l2tp_value_18, l2tp.field_18);
    take_text<19>(record.l2tp_name, l2tp, l2tp.field_19);
}

struct vlan_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        if (has_feature(record, TUM_NAL_FEATURE_VLAN_1))
            put<1>(fields, record.vlan_value_1);
        if (has_feature(record, TUM_NAL_FEATURE_VLAN_2))
            put<2>(fields, record.vlan_value_2);
    }
};

inline void vlan_from_codec(tum_nal_data_session_context &record, const mava_tum_vlan_info &vlan)
{
    take(record.vlan_value_1, vlan.field_1);
    take(record.vlan_value_2, vlan.field_2);
}

// ---- session data ----

// L37: for other kinds the identifier stays behind, and value 9 for all but one.
inline bool has_session_identifier(const tum_nal_data_session_context &record)
{
    return record.session_value_1 == TUM_NAL_SESSION_KIND_1 || record.session_value_1 == TUM_NAL_SESSION_KIND_4;
}

struct session_data_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        put_nonzero<1>(fields, record.session_data_value_1);
        put_nonzero<2>(fields, record.session_data_value_2);
        put_record<3, ppp_fields>(fields, record); // L36: also when it is empty
        if (has_feature(record, TUM_NAL_FEATURE_L2TP))
            put_record<4, l2tp_fields>(fields, record);
        put_text<5>(fields, record.session_name);
        if (has_session_identifier(record))
            put_bytes<6>(fields, record.session_identifier);
        put_text<7>(fields, record.session_label);
        put_text<8>(fields, record.session_text);
        if (record.session_value_1 == TUM_NAL_SESSION_KIND_4)
            put_nonzero<9>(fields, record.session_value_9);
        if (has_feature(record, TUM_NAL_FEATURE_VLAN_1 | TUM_NAL_FEATURE_VLAN_2))
            put_record<10, vlan_fields>(fields, record);
        put_nonzero<11>(fields, record.session_data_value_11);
    }
};

inline void session_data_from_codec(tum_nal_data_session_context &record, const mava_tum_session_data &data)
{
    take(record.session_data_value_1, data.field_1);
    take(record.session_data_value_2, data.field_2);
    ppp_from_codec(record, data.ppp);
    l2tp_from_codec(record, data.l2tp);
    take_text<5>(record.session_name, data, data.field_5);
    take_bytes<6>(record.session_identifier, data, data.field_6);
    take_text<7>(record.session_label, data, data.field_7);
    take_text<8>(record.session_text, data, data.field_8);
    take(record.session_value_9, data.field_9);
    vlan_from_codec(record, data.vlan);
    take(record.session_data_value_11, data.field_11);
}

} // namespace mava_tum
