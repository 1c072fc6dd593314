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

} // namespace mava_tum_test
