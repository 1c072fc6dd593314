// The same sources make two programs: the messages are generated as proto3 for the one, as proto2 for the other.
#ifndef MAVA_TUM_BENCH_PEER_LANGUAGE_H
#define MAVA_TUM_BENCH_PEER_LANGUAGE_H

namespace bench
{

#ifdef MAVA_TUM_BENCH_PROTO2
#define MAVA_TUM_BENCH_PROTOBUF_SIDE "proto2"
inline constexpr const char *peer_language = "proto2";
inline constexpr bool peer_uses_arena = false; // what it would tell, the other program tells
#else
#define MAVA_TUM_BENCH_PROTOBUF_SIDE "protobuf"
inline constexpr const char *peer_language = "proto3";
inline constexpr bool peer_uses_arena = true;
#endif

} // namespace bench

#endif
