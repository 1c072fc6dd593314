#include "peers/harness/peer_program.h"

extern "C" [[gnu::visibility("default")]] const bench::peer_program mava_tum_bench_peer_program;
extern "C" const bench::peer_program mava_tum_bench_peer_program = {bench::peer_version, bench::add_operations};
