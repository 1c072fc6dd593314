// Checks that both sides agree, then measures them side by side in one run.
#include "agreement.h"
#include "bench_operations.h"
#include "machine.h"
#include "ratio_table.h"
#include "workloads.h"

#include <cstdio>

namespace bench
{
namespace
{

struct all_workloads {
    workload<session_kind> typical_session{"typical_session", fill_typical_session};
    workload<session_kind> full_session{"full_session", fill_full_session};
    workload<route_kind> route_batch{"route_batch", fill_route_batch};
};

template <class Kind>
table_section section_of(const workload<Kind> &work)
{
    return {work.name, work.name + ", " + std::to_string(work.wire.size()) + " bytes"};
}

template <class Kind>
void register_workload(workload<Kind> &work)
{
    register_decode(work);
    register_encode(work);
    register_duplicate(work);
    register_encode_adapter(work);
    register_decode_adapter(work);
    register_copy(work.name, work.wire);
}

// Repetitions take turns, so that a slow moment of the machine meets all sides alike.
std::vector<char *> with_defaults(int argc, char **argv)
{
    static char interleave[] = "--benchmark_enable_random_interleaving=true";
    static char repetitions[] = "--benchmark_repetitions=11";
    static char min_time[] = "--benchmark_min_time=0.05";
    std::vector<char *> arguments = {argv[0], interleave, repetitions, min_time};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    return arguments;
}

void print_description(int argc, char **argv)
{
    for (const auto &[name, value] : describe_run(argc, argv)) {
        std::printf("%-17s %s\n", (name + ":").c_str(), value.c_str());
        benchmark::AddCustomContext(name, value);
    }
    std::fflush(stdout);
}

bool agree(const all_workloads &works)
{
    for (const std::string &disagreement : {first_disagreement(works.typical_session),
             first_disagreement(works.full_session), first_disagreement(works.route_batch)}) {
        if (disagreement.empty())
            continue;
        std::fprintf(stderr, "bench: nothing was measured. %s.\n", disagreement.c_str());
        return false;
    }
    return true;
}

int run(int argc, char **argv)
{
    print_description(argc, argv);
    std::vector<char *> arguments = with_defaults(argc, argv);
    int argument_count = static_cast<int>(arguments.size());
    benchmark::Initialize(&argument_count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(argument_count, arguments.data()))
        return 2;
    auto works = std::make_unique<all_workloads>();
    if (!agree(*works))
        return 1;
    register_workload(works->typical_session);
    register_workload(works->full_session);
    register_workload(works->route_batch);
    ratio_table table(
        {section_of(works->typical_session), section_of(works->full_session), section_of(works->route_batch)});
    const size_t measured = benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return measured == 0 ? 2 : 0;
}

} // namespace
} // namespace bench

int main(int argc, char **argv)
{
#ifndef NDEBUG
    std::fputs("bench: built with assertions, the figures are not comparable\n", stderr);
#endif
    return bench::run(argc, argv);
}
