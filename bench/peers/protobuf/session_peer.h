// Application records of sessions to and from protobuf messages, by the rules of the session context adapter.
#ifndef MAVA_TUM_BENCH_SESSION_PEER_H
#define MAVA_TUM_BENCH_SESSION_PEER_H

#include "session.pb.h"
#include "tum_nal/nal_session_context.h"

namespace bench
{

// `message` is empty on entry.
void fill_peer(const tum_nal_data_session_context &record, peer::SessionContext &message);

// Overwrites the whole record.
void read_peer(const peer::SessionContext &message, tum_nal_data_session_context &record);

} // namespace bench

#endif
