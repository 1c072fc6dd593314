#include "sweeps/message_list.h"

namespace mava_tum_test
{

const std::vector<message> &all_messages()
{
    static const std::vector<message> messages = {
        message_functions<mava_tum_subscriber_v4_decode_ext, mava_tum_subscriber_v4_encode_ext,
            mava_tum_subscriber_v4_duplicate, mava_tum_subscriber_v4_free_ext>::named("subscriber_v4"),
        message_functions<mava_tum_subscriber_v6_decode_ext, mava_tum_subscriber_v6_encode_ext,
            mava_tum_subscriber_v6_duplicate, mava_tum_subscriber_v6_free_ext>::named("subscriber_v6"),
        message_functions<mava_tum_ppp_data_decode_ext, mava_tum_ppp_data_encode_ext, mava_tum_ppp_data_duplicate,
            mava_tum_ppp_data_free_ext>::named("ppp_data"),
        message_functions<mava_tum_l2tp_data_decode_ext, mava_tum_l2tp_data_encode_ext, mava_tum_l2tp_data_duplicate,
            mava_tum_l2tp_data_free_ext>::named("l2tp_data"),
        message_functions<mava_tum_vlan_info_decode_ext, mava_tum_vlan_info_encode_ext, mava_tum_vlan_info_duplicate,
            mava_tum_vlan_info_free_ext>::named("vlan_info"),
        message_functions<mava_tum_session_data_decode_ext, mava_tum_session_data_encode_ext,
            mava_tum_session_data_duplicate, mava_tum_session_data_free_ext>::named("session_data"),
        message_functions<mava_tum_subscriber_qos_decode_ext, mava_tum_subscriber_qos_encode_ext,
            mava_tum_subscriber_qos_duplicate, mava_tum_subscriber_qos_free_ext>::named("subscriber_qos"),
        message_functions<mava_tum_subscriber_acl_decode_ext, mava_tum_subscriber_acl_encode_ext,
            mava_tum_subscriber_acl_duplicate, mava_tum_subscriber_acl_free_ext>::named("subscriber_acl"),
        message_functions<mava_tum_subscriber_httpr_decode_ext, mava_tum_subscriber_httpr_encode_ext,
            mava_tum_subscriber_httpr_duplicate, mava_tum_subscriber_httpr_free_ext>::named("subscriber_httpr"),
        message_functions<mava_tum_subscriber_li_decode_ext, mava_tum_subscriber_li_encode_ext,
            mava_tum_subscriber_li_duplicate, mava_tum_subscriber_li_free_ext>::named("subscriber_li"),
        message_functions<mava_tum_subscriber_urpf_decode_ext, mava_tum_subscriber_urpf_encode_ext,
            mava_tum_subscriber_urpf_duplicate, mava_tum_subscriber_urpf_free_ext>::named("subscriber_urpf"),
        message_functions<mava_tum_subscriber_icmp_decode_ext, mava_tum_subscriber_icmp_encode_ext,
            mava_tum_subscriber_icmp_duplicate, mava_tum_subscriber_icmp_free_ext>::named("subscriber_icmp"),
        message_functions<mava_tum_subscriber_mtu_decode_ext, mava_tum_subscriber_mtu_encode_ext,
            mava_tum_subscriber_mtu_duplicate, mava_tum_subscriber_mtu_free_ext>::named("subscriber_mtu"),
        message_functions<mava_tum_subscriber_acct_decode_ext, mava_tum_subscriber_acct_encode_ext,
            mava_tum_subscriber_acct_duplicate, mava_tum_subscriber_acct_free_ext>::named("subscriber_acct"),
        message_functions<mava_tum_subscriber_route_ipv4_decode_ext, mava_tum_subscriber_route_ipv4_encode_ext,
            mava_tum_subscriber_route_ipv4_duplicate,
            mava_tum_subscriber_route_ipv4_free_ext>::named("subscriber_route_ipv4"),
        message_functions<mava_tum_subscriber_route_ipv6_decode_ext, mava_tum_subscriber_route_ipv6_encode_ext,
            mava_tum_subscriber_route_ipv6_duplicate,
            mava_tum_subscriber_route_ipv6_free_ext>::named("subscriber_route_ipv6"),
        message_functions<mava_tum_session_context_decode_ext, mava_tum_session_context_encode_ext,
            mava_tum_session_context_duplicate, mava_tum_session_context_free_ext>::named("session_context"),
        message_functions<mava_tum_sub_route_decode_ext, mava_tum_sub_route_encode_ext, mava_tum_sub_route_duplicate,
            mava_tum_sub_route_free_ext>::named("sub_route"),
    };
    return messages;
}

} // namespace mava_tum_test
