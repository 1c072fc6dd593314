// The workloads by name, and the message of each.
#ifndef MAVA_TUM_BENCH_WORKLOAD_NAMES_H
#define MAVA_TUM_BENCH_WORKLOAD_NAMES_H

#include <string>

namespace bench
{

inline constexpr const char *typical_session = "typical_session";
inline constexpr const char *full_session = "full_session";
inline constexpr const char *route_batch = "route_batch";
inline constexpr const char *subscriber_stats = "subscriber_stats";
inline constexpr const char *session_states = "session_states";
inline constexpr const char *group_start = "group_start";
inline constexpr const char *replay = "replay_"; // and the number of its sessions
inline constexpr const char *large_bytes_aliased = "large_bytes_aliased";
inline constexpr const char *large_bytes_copied = "large_bytes_copied";

inline bool is_replay(const std::string &workload)
{
    return workload.starts_with(replay);
}

inline bool is_large_bytes(const std::string &workload)
{
    return workload == large_bytes_aliased || workload == large_bytes_copied;
}

inline bool is_session(const std::string &workload)
{
    return workload == typical_session || workload == full_session;
}

} // namespace bench

#endif
