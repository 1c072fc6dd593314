// The interface of an implementation. peer_module.cpp makes a module of it, which the program loads. So all
// implementations run in turns in one process, without conflicts of names.
#ifndef MAVA_TUM_BENCH_PEER_PROGRAM_H
#define MAVA_TUM_BENCH_PEER_PROGRAM_H

#include "peers/harness/suite.h"

namespace bench
{

// For the head of the table, for instance "protobuf C++ 3.21.12".
std::string peer_version();

// Adds the implementation's operations for the corpus of `operations`; none if it does not support the workload. Their
// data live as long as the operations.
void add_operations(suite &operations);

struct peer_program {
    std::string (*version)();
    void (*add_operations)(suite &operations);
};

// The one name that a module exports: a peer_program.
inline constexpr const char *peer_program_symbol = "mava_tum_bench_peer_program";

} // namespace bench

#endif
