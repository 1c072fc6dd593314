// The four functions of each message under one name, so that a test can be written once for several messages.
#pragma once

#include "mava_tum.h"

#include <cstdint>

namespace mava_tum_test
{

// `own_bits`: the bits of the presence mask that belong to a field. All others are spare.
template <class record_type>
struct message_functions;

template <>
struct message_functions<mava_tum_subscriber_v4> {
    static constexpr auto decode = mava_tum_subscriber_v4_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_v4_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_v4_duplicate;
    static constexpr auto release = mava_tum_subscriber_v4_free_ext;
    static constexpr uint32_t own_bits = 0x03;
};

template <>
struct message_functions<mava_tum_subscriber_v6> {
    static constexpr auto decode = mava_tum_subscriber_v6_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_v6_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_v6_duplicate;
    static constexpr auto release = mava_tum_subscriber_v6_free_ext;
    static constexpr uint32_t own_bits = 0x7F;
};

template <>
struct message_functions<mava_tum_ppp_data> {
    static constexpr auto decode = mava_tum_ppp_data_decode_ext;
    static constexpr auto encode = mava_tum_ppp_data_encode_ext;
    static constexpr auto duplicate = mava_tum_ppp_data_duplicate;
    static constexpr auto release = mava_tum_ppp_data_free_ext;
    static constexpr uint32_t own_bits = 0x3F;
};

template <>
struct message_functions<mava_tum_l2tp_data> {
    static constexpr auto decode = mava_tum_l2tp_data_decode_ext;
    static constexpr auto encode = mava_tum_l2tp_data_encode_ext;
    static constexpr auto duplicate = mava_tum_l2tp_data_duplicate;
    static constexpr auto release = mava_tum_l2tp_data_free_ext;
    static constexpr uint32_t own_bits = 0x7FFFF;
};

template <>
struct message_functions<mava_tum_vlan_info> {
    static constexpr auto decode = mava_tum_vlan_info_decode_ext;
    static constexpr auto encode = mava_tum_vlan_info_encode_ext;
    static constexpr auto duplicate = mava_tum_vlan_info_duplicate;
    static constexpr auto release = mava_tum_vlan_info_free_ext;
    static constexpr uint32_t own_bits = 0x03;
};

template <>
struct message_functions<mava_tum_session_data> {
    static constexpr auto decode = mava_tum_session_data_decode_ext;
    static constexpr auto encode = mava_tum_session_data_encode_ext;
    static constexpr auto duplicate = mava_tum_session_data_duplicate;
    static constexpr auto release = mava_tum_session_data_free_ext;
    static constexpr uint32_t own_bits = 0x7FF;
};

template <>
struct message_functions<mava_tum_subscriber_qos> {
    static constexpr auto decode = mava_tum_subscriber_qos_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_qos_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_qos_duplicate;
    static constexpr auto release = mava_tum_subscriber_qos_free_ext;
    static constexpr uint32_t own_bits = 0xFFF;
};

template <>
struct message_functions<mava_tum_subscriber_acl> {
    static constexpr auto decode = mava_tum_subscriber_acl_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_acl_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_acl_duplicate;
    static constexpr auto release = mava_tum_subscriber_acl_free_ext;
    static constexpr uint32_t own_bits = 0x1F;
};

template <>
struct message_functions<mava_tum_subscriber_httpr> {
    static constexpr auto decode = mava_tum_subscriber_httpr_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_httpr_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_httpr_duplicate;
    static constexpr auto release = mava_tum_subscriber_httpr_free_ext;
    static constexpr uint32_t own_bits = 0x03;
};

template <>
struct message_functions<mava_tum_subscriber_li> {
    static constexpr auto decode = mava_tum_subscriber_li_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_li_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_li_duplicate;
    static constexpr auto release = mava_tum_subscriber_li_free_ext;
    static constexpr uint32_t own_bits = 0xFF;
};

template <>
struct message_functions<mava_tum_subscriber_urpf> {
    static constexpr auto decode = mava_tum_subscriber_urpf_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_urpf_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_urpf_duplicate;
    static constexpr auto release = mava_tum_subscriber_urpf_free_ext;
    static constexpr uint32_t own_bits = 0x03;
};

template <>
struct message_functions<mava_tum_subscriber_icmp> {
    static constexpr auto decode = mava_tum_subscriber_icmp_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_icmp_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_icmp_duplicate;
    static constexpr auto release = mava_tum_subscriber_icmp_free_ext;
    static constexpr uint32_t own_bits = 0x01;
};

template <>
struct message_functions<mava_tum_subscriber_mtu> {
    static constexpr auto decode = mava_tum_subscriber_mtu_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_mtu_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_mtu_duplicate;
    static constexpr auto release = mava_tum_subscriber_mtu_free_ext;
    static constexpr uint32_t own_bits = 0x01;
};

template <>
struct message_functions<mava_tum_subscriber_acct> {
    static constexpr auto decode = mava_tum_subscriber_acct_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_acct_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_acct_duplicate;
    static constexpr auto release = mava_tum_subscriber_acct_free_ext;
    static constexpr uint32_t own_bits = 0x07;
};

template <>
struct message_functions<mava_tum_subscriber_route_ipv4> {
    static constexpr auto decode = mava_tum_subscriber_route_ipv4_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_route_ipv4_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_route_ipv4_duplicate;
    static constexpr auto release = mava_tum_subscriber_route_ipv4_free_ext;
    static constexpr uint32_t own_bits = 0x1FF;
};

template <>
struct message_functions<mava_tum_subscriber_route_ipv6> {
    static constexpr auto decode = mava_tum_subscriber_route_ipv6_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_route_ipv6_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_route_ipv6_duplicate;
    static constexpr auto release = mava_tum_subscriber_route_ipv6_free_ext;
    static constexpr uint32_t own_bits = 0x1FF;
};

template <>
struct message_functions<mava_tum_session_context> {
    static constexpr auto decode = mava_tum_session_context_decode_ext;
    static constexpr auto encode = mava_tum_session_context_encode_ext;
    static constexpr auto duplicate = mava_tum_session_context_duplicate;
    static constexpr auto release = mava_tum_session_context_free_ext;
    static constexpr uint32_t own_bits = 0xFFFFFF;
};

template <>
struct message_functions<mava_tum_sub_route> {
    static constexpr auto decode = mava_tum_sub_route_decode_ext;
    static constexpr auto encode = mava_tum_sub_route_encode_ext;
    static constexpr auto duplicate = mava_tum_sub_route_duplicate;
    static constexpr auto release = mava_tum_sub_route_free_ext;
    static constexpr uint32_t own_bits = 0x3F;
};

template <>
struct message_functions<mava_tum_session_delete> {
    static constexpr auto decode = mava_tum_session_delete_decode_ext;
    static constexpr auto encode = mava_tum_session_delete_encode_ext;
    static constexpr auto duplicate = mava_tum_session_delete_duplicate;
    static constexpr auto release = mava_tum_session_delete_free_ext;
    static constexpr uint32_t own_bits = 0x1F;
};

template <>
struct message_functions<mava_tum_sess_oper_resp> {
    static constexpr auto decode = mava_tum_sess_oper_resp_decode_ext;
    static constexpr auto encode = mava_tum_sess_oper_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_sess_oper_resp_duplicate;
    static constexpr auto release = mava_tum_sess_oper_resp_free_ext;
    static constexpr uint32_t own_bits = 0x3FF;
};

template <>
struct message_functions<mava_tum_stats> {
    static constexpr auto decode = mava_tum_stats_decode_ext;
    static constexpr auto encode = mava_tum_stats_encode_ext;
    static constexpr auto duplicate = mava_tum_stats_duplicate;
    static constexpr auto release = mava_tum_stats_free_ext;
    static constexpr uint32_t own_bits = 0x3FFFF;
};

template <>
struct message_functions<mava_tum_service_stats> {
    static constexpr auto decode = mava_tum_service_stats_decode_ext;
    static constexpr auto encode = mava_tum_service_stats_encode_ext;
    static constexpr auto duplicate = mava_tum_service_stats_duplicate;
    static constexpr auto release = mava_tum_service_stats_free_ext;
    static constexpr uint32_t own_bits = 0x03;
};

template <>
struct message_functions<mava_tum_subscriber_stats> {
    static constexpr auto decode = mava_tum_subscriber_stats_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_stats_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_stats_duplicate;
    static constexpr auto release = mava_tum_subscriber_stats_free_ext;
    static constexpr uint32_t own_bits = 0xFFF;
};

template <>
struct message_functions<mava_tum_subscriber_route_resp> {
    static constexpr auto decode = mava_tum_subscriber_route_resp_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_route_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_route_resp_duplicate;
    static constexpr auto release = mava_tum_subscriber_route_resp_free_ext;
    static constexpr uint32_t own_bits = 0x0F;
};

template <>
struct message_functions<mava_tum_rec_start_req> {
    static constexpr auto decode = mava_tum_rec_start_req_decode_ext;
    static constexpr auto encode = mava_tum_rec_start_req_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_start_req_duplicate;
    static constexpr auto release = mava_tum_rec_start_req_free_ext;
    static constexpr uint32_t own_bits = 0x0F;
};

template <>
struct message_functions<mava_tum_rec_complete_req> {
    static constexpr auto decode = mava_tum_rec_complete_req_decode_ext;
    static constexpr auto encode = mava_tum_rec_complete_req_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_complete_req_duplicate;
    static constexpr auto release = mava_tum_rec_complete_req_free_ext;
    static constexpr uint32_t own_bits = 0x0F;
};

template <>
struct message_functions<mava_tum_rec_resp> {
    static constexpr auto decode = mava_tum_rec_resp_decode_ext;
    static constexpr auto encode = mava_tum_rec_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_resp_duplicate;
    static constexpr auto release = mava_tum_rec_resp_free_ext;
    static constexpr uint32_t own_bits = 0x07;
};

template <>
struct message_functions<mava_tum_rec_session_state> {
    static constexpr auto decode = mava_tum_rec_session_state_decode_ext;
    static constexpr auto encode = mava_tum_rec_session_state_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_session_state_duplicate;
    static constexpr auto release = mava_tum_rec_session_state_free_ext;
    static constexpr uint32_t own_bits = 0x07;
};

template <>
struct message_functions<mava_tum_rec_sess_req> {
    static constexpr auto decode = mava_tum_rec_sess_req_decode_ext;
    static constexpr auto encode = mava_tum_rec_sess_req_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_sess_req_duplicate;
    static constexpr auto release = mava_tum_rec_sess_req_free_ext;
    static constexpr uint32_t own_bits = 0x3F;
};

template <>
struct message_functions<mava_tum_rec_sess_resp> {
    static constexpr auto decode = mava_tum_rec_sess_resp_decode_ext;
    static constexpr auto encode = mava_tum_rec_sess_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_sess_resp_duplicate;
    static constexpr auto release = mava_tum_rec_sess_resp_free_ext;
    static constexpr uint32_t own_bits = 0x0F;
};

template <>
struct message_functions<mava_tum_rec_sess_replay_req> {
    static constexpr auto decode = mava_tum_rec_sess_replay_req_decode_ext;
    static constexpr auto encode = mava_tum_rec_sess_replay_req_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_sess_replay_req_duplicate;
    static constexpr auto release = mava_tum_rec_sess_replay_req_free_ext;
    static constexpr uint32_t own_bits = 0x3F;
};

template <>
struct message_functions<mava_tum_rec_sess_replay_fail> {
    static constexpr auto decode = mava_tum_rec_sess_replay_fail_decode_ext;
    static constexpr auto encode = mava_tum_rec_sess_replay_fail_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_sess_replay_fail_duplicate;
    static constexpr auto release = mava_tum_rec_sess_replay_fail_free_ext;
    static constexpr uint32_t own_bits = 0x07;
};

template <>
struct message_functions<mava_tum_sess_svc_start> {
    static constexpr auto decode = mava_tum_sess_svc_start_decode_ext;
    static constexpr auto encode = mava_tum_sess_svc_start_encode_ext;
    static constexpr auto duplicate = mava_tum_sess_svc_start_duplicate;
    static constexpr auto release = mava_tum_sess_svc_start_free_ext;
    static constexpr uint32_t own_bits = 0x1F;
};

template <>
struct message_functions<mava_tum_rec_sess_replay_resp> {
    static constexpr auto decode = mava_tum_rec_sess_replay_resp_decode_ext;
    static constexpr auto encode = mava_tum_rec_sess_replay_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_sess_replay_resp_duplicate;
    static constexpr auto release = mava_tum_rec_sess_replay_resp_free_ext;
    static constexpr uint32_t own_bits = 0x1F;
};

template <>
struct message_functions<mava_tum_srg_group_rec_start_req> {
    static constexpr auto decode = mava_tum_srg_group_rec_start_req_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_rec_start_req_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_rec_start_req_duplicate;
    static constexpr auto release = mava_tum_srg_group_rec_start_req_free_ext;
    static constexpr uint32_t own_bits = 0x07;
};

template <>
struct message_functions<mava_tum_srg_group_rec_resp> {
    static constexpr auto decode = mava_tum_srg_group_rec_resp_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_rec_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_rec_resp_duplicate;
    static constexpr auto release = mava_tum_srg_group_rec_resp_free_ext;
    static constexpr uint32_t own_bits = 0x03;
};

template <>
struct message_functions<mava_tum_srg_group_rec_complete_req> {
    static constexpr auto decode = mava_tum_srg_group_rec_complete_req_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_rec_complete_req_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_rec_complete_req_duplicate;
    static constexpr auto release = mava_tum_srg_group_rec_complete_req_free_ext;
    static constexpr uint32_t own_bits = 0x07;
};

template <>
struct message_functions<mava_tum_srg_group_data> {
    static constexpr auto decode = mava_tum_srg_group_data_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_data_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_data_duplicate;
    static constexpr auto release = mava_tum_srg_group_data_free_ext;
    static constexpr uint32_t own_bits = 0x1F;
};

template <>
struct message_functions<mava_tum_srg_group_rec_replay_req> {
    static constexpr auto decode = mava_tum_srg_group_rec_replay_req_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_rec_replay_req_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_rec_replay_req_duplicate;
    static constexpr auto release = mava_tum_srg_group_rec_replay_req_free_ext;
    static constexpr uint32_t own_bits = 0x0F;
};

template <>
struct message_functions<mava_tum_srg_group_rec_replay_resp> {
    static constexpr auto decode = mava_tum_srg_group_rec_replay_resp_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_rec_replay_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_rec_replay_resp_duplicate;
    static constexpr auto release = mava_tum_srg_group_rec_replay_resp_free_ext;
    static constexpr uint32_t own_bits = 0x0F;
};

} // namespace mava_tum_test
