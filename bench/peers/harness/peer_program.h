// What a peer provides. peer_module.cpp makes a module of it, which the program loads: so all peers run in one process
// and take turns there, and no peer's names meet another's.
#ifndef MAVA_TUM_BENCH_PEER_PROGRAM_H
#define MAVA_TUM_BENCH_PEER_PROGRAM_H

#include "peers/harness/suite.h"

namespace bench
{

// For the head of the table, for instance "protobuf C++ 3.21.12".
std::string peer_version();

// Adds the peer's operations for the corpus of `operations`, none where it has none for its workload. What they work on
// lives as long as they do.
void add_operations(suite &operations);

struct peer_program {
    std::string (*version)();
    void (*add_operations)(suite &operations);
};

// The one name that a module exports: a peer_program.
inline constexpr const char *peer_program_symbol = "mava_tum_bench_peer_program";

} // namespace bench

#endif
