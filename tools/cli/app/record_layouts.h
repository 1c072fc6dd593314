// The layouts of all application records; see record_member.h.
#pragma once

#include "app/record_member.h"
#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"
#include "tum_nal/nal_routes.h"
#include "tum_nal/nal_session.h"
#include "tum_nal/nal_session_context.h"
#include "tum_nal/nal_statistics.h"

namespace mava_tum_cli
{

// record_layouts_session.cpp
template <>
const record_layout &layout_of<tum_nal_data_qos_element>();
template <>
const record_layout &layout_of<tum_nal_data_session_context>();
template <>
const record_layout &layout_of<tum_nal_data_session_delete>();
template <>
const record_layout &layout_of<tum_nal_data_sess_oper_resp>();

// record_layouts_statistics.cpp
template <>
const record_layout &layout_of<tum_nal_data_stats_block>();
template <>
const record_layout &layout_of<tum_nal_data_service_entry>();
template <>
const record_layout &layout_of<tum_nal_data_subscriber_stats>();

// record_layouts_routes.cpp
template <>
const record_layout &layout_of<tum_nal_data_ipv4_route>();
template <>
const record_layout &layout_of<tum_nal_data_ipv6_route>();
template <>
const record_layout &layout_of<tum_nal_data_sub_route>();
template <>
const record_layout &layout_of<tum_nal_data_subscriber_route_resp>();

// record_layouts_reconciliation.cpp
template <>
const record_layout &layout_of<tum_nal_data_rec_start_req>();
template <>
const record_layout &layout_of<tum_nal_data_rec_complete_req>();
template <>
const record_layout &layout_of<tum_nal_data_rec_res>();
template <>
const record_layout &layout_of<tum_nal_data_session_state>();
template <>
const record_layout &layout_of<tum_nal_data_rec_sess_req>();
template <>
const record_layout &layout_of<tum_nal_data_rec_sess_res>();
template <>
const record_layout &layout_of<tum_nal_data_rec_sess_replay_req_encode>();
template <>
const record_layout &layout_of<tum_nal_data_rec_sess_replay_req_decode>();
template <>
const record_layout &layout_of<tum_nal_data_replay_failure>();
template <>
const record_layout &layout_of<tum_nal_data_service_start>();
template <>
const record_layout &layout_of<tum_nal_data_rec_sess_replay_resp>();

// record_layouts_redundancy_group.cpp
template <>
const record_layout &layout_of<tum_nal_data_srg_group_rec_start_req>();
template <>
const record_layout &layout_of<tum_nal_data_srg_group_rec_resp>();
template <>
const record_layout &layout_of<tum_nal_data_srg_group_rec_complete_req>();
template <>
const record_layout &layout_of<tum_nal_data_group_data>();
template <>
const record_layout &layout_of<tum_nal_data_srg_group_rec_replay_req>();
template <>
const record_layout &layout_of<tum_nal_data_srg_group_rec_replay_resp>();

} // namespace mava_tum_cli
