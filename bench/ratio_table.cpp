#include "ratio_table.h"

#include "benchmark_names.h"

#include <algorithm>
#include <cstdio>

namespace bench
{
namespace
{

summary summarize(std::vector<double> samples)
{
    if (samples.empty())
        return {};
    std::sort(samples.begin(), samples.end());
    const size_t last = samples.size() - 1;
    const double median = (samples[last / 2] + samples[(last + 1) / 2]) / 2;
    return {median, (samples[last * 3 / 4] - samples[last / 4]) / median};
}

std::string nanoseconds_cell(const summary &side)
{
    char text[32] = "-";
    if (side.median > 0)
        std::snprintf(text, sizeof text, "%.1f", side.median);
    return text;
}

std::string ratio_cell(const summary &numerator, const summary &denominator)
{
    char text[32] = "-";
    if (numerator.median > 0 && denominator.median > 0)
        std::snprintf(text, sizeof text, "%.2fx", numerator.median / denominator.median);
    return text;
}

constexpr const char *row_format = "  %-16s %9s %9s %9s %9s   %9s %9s %10s %8s\n";

void print_heading()
{
    std::printf("\nMedians of CPU time in nanoseconds per call, and what follows from them.\n\n");
    std::printf(row_format, "", "", "", "", "", "as fast", "as fast", "as long", "widest");
    std::printf(row_format, "", "ours", "protobuf", "arena", "memcpy", "as pb.", "as ar.", "as memcpy", "spread");
}

void print_legend()
{
    std::printf("\nprotobuf (pb.): one message that is used again; in duplicate+free a new copy each time.\n"
                "arena (ar.): a message on an arena that is reset for each call. memcpy: of the same wire bytes.\n"
                "2x as fast: ours takes half the time. 2x as long: ours takes double the time.\n"
                "widest spread: distance between the quartiles of the repetitions, the largest in the row.\n");
}

} // namespace

ratio_table::ratio_table(std::vector<table_section> sections) : sections_(std::move(sections)) {}

bool ratio_table::ReportContext(const Context &)
{
    return true;
}

void ratio_table::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type == Run::RT_Iteration && !run.error_occurred)
            nanoseconds_[run.run_name.function_name].push_back(run.GetAdjustedCPUTime());
    }
}

void ratio_table::Finalize()
{
    print_heading();
    for (const table_section &section : sections_)
        print_section(section);
    print_legend();
}

// A filter may have left a section or a row out.
void ratio_table::print_section(const table_section &section) const
{
    const auto first = nanoseconds_.lower_bound(section.work + "/");
    if (first == nanoseconds_.end() || !first->first.starts_with(section.work + "/"))
        return;
    std::printf("%s\n", section.title.c_str());
    for (const char *operation : {decode_free, encode, duplicate_free, encode_adapter, decode_adapter})
        print_row(section.work, operation);
}

summary ratio_table::summary_of(const std::string &work, const char *operation, const char *side) const
{
    const auto found = nanoseconds_.find(benchmark_name(work, operation, side));
    return found == nanoseconds_.end() ? summary{} : summarize(found->second);
}

void ratio_table::print_row(const std::string &work, const char *operation) const
{
    const summary library = summary_of(work, operation, ours);
    const summary heap = summary_of(work, operation, protobuf_heap);
    const summary arena = summary_of(work, operation, protobuf_arena);
    const summary copy = summary_of(work, copy_wire, plain_copy);
    if (library.median == 0 && heap.median == 0 && arena.median == 0)
        return;
    const double widest = std::max({library.spread, heap.spread, arena.spread, copy.spread});
    char spread[32];
    std::snprintf(spread, sizeof spread, "%.0f %%", 100 * widest);
    std::printf(row_format, operation, nanoseconds_cell(library).c_str(), nanoseconds_cell(heap).c_str(),
        nanoseconds_cell(arena).c_str(), nanoseconds_cell(copy).c_str(), ratio_cell(heap, library).c_str(),
        ratio_cell(arena, library).c_str(), ratio_cell(library, copy).c_str(), spread);
}

} // namespace bench
