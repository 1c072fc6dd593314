// Simulates a process between two calls of a codec: reads other data and runs other code. Afterwards, the first two
// levels of caches hold nothing of the codec, and the branch predictors little; the last level may still hold it.
#ifndef MAVA_TUM_BENCH_OTHER_WORK_H
#define MAVA_TUM_BENCH_OTHER_WORK_H

#include <cstdint>
#include <vector>

namespace bench
{

class other_work
{
public:
    // More data than the second-level caches of current processors, more code than any first-level cache.
    static constexpr uint64_t data_bytes = 6 * 1024 * 1024;
    static constexpr uint64_t code_bytes = 128 * 1024; // at least

    other_work() : data_(data_bytes / sizeof(uint64_t)) {}

    void run();

private:
    std::vector<uint64_t> data_;
    uint64_t sum_ = 1;
};

} // namespace bench

#endif
