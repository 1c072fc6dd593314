// Collects all repetitions of a run in which every operation has two sides, and prints at its end how one compares with
// the other.
#ifndef MAVA_TUM_BENCH_PAIR_TABLE_H
#define MAVA_TUM_BENCH_PAIR_TABLE_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace bench
{

// Benchmarks are called row/side.
class pair_table : public benchmark::BenchmarkReporter
{
public:
    pair_table(std::string first_side, std::string second_side);

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    using samples = std::map<std::string, std::vector<double>>; // nanoseconds of each repetition, by side

    void print_row(const std::string &row, const samples &sides) const;

    std::string first_;
    std::string second_;
    std::vector<std::string> order_;
    std::map<std::string, samples> rows_;
};

} // namespace bench

#endif
