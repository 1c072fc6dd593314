#include "tum_nal/nal_session_context.h"

#include "nal/adapter_frame.h"
#include "nal/convert_session_context.h"

#include <cstddef>

extern "C" uint64_t tum_nal_data_gpb_encode_tum_session_context(
    const tum_nal_data_session_context *record, uint8_t *buffer, uint32_t capacity)
{
    return mava_tum::encode_directly<mava_tum_session_context, mava_tum::session_context_fields>(
        *record, buffer, capacity);
}

extern "C" void tum_nal_data_gpb_decode_tum_session_context(
    const uint8_t *data, uint32_t length, tum_nal_data_session_context *record)
{
    mava_tum::decode_frame(
        data, length, record, mava_tum::session_context_from_codec, mava_tum_session_context_free_ext);
}

// ---- layout: programs built against the header rely on it ----

#if UINTPTR_MAX == UINT64_MAX // elsewhere a uint64_t may be aligned otherwise
static_assert(sizeof(tum_nal_data_qos_element) == 792 && alignof(tum_nal_data_qos_element) == 4);
static_assert(offsetof(tum_nal_data_qos_element, value_2) == 4);
static_assert(offsetof(tum_nal_data_qos_element, text_3) == 8);
static_assert(offsetof(tum_nal_data_qos_element, text_4) == 73);
static_assert(offsetof(tum_nal_data_qos_element, text_5) == 329);
static_assert(offsetof(tum_nal_data_qos_element, value_6) == 586);
static_assert(offsetof(tum_nal_data_qos_element, value_7) == 588);
static_assert(offsetof(tum_nal_data_qos_element, value_8) == 592);
static_assert(offsetof(tum_nal_data_qos_element, text_12) == 596);
static_assert(offsetof(tum_nal_data_qos_element, text_10) == 661);
static_assert(offsetof(tum_nal_data_qos_element, text_11) == 726);

using session = tum_nal_data_session_context;
static_assert(sizeof(session) == 8848 && alignof(session) == 8);
static_assert(offsetof(session, session_value_1) == 0);
static_assert(offsetof(session, session_value_2) == 4);
static_assert(offsetof(session, session_value_3) == 8);
static_assert(offsetof(session, session_value_4) == 12);
static_assert(offsetof(session, feature_mask) == 16);
static_assert(offsetof(session, reserved_6) == 20);
static_assert(offsetof(session, session_value_7) == 40);
static_assert(offsetof(session, ipv4_value_1) == 44);
static_assert(offsetof(session, ipv4_address) == 48);
static_assert(offsetof(session, reserved_10) == 52);
static_assert(offsetof(session, ipv6_value_1) == 56);
static_assert(offsetof(session, reserved_11) == 60);
static_assert(offsetof(session, ipv6_part_2) == 64);
static_assert(offsetof(session, ipv6_part_3) == 80);
static_assert(offsetof(session, ipv6_part_4) == 96);
static_assert(offsetof(session, ipv6_part_6) == 112);
static_assert(offsetof(session, ipv6_value_5) == 128);
static_assert(offsetof(session, ipv6_value_7) == 129);
static_assert(offsetof(session, session_data_value_1) == 132);
static_assert(offsetof(session, session_data_value_2) == 136);
static_assert(offsetof(session, ppp_value_1) == 144);
static_assert(offsetof(session, ppp_value_2) == 148);
static_assert(offsetof(session, ppp_value_3) == 152);
static_assert(offsetof(session, ppp_value_4) == 156);
static_assert(offsetof(session, ppp_identifier) == 160);
static_assert(offsetof(session, ppp_value_6) == 170);
static_assert(offsetof(session, l2tp_kind) == 172);
static_assert(offsetof(session, l2tp_ipv4_2) == 176);
static_assert(offsetof(session, l2tp_ipv4_3) == 180);
static_assert(offsetof(session, l2tp_ipv6_4) == 184);
static_assert(offsetof(session, l2tp_ipv6_5) == 200);
static_assert(offsetof(session, l2tp_value_6) == 216);
static_assert(offsetof(session, l2tp_value_7) == 218);
static_assert(offsetof(session, l2tp_value_8) == 220);
static_assert(offsetof(session, l2tp_value_9) == 222);
static_assert(offsetof(session, l2tp_value_10) == 224);
static_assert(offsetof(session, l2tp_value_11) == 228);
static_assert(offsetof(session, l2tp_value_12) == 232);
static_assert(offsetof(session, l2tp_value_13) == 236);
static_assert(offsetof(session, l2tp_value_14) == 240);
static_assert(offsetof(session, l2tp_value_15) == 244);
static_assert(offsetof(session, l2tp_value_16) == 248);
static_assert(offsetof(session, l2tp_value_17) == 252);
static_assert(offsetof(session, l2tp_value_18) == 256);
static_assert(offsetof(session, l2tp_name) == 260);
static_assert(offsetof(session, session_name) == 293);
static_assert(offsetof(session, session_identifier) == 358);
static_assert(offsetof(session, session_label) == 365);
static_assert(offsetof(session, session_text) == 398);
static_assert(offsetof(session, session_value_9) == 464);
static_assert(offsetof(session, vlan_value_1) == 466);
static_assert(offsetof(session, vlan_value_2) == 468);
static_assert(offsetof(session, session_data_value_11) == 472);
static_assert(offsetof(session, qos) == 476);
static_assert(offsetof(session, qos_count) == 6812);
static_assert(offsetof(session, acl_value_1) == 6816);
static_assert(offsetof(session, acl_text_2) == 6820);
static_assert(offsetof(session, acl_text_3) == 6885);
static_assert(offsetof(session, acl_text_4) == 6950);
static_assert(offsetof(session, acl_text_5) == 7015);
static_assert(offsetof(session, redirect_value_1) == 7080);
static_assert(offsetof(session, redirect_text_2) == 7084);
static_assert(offsetof(session, intercept_value_1) == 7340);
static_assert(offsetof(session, intercept_value_2) == 7344);
static_assert(offsetof(session, intercept_value_3) == 7348);
static_assert(offsetof(session, intercept_identifier) == 7350);
static_assert(offsetof(session, intercept_value_5) == 7360);
static_assert(offsetof(session, intercept_value_6) == 7364);
static_assert(offsetof(session, intercept_ipv4_address) == 7368);
static_assert(offsetof(session, intercept_ipv6_address) == 7372);
static_assert(offsetof(session, urpf_1_value_1) == 7388);
static_assert(offsetof(session, urpf_1_value_2) == 7392);
static_assert(offsetof(session, urpf_2_value_1) == 7396);
static_assert(offsetof(session, urpf_2_value_2) == 7400);
static_assert(offsetof(session, icmp_1_value) == 7404);
static_assert(offsetof(session, icmp_2_value) == 7408);
static_assert(offsetof(session, mtu_1_value) == 7412);
static_assert(offsetof(session, mtu_2_value) == 7416);
static_assert(offsetof(session, mtu_3_value) == 7420);
static_assert(offsetof(session, accounting_flags) == 7424);
static_assert(offsetof(session, accounting_value_2) == 7428);
static_assert(offsetof(session, accounting_value_3) == 7432);
static_assert(offsetof(session, ipv4_route_count) == 7436);
static_assert(offsetof(session, ipv6_route_count) == 7437);
static_assert(offsetof(session, ipv4_routes) == 7440);
static_assert(offsetof(session, ipv6_routes) == 8096);
#endif
