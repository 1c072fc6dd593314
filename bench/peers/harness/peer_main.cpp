// The program of every peer: checks the peer's operations against a corpus, and times them if they all agree.
//   <peer> --version
//   <peer> <corpus> check
//   <peer> <corpus> time <samples> <milliseconds per sample> <seed of the order>
//   <peer> <corpus> cold <calls> <seed of the order>
// Prints a line per operation, separated by tabs: name and side; then, of time, nanoseconds per message, and of cold,
// nanoseconds of a pass over the corpus with warm and with cold caches. Exits with 1, having timed nothing, when an
// operation does not agree.
#include "peers/harness/peer_program.h"
#include "peers/harness/stopwatch.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace bench
{
namespace
{

std::vector<timed_operation *> shuffled(const suite &operations, unsigned seed)
{
    std::vector<timed_operation *> order;
    for (const auto &operation : operations.operations())
        order.push_back(operation.get());
    std::shuffle(order.begin(), order.end(), std::mt19937(seed));
    return order;
}

void time_all(const suite &operations, const sampling &how, unsigned seed)
{
    for (timed_operation *operation : shuffled(operations, seed)) {
        const double nanoseconds = time_operation(*operation, operations.content().message_count(), how);
        std::printf("%s\t%s\t%.3f\n", operation->name.c_str(), operation->side.c_str(), nanoseconds);
    }
}

void time_all_cold(const suite &operations, unsigned calls, unsigned seed)
{
    const single_call_timer timer(calls);
    for (timed_operation *operation : shuffled(operations, seed)) {
        const single_call call = timer.time(*operation);
        std::printf("%s\t%s\t%.1f\t%.1f\n", operation->name.c_str(), operation->side.c_str(), call.warm, call.cold);
    }
}

void name_all(const suite &operations)
{
    for (const auto &operation : operations.operations())
        std::printf("%s\t%s\n", operation->name.c_str(), operation->side.c_str());
}

unsigned number(const char *text)
{
    return static_cast<unsigned>(std::atoi(text));
}

int run(const std::string &path, const std::string &task, char **numbers)
{
    const corpus content = read_corpus(path);
    suite operations(content);
    add_operations(operations);
    if (!operations.first_disagreement().empty()) {
        std::fprintf(stderr, "%s\n", operations.first_disagreement().c_str());
        return 1;
    }
    if (task == "check")
        name_all(operations);
    else if (task == "cold")
        time_all_cold(operations, number(numbers[0]), number(numbers[1]));
    else
        time_all(operations, {number(numbers[0]), std::atof(numbers[1]) * 1e6}, number(numbers[2]));
    return 0;
}

} // namespace
} // namespace bench

int main(int argc, char **argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 1 && arguments[0] == "--version") {
        std::puts(bench::peer_version().c_str());
        return 0;
    }
    const bool check = arguments.size() == 2 && arguments[1] == "check";
    const bool time = arguments.size() == 5 && arguments[1] == "time" && std::atoi(argv[3]) > 0;
    const bool cold = arguments.size() == 4 && arguments[1] == "cold" && std::atoi(argv[3]) > 0;
    if (!check && !time && !cold) {
        std::fprintf(stderr,
            "usage: %s --version | <corpus> check | <corpus> time <samples> <milliseconds> <seed>"
            " | <corpus> cold <calls> <seed>\n",
            argv[0]);
        return 2;
    }
    return bench::run(arguments[0], arguments[1], argv + 3);
}
