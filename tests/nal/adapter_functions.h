// The two functions of each adapter under one name, found by the record, so that a test can be written once for
// several.
#pragma once

#include "mava_tum.h"

namespace mava_tum_test
{

template <class record_type>
struct adapter_functions;

template <>
struct adapter_functions<tum_nal_data_session_context> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_session_context;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_session_context;
};

template <>
struct adapter_functions<tum_nal_data_session_delete> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_session_delete;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_session_delete;
};

template <>
struct adapter_functions<tum_nal_data_sess_oper_resp> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_sess_oper_resp;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_sess_oper_resp;
};

template <>
struct adapter_functions<tum_nal_data_subscriber_stats> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_subscriber_stats;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_subscriber_stats;
};

template <>
struct adapter_functions<tum_nal_data_sub_route> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_sub_route;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_sub_route;
};

template <>
struct adapter_functions<tum_nal_data_subscriber_route_resp> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_subscriber_route_resp;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_subscriber_route_resp;
};

template <>
struct adapter_functions<tum_nal_data_rec_start_req> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_start_req;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_start_req;
};

template <>
struct adapter_functions<tum_nal_data_rec_complete_req> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_complete_req;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_complete_req;
};

template <>
struct adapter_functions<tum_nal_data_rec_sess_req> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_sess_req;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_sess_req;
};

template <>
struct adapter_functions<tum_nal_data_rec_sess_res> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_sess_res;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_sess_res;
};

template <>
struct adapter_functions<tum_nal_data_rec_sess_replay_resp> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_sess_replay_resp;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_sess_replay_resp;
};

template <>
struct adapter_functions<tum_nal_data_srg_group_rec_start_req> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_srg_group_rec_start_req;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_srg_group_rec_start_req;
};

template <>
struct adapter_functions<tum_nal_data_srg_group_rec_resp> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_srg_group_rec_resp;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_srg_group_rec_resp;
};

template <>
struct adapter_functions<tum_nal_data_srg_group_rec_complete_req> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_srg_group_rec_complete_req;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_srg_group_rec_complete_req;
};

template <>
struct adapter_functions<tum_nal_data_srg_group_rec_replay_req> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_srg_group_rec_replay_req;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req;
};

template <>
struct adapter_functions<tum_nal_data_srg_group_rec_replay_resp> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_srg_group_rec_replay_resp;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_srg_group_rec_replay_resp;
};

// A replay request is sent from one record and received into another.
template <>
struct adapter_functions<tum_nal_data_rec_sess_replay_req_encode> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_sess_replay_req;
};

template <>
struct adapter_functions<tum_nal_data_rec_sess_replay_req_decode> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_sess_replay_req;
};

// Two adapters share a record. The type without a member of its own names the second.
struct rec_complete_res : tum_nal_data_rec_res {
};

template <>
struct adapter_functions<tum_nal_data_rec_res> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_start_res;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_start_res;
};

template <>
struct adapter_functions<rec_complete_res> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_complete_res;
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_complete_res;
};

} // namespace mava_tum_test
