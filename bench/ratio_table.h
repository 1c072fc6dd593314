// Collects all repetitions of a run and prints, at its end, medians and ratios side by side.
#ifndef MAVA_TUM_BENCH_RATIO_TABLE_H
#define MAVA_TUM_BENCH_RATIO_TABLE_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace bench
{

struct table_section {
    std::string work;  // first part of its benchmarks' names
    std::string title; // what a person reads
};

struct summary {
    double median = 0; // 0: not measured
    double spread = 0; // distance between the quartiles, as a part of the median
};

class ratio_table : public benchmark::BenchmarkReporter
{
public:
    explicit ratio_table(std::vector<table_section> sections);

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    void print_section(const table_section &section) const;
    void print_row(const std::string &work, const char *operation) const;
    summary summary_of(const std::string &work, const char *operation, const char *side) const;

    std::vector<table_section> sections_;
    std::map<std::string, std::vector<double>> nanoseconds_; // by benchmark name, one entry per repetition
};

} // namespace bench

#endif
