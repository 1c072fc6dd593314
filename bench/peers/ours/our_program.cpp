// The library itself, through its codec functions and through its adapters.
#include "peers/harness/peer_program.h"
#include "peers/harness/workload_names.h"
#include "peers/ours/our_operations.h"

namespace bench
{
namespace
{

template <class Codec, class Adapter>
void add_all(suite &operations)
{
    add_codec<Codec>(operations);
    add_arena_decode<Codec>(operations, MAVA_TUM_ALIAS);
    add_adapter<Adapter>(operations);
}

void add_large_bytes(suite &operations)
{
    const bool aliased = operations.content().workload == large_bytes_aliased;
    add_decode<session_codec>(operations, aliased ? MAVA_TUM_ALIAS : 0);
    if (aliased)
        add_gathering_encode(operations);
    else
        add_encode<session_codec>(operations);
    add_duplicate<session_codec>(operations);
}

} // namespace

std::string peer_version()
{
    return "mava_tum " MAVA_TUM_BENCH_LIBRARY_VERSION;
}

void add_operations(suite &operations)
{
    const std::string &workload = operations.content().workload;
    if (is_session(workload))
        add_all<session_codec, session_adapter>(operations);
    else if (workload == route_batch)
        add_all<routes_codec, routes_adapter>(operations);
    else if (workload == subscriber_stats)
        add_all<stats_codec, stats_adapter>(operations);
    else if (workload == session_states)
        add_all<states_codec, states_adapter>(operations);
    else if (workload == group_start)
        add_all<group_start_codec, group_start_adapter>(operations);
    else if (is_replay(workload))
        add_codec<replay_codec>(operations);
    else if (is_large_bytes(workload))
        add_large_bytes(operations);
}

} // namespace bench
