// Application records in which every member of the message has content: all slots used, every text as long as its
// array. sample_session.h has sessions and route batches.
#pragma once

#include "mava_tum.h"

namespace mava_tum_test
{

// Does not arrive as it was sent: the two switches are not sent.
tum_nal_data_subscriber_stats full_statistics();
tum_nal_data_subscriber_stats without_switches(tum_nal_data_subscriber_stats record);

tum_nal_data_session_delete full_session_delete();
tum_nal_data_sess_oper_resp full_sess_oper_resp();
tum_nal_data_subscriber_route_resp full_subscriber_route_resp();

tum_nal_data_rec_start_req full_rec_start_req();
tum_nal_data_rec_complete_req full_rec_complete_req();
tum_nal_data_rec_res full_rec_res();
tum_nal_data_rec_sess_req full_rec_sess_req();
tum_nal_data_rec_sess_res full_rec_sess_res();
tum_nal_data_rec_sess_replay_req_encode full_rec_sess_replay_req();
tum_nal_data_rec_sess_replay_req_decode as_received(const tum_nal_data_rec_sess_replay_req_encode &sent);
tum_nal_data_rec_sess_replay_resp full_rec_sess_replay_resp();

tum_nal_data_srg_group_rec_replay_req full_srg_group_rec_replay_req();
tum_nal_data_srg_group_rec_replay_resp full_srg_group_rec_replay_resp();

} // namespace mava_tum_test
