// Runs each operation of the fixed workloads W1 to W6 once under callgrind, which is asked for a dump after each:
//   valgrind --tool=callgrind mava_tum_bench_count
//   mava_tum_bench_count --environment    prints what the counts depend on besides our code
#include "peers/harness/peer_program.h"
#include "peers/harness/workload_names.h"
#include "peers/ours/corpus_content.h"

#include <cstdio>
#include <gnu/libc-version.h>
#include <valgrind/callgrind.h>

namespace bench
{
namespace
{

void count(timed_operation &operation, const std::string &workload)
{
    operation.run(0, 2); // the first calls bind names and open heap blocks
    const std::string name = workload + "/" + operation.name + "/" + operation.side;
    CALLGRIND_ZERO_STATS;
    operation.run(0, 1);
    CALLGRIND_DUMP_STATS_AT(name.c_str());
}

void count_all(const char *workload)
{
    corpus content;
    content.workload = workload;
    content.set = "fixed";
    fill_corpus(content, {0, 1});
    suite operations(content);
    add_operations(operations);
    for (const auto &operation : operations.operations()) {
        if (operation->side != "heap calls" && operation->side != "memcpy") // no calls of ours
            count(*operation, workload);
    }
}

} // namespace
} // namespace bench

int main(int argc, char **argv)
{
    if (argc == 2 && std::string(argv[1]) == "--environment") {
        std::printf(
            "%s, C library %s, %s\n", MAVA_TUM_BENCH_COMPILER, gnu_get_libc_version(), MAVA_TUM_BENCH_PROCESSOR);
        return 0;
    }
    for (const char *workload : {bench::typical_session, bench::full_session, bench::route_batch,
             bench::subscriber_stats, bench::session_states, bench::group_start})
        bench::count_all(workload);
    return 0;
}
