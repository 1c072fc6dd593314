// What a peer provides; peer_main.cpp makes a program of it.
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

} // namespace bench

#endif
