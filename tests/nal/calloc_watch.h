// Stands between the adapters and calloc and free: counts, remembers sizes, fails chosen calls. The program is linked
// with --wrap=calloc and --wrap=free; without a live watch both behave as always.
#pragma once

#include <cstddef>
#include <set>
#include <vector>

namespace mava_tum_test
{

// One at a time. At its end, every block that calloc gave in its life must have been freed.
class calloc_watch
{
public:
    calloc_watch();
    calloc_watch(const calloc_watch &) = delete;
    calloc_watch &operator=(const calloc_watch &) = delete;
    ~calloc_watch();

    // Calls are numbered from 1; 0 fails none.
    void fail_call(std::size_t number);
    void fail_from_call(std::size_t number);

    // The size of every call, in order, also of those that failed.
    const std::vector<std::size_t> &sizes() const
    {
        return sizes_;
    }

    std::size_t outstanding_count() const
    {
        return outstanding_.size();
    }

    void *allocate(std::size_t count, std::size_t size);
    void forget(void *pointer);

private:
    std::vector<std::size_t> sizes_;
    std::set<void *> outstanding_;
    std::size_t first_failing_ = 0;
    std::size_t last_failing_ = 0;
};

} // namespace mava_tum_test
