// A second copy of every message, typed by hand from its description so that it can disagree. See message_tables.h.
#include "model/message_tables.h"

#include <array>

namespace mava_tum_model
{

namespace
{

using enum field_kind;

constexpr field subscriber_v4_fields[] = {{1, varint32, 0}, {2, fixed32, 4, 0, nullptr, "ipv4_address"}};
constexpr message subscriber_v4_message = {"subscriber_v4", 12, 8, 1, false, subscriber_v4_fields};

constexpr field subscriber_v6_fields[] = {{1, varint32, 0}, {2, bytes, 8}, {3, bytes, 24}, {4, bytes, 40},
    {5, varint32, 56}, {6, bytes, 64}, {7, varint32, 80}};
constexpr message subscriber_v6_message = {"subscriber_v6", 88, 84, 1, true, subscriber_v6_fields};

constexpr field ppp_data_fields[] = {
    {1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}, {4, varint32, 12}, {5, bytes, 16}, {6, varint32, 32}};
constexpr message ppp_data_message = {"ppp_data", 40, 36, 1, true, ppp_data_fields};

constexpr field l2tp_data_fields[] = {{1, varint32, 0}, {2, fixed32, 4}, {3, fixed32, 8}, {4, bytes, 16},
    {5, bytes, 32}, {6, varint32, 48}, {7, varint32, 52}, {8, varint32, 56}, {9, varint32, 60}, {10, varint32, 64},
    {11, varint32, 68}, {12, varint32, 72}, {13, varint32, 76}, {14, varint32, 80}, {15, varint32, 84},
    {16, varint32, 88}, {17, varint32, 92}, {18, varint32, 96}, {19, text, 104}};
constexpr message l2tp_data_message = {"l2tp_data", 120, 112, 4, true, l2tp_data_fields};

constexpr field vlan_info_fields[] = {{1, varint32, 0}, {2, varint32, 4}};
constexpr message vlan_info_message = {"vlan_info", 12, 8, 1, false, vlan_info_fields};

constexpr field session_data_fields[] = {{1, varint32, 0}, {2, varint64, 8},
    {3, record, 16, 0, &ppp_data_message, "ppp"}, {4, record, 56, 0, &l2tp_data_message, "l2tp"}, {5, text, 176},
    {6, bytes, 184}, {7, text, 200}, {8, text, 208}, {9, varint32, 216},
    {10, record, 220, 0, &vlan_info_message, "vlan"}, {11, varint32, 232}};
constexpr message session_data_message = {"session_data", 240, 236, 2, true, session_data_fields};

constexpr field subscriber_qos_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, text, 8}, {4, text, 16},
    {5, text, 24}, {6, varint32, 32}, {7, varint32, 36}, {8, varint32, 40}, {9, text, 48}, {10, text, 56},
    {11, text, 64}, {12, text, 72}};
constexpr message subscriber_qos_message = {"subscriber_qos", 88, 80, 2, false, subscriber_qos_fields};

constexpr field subscriber_acl_fields[] = {{1, varint32, 0}, {2, text, 8}, {3, text, 16}, {4, text, 24}, {5, text, 32}};
constexpr message subscriber_acl_message = {"subscriber_acl", 48, 40, 1, false, subscriber_acl_fields};

constexpr field subscriber_httpr_fields[] = {{1, varint32, 0}, {2, text, 8}};
constexpr message subscriber_httpr_message = {"subscriber_httpr", 24, 16, 1, false, subscriber_httpr_fields};

constexpr field subscriber_li_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}, {4, bytes, 16},
    {5, varint32, 32}, {6, varint32, 36}, {7, fixed32, 40}, {8, bytes, 48}};
constexpr message subscriber_li_message = {"subscriber_li", 72, 64, 1, true, subscriber_li_fields};

constexpr field subscriber_urpf_fields[] = {{1, varint32, 0}, {2, varint32, 4}};
constexpr message subscriber_urpf_message = {"subscriber_urpf", 12, 8, 1, false, subscriber_urpf_fields};

constexpr field subscriber_icmp_fields[] = {{1, varint32, 0}};
constexpr message subscriber_icmp_message = {"subscriber_icmp", 8, 4, 1, false, subscriber_icmp_fields};

constexpr field subscriber_mtu_fields[] = {{1, varint32, 0}};
constexpr message subscriber_mtu_message = {"subscriber_mtu", 8, 4, 1, false, subscriber_mtu_fields};

constexpr field subscriber_acct_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}};
constexpr message subscriber_acct_message = {"subscriber_acct", 16, 12, 1, false, subscriber_acct_fields};

constexpr field subscriber_route_ipv4_fields[] = {{1, varint32, 0}, {2, text, 8}, {3, fixed32, 16}, {4, varint32, 20},
    {5, fixed32, 24}, {6, text, 32}, {7, varint32, 40}, {8, varint32, 44}, {9, text, 48}};
constexpr message subscriber_route_ipv4_message = {
    "subscriber_route_ipv4", 64, 56, 2, false, subscriber_route_ipv4_fields};

constexpr field subscriber_route_ipv6_fields[] = {{1, varint32, 0}, {2, text, 8}, {3, bytes, 16}, {4, varint32, 32},
    {5, bytes, 40}, {6, text, 56}, {7, varint32, 64}, {8, varint32, 68}, {9, text, 72}};
constexpr message subscriber_route_ipv6_message = {
    "subscriber_route_ipv6", 88, 80, 2, true, subscriber_route_ipv6_fields};

constexpr field session_context_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}, {4, varint32, 12},
    {5, varint32, 16, 0, nullptr, "feature_mask"}, {6, bytes, 24}, {7, varint32, 40},
    {8, record, 44, 0, &subscriber_v4_message, "subscriber_v4"},
    {9, record, 56, 0, &subscriber_v6_message, "subscriber_v6"},
    {10, record, 144, 0, &session_data_message, "session_data"},
    {11, record_array, 384, 392, &subscriber_qos_message, "qos"}, {12, record, 400, 0, &subscriber_acl_message, "acl"},
    {13, record, 448, 0, &subscriber_httpr_message, "httpr"}, {14, record, 472, 0, &subscriber_li_message, "li"},
    {15, record, 544, 0, &subscriber_urpf_message, "urpf_1"}, {16, record, 556, 0, &subscriber_urpf_message, "urpf_2"},
    {17, record, 568, 0, &subscriber_icmp_message, "icmp_1"}, {18, record, 576, 0, &subscriber_icmp_message, "icmp_2"},
    {19, record, 584, 0, &subscriber_mtu_message, "mtu_1"}, {20, record, 592, 0, &subscriber_mtu_message, "mtu_2"},
    {21, record, 600, 0, &subscriber_mtu_message, "mtu_3"}, {22, record, 608, 0, &subscriber_acct_message, "acct"},
    {23, record_array, 624, 632, &subscriber_route_ipv4_message, "route_ipv4"},
    {24, record_array, 640, 648, &subscriber_route_ipv6_message, "route_ipv6"}};
constexpr message session_context_message = {"session_context", 656, 652, 4, true, session_context_fields};

constexpr field session_delete_fields[] = {
    {1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}, {4, varint64, 16}, {5, varint32, 24}};
constexpr message session_delete_message = {"session_delete", 32, 28, 1, false, session_delete_fields};

constexpr field stats_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}, {4, varint32, 12},
    {5, varint32, 16}, {6, varint32, 20}, {7, varint32, 24}, {8, varint32, 28}, {9, varint32, 32}, {10, varint32, 36},
    {11, varint32, 40}, {12, varint32, 44}, {13, varint32, 48}, {14, varint32, 52}, {15, varint32, 56},
    {16, varint32, 60}, {17, varint32, 64}, {18, varint32, 68}};
constexpr message stats_message = {"stats", 76, 72, 4, false, stats_fields};

constexpr field service_stats_fields[] = {{1, text, 0}, {2, record, 8, 0, &stats_message}};
constexpr message service_stats_message = {"service_stats", 88, 84, 1, false, service_stats_fields};

constexpr field subscriber_stats_fields[] = {{1, varint64, 0}, {2, varint32, 8}, {3, varint32, 12}, {4, varint32, 16},
    {5, varint32, 20}, {6, varint32, 24}, {7, record, 28, 0, &stats_message},
    {8, record_array, 104, 112, &service_stats_message}, {9, varint32, 116}, {10, record, 120, 0, &stats_message},
    {11, varint32, 196}, {12, record, 200, 0, &stats_message}};
constexpr message subscriber_stats_message = {"subscriber_stats", 280, 276, 2, false, subscriber_stats_fields};

constexpr field sess_oper_resp_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}, {4, varint64, 16},
    {5, varint32, 24}, {6, text, 32}, {7, text, 40}, {8, text, 48}, {9, record, 56, 0, &subscriber_stats_message},
    {10, bytes, 336}};
constexpr message sess_oper_resp_message = {"sess_oper_resp", 360, 352, 2, true, sess_oper_resp_fields};

constexpr field sub_route_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8},
    {4, record_array, 16, 24, &subscriber_route_ipv4_message, "ipv4_routes"},
    {5, record_array, 32, 40, &subscriber_route_ipv6_message, "ipv6_routes"}, {6, varint32, 44}};
constexpr message sub_route_message = {"sub_route", 56, 48, 1, true, sub_route_fields};

constexpr field subscriber_route_resp_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, text, 8}, {4, text, 16}};
constexpr message subscriber_route_resp_message = {
    "subscriber_route_resp", 32, 24, 1, false, subscriber_route_resp_fields};

constexpr field rec_start_req_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}, {4, text, 16}};
constexpr message rec_start_req_message = {"rec_start_req", 32, 24, 1, false, rec_start_req_fields};

constexpr field rec_complete_req_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}, {4, text, 16}};
constexpr message rec_complete_req_message = {"rec_complete_req", 32, 24, 1, false, rec_complete_req_fields};

constexpr field rec_resp_fields[] = {{1, varint32, 0}, {2, text, 8}, {3, varint32, 16}};
constexpr message rec_resp_message = {"rec_resp", 24, 20, 1, false, rec_resp_fields};

constexpr field rec_session_state_fields[] = {{1, varint32, 0}, {2, varint64, 8}, {3, varint32, 16}};
constexpr message rec_session_state_message = {"rec_session_state", 24, 20, 1, false, rec_session_state_fields};

constexpr field rec_sess_req_fields[] = {{1, varint32, 0}, {2, varint32, 4},
    {3, record_array, 8, 16, &rec_session_state_message}, {4, text, 24}, {5, text, 32}, {6, varint32, 40}};
constexpr message rec_sess_req_message = {"rec_sess_req", 48, 44, 1, false, rec_sess_req_fields};

constexpr field rec_sess_resp_fields[] = {
    {1, varint32, 0}, {2, record_array, 8, 16, &rec_session_state_message}, {3, varint32, 20}, {4, varint32, 24}};
constexpr message rec_sess_resp_message = {"rec_sess_resp", 32, 28, 1, false, rec_sess_resp_fields};

constexpr field rec_sess_replay_req_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8},
    {4, record_array, 16, 24, &session_context_message}, {5, varint32, 28}, {6, text, 32}};
constexpr message rec_sess_replay_req_message = {"rec_sess_replay_req", 48, 40, 1, true, rec_sess_replay_req_fields};

constexpr field rec_sess_replay_fail_fields[] = {
    {1, varint64, 0}, {2, varint32, 8}, {3, record, 16, 0, &subscriber_stats_message}};
constexpr message rec_sess_replay_fail_message = {
    "rec_sess_replay_fail", 304, 296, 1, false, rec_sess_replay_fail_fields};

constexpr field sess_svc_start_fields[] = {
    {1, varint64, 0}, {2, varint32, 8}, {3, varint32, 12}, {4, varint32, 16}, {5, text_array, 24, 32}};
constexpr message sess_svc_start_message = {"sess_svc_start", 40, 36, 1, false, sess_svc_start_fields};

constexpr field rec_sess_replay_resp_fields[] = {{1, varint32, 0},
    {2, record_array, 8, 16, &rec_sess_replay_fail_message}, {3, record_array, 24, 32, &sess_svc_start_message},
    {4, text, 40}, {5, varint32, 48}};
constexpr message rec_sess_replay_resp_message = {
    "rec_sess_replay_resp", 56, 52, 1, false, rec_sess_replay_resp_fields};

constexpr field srg_group_rec_start_req_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}};
constexpr message srg_group_rec_start_req_message = {
    "srg_group_rec_start_req", 16, 12, 1, false, srg_group_rec_start_req_fields};

constexpr field srg_group_rec_resp_fields[] = {{1, varint32, 0}, {2, varint32, 4}};
constexpr message srg_group_rec_resp_message = {"srg_group_rec_resp", 12, 8, 1, false, srg_group_rec_resp_fields};

constexpr field srg_group_rec_complete_req_fields[] = {{1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}};
constexpr message srg_group_rec_complete_req_message = {
    "srg_group_rec_complete_req", 16, 12, 1, false, srg_group_rec_complete_req_fields};

constexpr field srg_group_data_fields[] = {
    {1, varint32, 0}, {2, varint32, 4}, {3, varint32, 8}, {4, varint32, 12}, {5, text, 16}};
constexpr message srg_group_data_message = {"srg_group_data", 32, 24, 1, false, srg_group_data_fields};

constexpr field srg_group_rec_replay_req_fields[] = {
    {1, varint32, 0}, {2, varint32, 4}, {3, record_array, 8, 16, &srg_group_data_message}, {4, varint32, 20}};
constexpr message srg_group_rec_replay_req_message = {
    "srg_group_rec_replay_req", 32, 24, 1, false, srg_group_rec_replay_req_fields};

constexpr field srg_group_rec_replay_resp_fields[] = {{1, varint32, 0},
    {2, record_array, 8, 16, &srg_group_data_message}, {3, record_array, 24, 32, &srg_group_data_message},
    {4, varint32, 36}};
constexpr message srg_group_rec_replay_resp_message = {
    "srg_group_rec_replay_resp", 48, 40, 1, false, srg_group_rec_replay_resp_fields};

constexpr std::array<const message *, 40> messages = {&subscriber_v4_message, &subscriber_v6_message, &ppp_data_message,
    &l2tp_data_message, &vlan_info_message, &session_data_message, &subscriber_qos_message, &subscriber_acl_message,
    &subscriber_httpr_message, &subscriber_li_message, &subscriber_urpf_message, &subscriber_icmp_message,
    &subscriber_mtu_message, &subscriber_acct_message, &subscriber_route_ipv4_message, &subscriber_route_ipv6_message,
    &session_context_message, &session_delete_message, &stats_message, &service_stats_message,
    &subscriber_stats_message, &sess_oper_resp_message, &sub_route_message, &subscriber_route_resp_message,
    &rec_start_req_message, &rec_complete_req_message, &rec_resp_message, &rec_session_state_message,
    &rec_sess_req_message, &rec_sess_resp_message, &rec_sess_replay_req_message, &rec_sess_replay_fail_message,
    &sess_svc_start_message, &rec_sess_replay_resp_message, &srg_group_rec_start_req_message,
    &srg_group_rec_resp_message, &srg_group_rec_complete_req_message, &srg_group_data_message,
    &srg_group_rec_replay_req_message, &srg_group_rec_replay_resp_message};

} // namespace

std::span<const message *const> all_messages()
{
    return messages;
}

const message *find_message(const std::string &name)
{
    for (const message *candidate : messages) {
        if (name == candidate->name)
            return candidate;
    }
    return nullptr;
}

std::string member_name(const field &described)
{
    return described.member != nullptr ? described.member : "field_" + std::to_string(described.number);
}

} // namespace mava_tum_model
