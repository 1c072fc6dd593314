// Each of these registers one operation of a workload, once for every side.
#ifndef MAVA_TUM_BENCH_BENCH_OPERATIONS_H
#define MAVA_TUM_BENCH_BENCH_OPERATIONS_H

#include "benchmark_names.h"
#include "workload.h"

#include <benchmark/benchmark.h>

namespace bench
{

// A workload must outlive the run.
template <class Kind>
void register_decode(workload<Kind> &work);
template <class Kind>
void register_encode(workload<Kind> &work);
template <class Kind>
void register_duplicate(workload<Kind> &work);
template <class Kind>
void register_encode_adapter(workload<Kind> &work);
template <class Kind>
void register_decode_adapter(workload<Kind> &work);
void register_copy(const std::string &work, const std::vector<uint8_t> &wire);

// Registers `call` as a benchmark. `call` takes no argument and returns a value that its work leads to.
template <class Call>
void register_side(const std::string &work, const char *operation, const char *side, Call call)
{
    benchmark::RegisterBenchmark(benchmark_name(work, operation, side).c_str(), [call](benchmark::State &state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(call());
            benchmark::ClobberMemory();
        }
    });
}

} // namespace bench

#endif
