#include "sweeps/message_list.h"

#include <algorithm>
#include <iterator>

namespace mava_tum_test
{

const std::vector<message> &all_messages()
{
    static const std::vector<message> messages = {
        message_of<mava_tum_subscriber_v4>("subscriber_v4"),
        message_of<mava_tum_subscriber_v6>("subscriber_v6"),
        message_of<mava_tum_ppp_data>("ppp_data"),
        message_of<mava_tum_l2tp_data>("l2tp_data"),
        message_of<mava_tum_vlan_info>("vlan_info"),
        message_of<mava_tum_session_data>("session_data"),
        message_of<mava_tum_subscriber_qos>("subscriber_qos"),
        message_of<mava_tum_subscriber_acl>("subscriber_acl"),
        message_of<mava_tum_subscriber_httpr>("subscriber_httpr"),
        message_of<mava_tum_subscriber_li>("subscriber_li"),
        message_of<mava_tum_subscriber_urpf>("subscriber_urpf"),
        message_of<mava_tum_subscriber_icmp>("subscriber_icmp"),
        message_of<mava_tum_subscriber_mtu>("subscriber_mtu"),
        message_of<mava_tum_subscriber_acct>("subscriber_acct"),
        message_of<mava_tum_subscriber_route_ipv4>("subscriber_route_ipv4"),
        message_of<mava_tum_subscriber_route_ipv6>("subscriber_route_ipv6"),
        message_of<mava_tum_session_context>("session_context"),
        message_of<mava_tum_sub_route>("sub_route"),
        message_of<mava_tum_stats>("stats"),
        message_of<mava_tum_service_stats>("service_stats"),
        message_of<mava_tum_subscriber_stats>("subscriber_stats"),
        message_of<mava_tum_session_delete>("session_delete"),
        message_of<mava_tum_sess_oper_resp>("sess_oper_resp"),
        message_of<mava_tum_subscriber_route_resp>("subscriber_route_resp"),
        message_of<mava_tum_rec_start_req>("rec_start_req"),
        message_of<mava_tum_rec_complete_req>("rec_complete_req"),
        message_of<mava_tum_rec_resp>("rec_resp"),
        message_of<mava_tum_rec_session_state>("rec_session_state"),
        message_of<mava_tum_rec_sess_req>("rec_sess_req"),
        message_of<mava_tum_rec_sess_resp>("rec_sess_resp"),
        message_of<mava_tum_rec_sess_replay_req>("rec_sess_replay_req"),
        message_of<mava_tum_rec_sess_replay_fail>("rec_sess_replay_fail"),
        message_of<mava_tum_sess_svc_start>("sess_svc_start"),
        message_of<mava_tum_rec_sess_replay_resp>("rec_sess_replay_resp"),
        message_of<mava_tum_srg_group_rec_start_req>("srg_group_rec_start_req"),
        message_of<mava_tum_srg_group_rec_resp>("srg_group_rec_resp"),
        message_of<mava_tum_srg_group_rec_complete_req>("srg_group_rec_complete_req"),
        message_of<mava_tum_srg_group_data>("srg_group_data"),
        message_of<mava_tum_srg_group_rec_replay_req>("srg_group_rec_replay_req"),
        message_of<mava_tum_srg_group_rec_replay_resp>("srg_group_rec_replay_resp"),
    };
    return messages;
}

std::vector<message> messages_where(bool (*applies)(const message &tested))
{
    std::vector<message> found;
    std::copy_if(all_messages().begin(), all_messages().end(), std::back_inserter(found), applies);
    return found;
}

} // namespace mava_tum_test
