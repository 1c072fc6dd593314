// The same sources make two modules: the messages are generated as proto3 for the one, as proto2 for the other. The
// runtime knows messages by their names, so those of proto2 are in a package of their own.
#ifndef MAVA_TUM_BENCH_PEER_LANGUAGE_H
#define MAVA_TUM_BENCH_PEER_LANGUAGE_H

#ifdef MAVA_TUM_BENCH_PROTO2
#include "session_proto2.pb.h"
#else
#include "session.pb.h"
#endif

namespace bench
{

#ifdef MAVA_TUM_BENCH_PROTO2
namespace peer = peer_proto2;
#define MAVA_TUM_BENCH_PROTOBUF_SIDE "proto2"
inline constexpr const char *peer_language = "proto2";
inline constexpr bool peer_uses_arena = false; // the other module has it
#else
#define MAVA_TUM_BENCH_PROTOBUF_SIDE "protobuf"
inline constexpr const char *peer_language = "proto3";
inline constexpr bool peer_uses_arena = true;
#endif

} // namespace bench

#endif
