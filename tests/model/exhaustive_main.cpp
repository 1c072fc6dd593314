// check_exhaustive [inputs <length> [<message>] | capacities]
// Compares the library with the model for every input of exactly <length> bytes, on all cores, or for every capacity
// of every seed's encode. Prints a line per message and a total; exits with 1 at the first difference.
#include "model/exhaustive.h"
#include "model/message_tables.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace
{

using namespace mava_tum_model;

constexpr uint64_t inputs_per_share = uint64_t{1} << 20;

struct totals {
    std::atomic<uint64_t> next_share = 0;
    std::atomic<uint64_t> inputs = 0;
    std::atomic<bool> different = false;
    std::mutex print;
};

bool has_bytes(const message &of)
{
    for (const field &member : of.fields) {
        if (member.kind == field_kind::bytes || (member.nested != nullptr && has_bytes(*member.nested)))
            return true;
    }
    return false;
}

void take_shares(exhaustive_range range, uint64_t end, totals &sum)
{
    while (!sum.different) {
        range.first = inputs_per_share * sum.next_share++;
        range.end = std::min(range.first + inputs_per_share, end);
        if (range.first >= end)
            return;
        const exhaustive_result result = check_inputs(range);
        sum.inputs += result.inputs;
        if (result.difference.empty())
            continue;
        const std::lock_guard<std::mutex> one_at_a_time(sum.print);
        sum.different = true;
        std::printf("%s\n", result.difference.c_str());
    }
}

// Returns the number of inputs, or 0 after a difference.
uint64_t check_all_inputs(std::size_t message_index, std::size_t length, uint32_t flags)
{
    totals sum;
    const exhaustive_range range = {message_index, length, flags, 0, 0};
    std::vector<std::thread> workers;
    for (unsigned core = 0; core < std::max(1u, std::thread::hardware_concurrency()); ++core)
        workers.emplace_back([&] { take_shares(range, inputs_of_length(length), sum); });
    for (std::thread &worker : workers)
        worker.join();
    return sum.different ? 0 : sum.inputs.load();
}

int check_inputs_of(std::size_t length, const char *only)
{
    const auto started = std::chrono::steady_clock::now();
    uint64_t total = 0;
    for (std::size_t index = 0; index < all_messages().size(); ++index) {
        const message &of = *all_messages()[index];
        if (only != nullptr && only != std::string(of.name))
            continue;
        // Without a bytes field, the alias bit has no effect.
        for (uint32_t flags = 0; flags <= (has_bytes(of) ? 1u : 0u); ++flags) {
            const uint64_t inputs = check_all_inputs(index, length, flags);
            if (inputs == 0)
                return EXIT_FAILURE;
            total += inputs;
            std::printf("%-28s %s %llu inputs of %zu bytes\n", of.name, flags == 0 ? "copy " : "alias",
                static_cast<unsigned long long>(inputs), length);
            std::fflush(stdout);
        }
    }
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - started;
    std::printf("%llu decodes equal to the model, 0 differences, %.0f s\n", static_cast<unsigned long long>(total),
        taken.count());
    return total > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

int check_all_capacities()
{
    uint64_t total = 0;
    for (std::size_t index = 0; index < all_messages().size(); ++index) {
        const exhaustive_result result = check_capacities(index);
        total += result.inputs;
        if (!result.difference.empty()) {
            std::printf("%s\n", result.difference.c_str());
            return EXIT_FAILURE;
        }
    }
    std::printf("%llu encodes equal to the model, 0 differences\n", static_cast<unsigned long long>(total));
    return EXIT_SUCCESS;
}

} // namespace

int main(int argument_count, char **arguments)
{
    const std::string what = argument_count > 1 ? arguments[1] : "";
    if (what == "capacities" && argument_count == 2)
        return check_all_capacities();
    const int length = what == "inputs" && argument_count > 2 ? std::atoi(arguments[2]) : -1;
    if (length < 0 || length > 4 || argument_count > 4) {
        std::fprintf(stderr, "usage: check_exhaustive inputs <0..4> [<message>] | capacities\n");
        return 2;
    }
    return check_inputs_of(static_cast<std::size_t>(length), argument_count == 4 ? arguments[3] : nullptr);
}
