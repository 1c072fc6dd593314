// One failing call of the allocator, and its effects.
#pragma once

#include "model/block_log.h"

#include <cstdint>
#include <string>

namespace mava_tum_injection
{

// The same for the library and the model; only the tests of this check use different ones.
struct injection {
    mava_tum_model::failure_plan library;
    mava_tum_model::failure_plan model;
};

inline injection in_both(mava_tum_model::failing when, uint32_t at)
{
    return {{when, at}, {when, at}};
}

struct injection_tally {
    uint64_t inputs = 0;
    uint64_t injections = 0; // a call that was made, and failed
    uint64_t deviations = 0;
    std::string first_deviation;

    void note(const std::string &deviation)
    {
        if (!deviation.empty() && ++deviations == 1)
            first_deviation = deviation;
    }
};

// An allocator that never fails and counts its calls: the number of calls that can fail.
class call_counter
{
public:
    mava_tum_model::memory_source source()
    {
        return {allocate, this};
    }

    uint32_t calls() const
    {
        return calls_;
    }

private:
    static void *allocate(uint64_t size, void *context)
    {
        call_counter &counter = *static_cast<call_counter *>(context);
        counter.calls_ += 1;
        return mava_tum_model::block_log::allocate(size, &counter.blocks_);
    }

    mava_tum_model::block_log blocks_;
    uint32_t calls_ = 0;
};

// No failure, then each of `calls` calls fails, once or from then on; `run(injection)` returns the deviation.
template <class runner>
void fail_every_call(uint32_t calls, injection_tally &tally, runner &&run)
{
    using mava_tum_model::failing;
    tally.inputs += 1;
    tally.note(run(in_both(failing::never, 0)));
    for (uint32_t call = 1; call <= calls; ++call) {
        for (const failing when : {failing::once, failing::from_then}) {
            tally.injections += 1;
            tally.note(run(in_both(when, call)));
        }
    }
}

} // namespace mava_tum_injection
