// check_injection [injections per subject] Fails each call of the allocator in decode and duplicate, once or from then
// on. Prints a line per subject; the last line is the total. Exits with 1 if there is a deviation from the model.
#include "injection/injection_subjects.h"

#include <cstdio>
#include <cstdlib>

namespace
{

using namespace mava_tum_injection;

constexpr uint64_t default_injections = 200000;

unsigned long long printed(uint64_t number)
{
    return number;
}

// A subject that can request memory must have had a failure; otherwise it was not tested.
bool is_tested(const injection_subject &tested, const injection_tally &tally)
{
    return tested.asks_for_memory == (tally.injections > 0);
}

int check_all(uint64_t injections)
{
    injection_tally sum;
    bool complete = true;
    for (const injection_subject &tested : all_injection_subjects()) {
        const injection_tally tally = inject(tested, injections);
        sum.injections += tally.injections;
        sum.deviations += tally.deviations;
        std::printf("%-44s %8llu inputs %8llu injections%s\n", tested.name.c_str(), printed(tally.inputs),
            printed(tally.injections), tested.asks_for_memory ? "" : ": asks for no memory");
        if (tally.deviations != 0)
            std::printf("    %s\n", tally.first_deviation.c_str());
        if (!is_tested(tested, tally)) {
            std::printf("    some injections expected where memory is asked for, and none elsewhere\n");
            complete = false;
        }
    }
    std::printf("%llu injections, %llu deviations\n", printed(sum.injections), printed(sum.deviations));
    return complete && sum.deviations == 0 && sum.injections > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argument_count, char **arguments)
{
    const long long injections = argument_count > 1 ? std::atoll(arguments[1]) : default_injections;
    if (argument_count > 2 || injections < 1) {
        std::fprintf(stderr, "usage: check_injection [injections per subject, at least 1]\n");
        return 2;
    }
    return check_all(static_cast<uint64_t>(injections));
}
