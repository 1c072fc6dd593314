#include "pair_table.h"

#include <algorithm>
#include <cstdio>

namespace bench
{
namespace
{

struct quartiles {
    double lower, median, upper;
};

quartiles quartiles_of(std::vector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    const size_t last = samples.size() - 1;
    return {samples[last / 4], (samples[last / 2] + samples[(last + 1) / 2]) / 2, samples[last * 3 / 4]};
}

double spread_of(const quartiles &side)
{
    return (side.upper - side.lower) / side.median;
}

} // namespace

pair_table::pair_table(std::string first_side, std::string second_side)
    : first_(std::move(first_side)), second_(std::move(second_side))
{
}

bool pair_table::ReportContext(const Context &)
{
    return true;
}

void pair_table::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const std::string &name = run.run_name.function_name;
        const size_t slash = name.rfind('/');
        const std::string row = name.substr(0, slash);
        if (rows_.count(row) == 0)
            order_.push_back(row);
        rows_[row][name.substr(slash + 1)].push_back(run.GetAdjustedCPUTime());
    }
}

void pair_table::Finalize()
{
    std::printf("\nMedians of CPU time in nanoseconds per call.\n\n  %-42s %9s %9s %8s %8s\n", "", first_.c_str(),
        second_.c_str(), "ratio", "spread");
    std::sort(order_.begin(), order_.end());
    for (const std::string &row : order_)
        print_row(row, rows_.at(row));
    std::printf("\nratio: %s divided by %s. spread: distance between the quartiles of the repetitions, the larger of\n"
                "the two sides; a ratio that differs from 1 by less says nothing.\n",
        second_.c_str(), first_.c_str());
}

// A filter may have left a side out.
void pair_table::print_row(const std::string &row, const samples &sides) const
{
    if (sides.count(first_) == 0 || sides.count(second_) == 0)
        return;
    const quartiles first = quartiles_of(sides.at(first_));
    const quartiles second = quartiles_of(sides.at(second_));
    std::printf("  %-42s %9.1f %9.1f %8.3f %6.1f %%\n", row.c_str(), first.median, second.median,
        second.median / first.median, 100 * std::max(spread_of(first), spread_of(second)));
}

} // namespace bench
