#include "nal/convert_session_access.h"

#include "nal/convert_rows.h"
#include "nal/session_features.h"

namespace mava_tum
{

// ---- addresses ----

void subscriber_v4_to_codec(mava_tum_subscriber_v4 &v4, const tum_nal_data_session_context &record)
{
    put<1>(v4, v4.field_1, record.ipv4_value_1);
    put_ipv4<2>(v4, v4.ipv4_address, record.ipv4_address);
}

void subscriber_v4_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_v4 &v4)
{
    take<1>(record.ipv4_value_1, v4, v4.field_1);
    take_ipv4<2>(record.ipv4_address, v4, v4.ipv4_address);
}

void subscriber_v6_to_codec(mava_tum_subscriber_v6 &v6, const tum_nal_data_session_context &record)
{
    put<1>(v6, v6.field_1, record.ipv6_value_1);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_2))
        put_bytes<2>(v6, v6.field_2, record.ipv6_part_2);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_3)) {
        put_bytes<3>(v6, v6.field_3, record.ipv6_part_3);
        put<5>(v6, v6.field_5, record.ipv6_value_5);
    }
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_4))
        put_bytes<4>(v6, v6.field_4, record.ipv6_part_4);
    if (has_feature(record, TUM_NAL_FEATURE_IPV6_PART_6)) {
        put_bytes<6>(v6, v6.field_6, record.ipv6_part_6);
        put<7>(v6, v6.field_7, record.ipv6_value_7);
    }
}

void subscriber_v6_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_v6 &v6)
{
    take<1>(record.ipv6_value_1, v6, v6.field_1);
    take_bytes<2>(record.ipv6_part_2, v6, v6.field_2);
    take_bytes<3>(record.ipv6_part_3, v6, v6.field_3);
    take_bytes<4>(record.ipv6_part_4, v6, v6.field_4);
    take_bytes<6>(record.ipv6_part_6, v6, v6.field_6);
    // L24: the two values belong to parts 3 and 6: they arrive by the bit of their part, and without it they are
    // dropped.
    take<3>(record.ipv6_value_5, v6, v6.field_5);
    take<6>(record.ipv6_value_7, v6, v6.field_7);
}

// ---- PPP, L2TP and VLAN ----

static void ppp_to_codec(mava_tum_ppp_data &ppp, const tum_nal_data_session_context &record)
{
    if (has_feature(record, TUM_NAL_FEATURE_PPP_1_4)) {
        put_nonzero<1>(ppp, ppp.field_1, record.ppp_value_1);
        put_nonzero<4>(ppp, ppp.field_4, record.ppp_value_4);
    }
    if (has_feature(record, TUM_NAL_FEATURE_PPP_2_3)) {
        put_nonzero<2>(ppp, ppp.field_2, record.ppp_value_2);
        put_nonzero<3>(ppp, ppp.field_3, record.ppp_value_3);
    }
    if (has_feature(record, TUM_NAL_FEATURE_PPP_IDENTIFIER))
        put_bytes<5>(ppp, ppp.field_5, record.ppp_identifier);
    put_nonzero<6>(ppp, ppp.field_6, record.ppp_value_6);
}

static void ppp_from_codec(tum_nal_data_session_context &record, const mava_tum_ppp_data &ppp)
{
    take<1>(record.ppp_value_1, ppp, ppp.field_1);
    take<2>(record.ppp_value_2, ppp, ppp.field_2);
    take<3>(record.ppp_value_3, ppp, ppp.field_3);
    take<4>(record.ppp_value_4, ppp, ppp.field_4);
    take_bytes<5>(record.ppp_identifier, ppp, ppp.field_5);
    take<6>(record.ppp_value_6, ppp, ppp.field_6);
}

// L37: which pair of end points is sent follows from the kind; any other kind sends none.
static void l2tp_end_points_to_codec(mava_tum_l2tp_data &l2tp, const tum_nal_data_session_context &record)
{
    if (record.l2tp_kind == TUM_NAL_L2TP_IPV4) {
        put_ipv4_nonzero<2>(l2tp, l2tp.field_2, record.l2tp_ipv4_2);
        put_ipv4_nonzero<3>(l2tp, l2tp.field_3, record.l2tp_ipv4_3);
    }
    if (record.l2tp_kind == TUM_NAL_L2TP_IPV6) {
        put_ipv6_nonzero<4>(l2tp, l2tp.field_4, record.l2tp_ipv6_4);
        put_ipv6_nonzero<5>(l2tp, l2tp.field_5, record.l2tp_ipv6_5);
    }
}

static void l2tp_to_codec(mava_tum_l2tp_data &l2tp, const tum_nal_data_session_context &record)
{
    put<1>(l2tp, l2tp.field_1, record.l2tp_kind);
    l2tp_end_points_to_codec(l2tp, record);
    put_nonzero<6>(l2tp, l2tp.field_6, record.l2tp_value_6);
    put_nonzero<7>(l2tp, l2tp.field_7, record.l2tp_value_7);
    put_nonzero<8>(l2tp, l2tp.field_8, record.l2tp_value_8);
    put_nonzero<9>(l2tp, l2tp.field_9, record.l2tp_value_9);
    put_nonzero<10>(l2tp, l2tp.field_10, record.l2tp_value_10);
    put_nonzero<11>(l2tp, l2tp.field_11, record.l2tp_value_11);
    put_nonzero<12>(l2tp, l2tp.field_12, record.l2tp_value_12);
    put_nonzero<13>(l2tp, l2tp.field_13, record.l2tp_value_13);
    put_nonzero<14>(l2tp, l2tp.field_14, record.l2tp_value_14);
    put_nonzero<15>(l2tp, l2tp.field_15, record.l2tp_value_15);
    if (record.l2tp_value_15 != 0)
        put_nonzero<16>(l2tp, l2tp.field_16, record.l2tp_value_16);
    put_nonzero<17>(l2tp, l2tp.field_17, record.l2tp_value_17);
    if (record.l2tp_value_17 != 0)
        put_nonzero<18>(l2tp, l2tp.field_18, record.l2tp_value_18);
    put_text<19>(l2tp, l2tp.field_19, record.l2tp_name);
}

// L25: takes both pairs of end points if the sender gave both: the kind decides only what we send.
static void l2tp_from_codec(tum_nal_data_session_context &record, const mava_tum_l2tp_data &l2tp)
{
    take<1>(record.l2tp_kind, l2tp, l2tp.field_1);
    take_ipv4<2>(record.l2tp_ipv4_2, l2tp, l2tp.field_2);
    take_ipv4<3>(record.l2tp_ipv4_3, l2tp, l2tp.field_3);
    take_bytes<4>(record.l2tp_ipv6_4, l2tp, l2tp.field_4);
    take_bytes<5>(record.l2tp_ipv6_5, l2tp, l2tp.field_5);
    take<6>(record.l2tp_value_6, l2tp, l2tp.field_6);
    take<7>(record.l2tp_value_7, l2tp, l2tp.field_7);
    take<8>(record.l2tp_value_8, l2tp, l2tp.field_8);
    take<9>(record.l2tp_value_9, l2tp, l2tp.field_9);
    take<10>(record.l2tp_value_10, l2tp, l2tp.field_10);
    take<11>(record.l2tp_value_11, l2tp, l2tp.field_11);
    take<12>(record.l2tp_value_12, l2tp, l2tp.field_12);
    take<13>(record.l2tp_value_13, l2tp, l2tp.field_13);
    take<14>(record.l2tp_value_14, l2tp, l2tp.field_14);
    take<15>(record.l2tp_value_15, l2tp, l2tp.field_15);
    take<16>(record.l2tp_value_16, l2tp, l2tp.field_16);
    take<17>(record.l2tp_value_17, l2tp, l2tp.field_17);
    take<18>(record.l2tp_value_18, l2tp, l2tp.field_18);
    take_text<19>(record.l2tp_name, l2tp, l2tp.field_19);
}

static void vlan_to_codec(mava_tum_vlan_info &vlan, const tum_nal_data_session_context &record)
{
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_1))
        put<1>(vlan, vlan.field_1, record.vlan_value_1);
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_2))
        put<2>(vlan, vlan.field_2, record.vlan_value_2);
}

static void vlan_from_codec(tum_nal_data_session_context &record, const mava_tum_vlan_info &vlan)
{
    take<1>(record.vlan_value_1, vlan, vlan.field_1);
    take<2>(record.vlan_value_2, vlan, vlan.field_2);
}

// ---- session data ----

static bool has_session_identifier(const tum_nal_data_session_context &record)
{
    return record.session_value_1 == TUM_NAL_SESSION_KIND_1 || record.session_value_1 == TUM_NAL_SESSION_KIND_4;
}

static void nested_access_to_codec(mava_tum_session_data &data, const tum_nal_data_session_context &record)
{
    ppp_to_codec(data.ppp, record);
    mark_present<3>(data); // L36: also when it is empty
    if (has_feature(record, TUM_NAL_FEATURE_L2TP)) {
        l2tp_to_codec(data.l2tp, record);
        mark_present<4>(data);
    }
    if (has_feature(record, TUM_NAL_FEATURE_VLAN_1 | TUM_NAL_FEATURE_VLAN_2)) {
        vlan_to_codec(data.vlan, record);
        mark_present<10>(data);
    }
}

void session_data_to_codec(mava_tum_session_data &data, const tum_nal_data_session_context &record)
{
    put_nonzero<1>(data, data.field_1, record.session_data_value_1);
    put_nonzero<2>(data, data.field_2, record.session_data_value_2);
    nested_access_to_codec(data, record);
    put_text<5>(data, data.field_5, record.session_name);
    if (has_session_identifier(record))
        put_bytes<6>(data, data.field_6, record.session_identifier);
    put_text<7>(data, data.field_7, record.session_label);
    put_text<8>(data, data.field_8, record.session_text);
    if (record.session_value_1 == TUM_NAL_SESSION_KIND_4)
        put_nonzero<9>(data, data.field_9, record.session_value_9);
    put_nonzero<11>(data, data.field_11, record.session_data_value_11);
}

void session_data_from_codec(tum_nal_data_session_context &record, const mava_tum_session_data &data)
{
    take<1>(record.session_data_value_1, data, data.field_1);
    take<2>(record.session_data_value_2, data, data.field_2);
    ppp_from_codec(record, data.ppp);
    l2tp_from_codec(record, data.l2tp);
    take_text<5>(record.session_name, data, data.field_5);
    take_bytes<6>(record.session_identifier, data, data.field_6);
    take_text<7>(record.session_label, data, data.field_7);
    take_text<8>(record.session_text, data, data.field_8);
    take<9>(record.session_value_9, data, data.field_9);
    vlan_from_codec(record, data.vlan);
    take<11>(record.session_data_value_11, data, data.field_11);
}

} // namespace mava_tum
