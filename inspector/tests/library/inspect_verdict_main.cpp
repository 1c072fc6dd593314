// check_inspect_verdict <inputs> [<seed>] Compares the verdict of the inspector with the library's result, presence and
// memory for at least this number of inputs. The last line is the total; exits with 1 at the first difference.
#include "verdict_agreement.h"

#include <cstdio>
#include <cstdlib>

namespace
{

constexpr uint64_t messages = 40;

} // namespace

int main(int argument_count, char **arguments)
{
    if (argument_count < 2 || argument_count > 3) {
        std::fprintf(stderr, "usage: check_inspect_verdict <inputs> [<seed>]\n");
        return 2;
    }
    const uint64_t inputs = std::strtoull(arguments[1], nullptr, 10);
    const uint64_t seed = argument_count == 3 ? std::strtoull(arguments[2], nullptr, 10) : 1;
    const mava_tum_test::agreement sum = mava_tum_test::compare_many((inputs + messages - 1) / messages, seed);
    if (!sum.difference.empty()) {
        std::printf("%s\n", sum.difference.c_str());
        return EXIT_FAILURE;
    }
    for (int code = 0; code < 5; ++code)
        std::printf("result %2d: %llu inputs\n", -code, static_cast<unsigned long long>(sum.results[code]));
    std::printf("%llu inputs over 40 messages, copying and aliasing: 0 verdicts differ from the library\n",
        static_cast<unsigned long long>(sum.inputs));
    return sum.inputs > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
