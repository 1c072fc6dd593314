// protobuf C++: messages generated from session.proto, as proto3 or as proto2, the ordinary runtime.
#include "peers/harness/peer_program.h"
#include "peers/harness/workload_names.h"
#include "peers/protobuf/protobuf_records.h"

// The operations find fill_peer and read_peer above.
#include "peers/protobuf/protobuf_operations.h"

namespace bench
{

std::string peer_version()
{
    constexpr int version = GOOGLE_PROTOBUF_VERSION;
    return "protobuf C++ " + std::to_string(version / 1000000) + "." + std::to_string(version / 1000 % 1000) + "." +
           std::to_string(version % 1000) + " with " + peer_language;
}

void add_operations(suite &operations)
{
    const std::string &workload = operations.content().workload;
    if (is_session(workload))
        add_all<peer::SessionContext, tum_nal_data_session_context>(operations);
    else if (workload == route_batch)
        add_all<peer::SubRoute, tum_nal_data_sub_route>(operations);
    else if (workload == subscriber_stats)
        add_all<peer::SubscriberStats, tum_nal_data_subscriber_stats>(operations);
    else if (workload == session_states)
        add_all<peer::RecSessReq, tum_nal_data_rec_sess_req>(operations);
    else if (workload == group_start)
        add_all<peer::SrgGroupRecStartReq, tum_nal_data_srg_group_rec_start_req>(operations);
    else if (is_replay(workload))
        add_codec<peer::RecSessReplayReq>(operations);
    else if (is_large_bytes(workload))
        add_codec<peer::SessionContext>(operations);
}

} // namespace bench
