// check_amplification For every message, the most memory that its decoder requests per byte of wire: by the worst
// constructed input, the limit that follows from the fields, and a search over short inputs for one above the limit.
// Prints the rows of the table in docs/figures/memory.md and the worst of all; exits with 1 if an input exceeds a
// limit.
#include "amplification/asked_limit.h"
#include "amplification/costly_inputs.h"
#include "amplification/measured_decode.h"
#include "amplification/short_inputs.h"
#include "support/hex.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{

using namespace mava_tum_amplification;
using mava_tum_model::all_messages;
using mava_tum_model::message;

// The size of the worst constructed inputs: large enough that the lengths in front of nested records do not matter.
constexpr std::size_t made_wire_bytes = 64 * 1024;
constexpr std::size_t shown_wire_bytes = 8;

constexpr uint64_t search_budget = uint64_t{1} << 22;

struct totals {
    uint64_t inputs = 0;
    std::string above;
};

// Two places, truncated: a figure below a limit must not be printed as the limit.
std::string shown(double ratio)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", std::floor(ratio * 100) / 100);
    return text;
}

std::string shown_limit(const memory_ratio &limit)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", limit.value());
    return text;
}

double per_byte(uint64_t memory, const wire_bytes &wire)
{
    return wire.empty() ? 0 : static_cast<double>(memory) / static_cast<double>(wire.size());
}

std::string shown_wire(const wire_bytes &wire)
{
    const std::size_t bytes = std::min(wire.size(), shown_wire_bytes);
    return mava_tum_test::hex_of(wire.data(), bytes) + (wire.size() > bytes ? " ..." : "");
}

memory_ratio search_all(const searched_decode &of, totals &sum)
{
    const std::vector<uint8_t> bytes = bytes_that_matter(*of.message);
    const search_result all = search(of, every_byte(), 3);
    const search_result chosen = search(of, bytes, longest_within(search_budget, bytes.size()));
    sum.inputs += all.inputs + chosen.inputs;
    for (const search_result &result : {all, chosen}) {
        if (!result.above_a_limit.empty())
            sum.above += std::string(of.message->name) + ": " + result.above_a_limit + "\n";
    }
    return std::max(all.worst, chosen.worst);
}

void print_row(std::size_t index, totals &sum)
{
    const message &of = *all_messages()[index];
    const wire_bytes wire = worst_wire(of, made_wire_bytes);
    const wire_bytes dropping = dropping_wire(of, made_wire_bytes);
    const double asked = per_byte(measure_decoder(index, wire).asked_bytes, wire);
    const double dropped = per_byte(measure_decoder(index, dropping).dropped_bytes, dropping);
    const memory_ratio found = search_all(decoder_of(index), sum);
    if (asked > asked_limit(of).value() || dropped > dropped_limit(of).value())
        sum.above += std::string(of.name) + ": " + shown_wire(wire) + "\n";
    std::printf("| `%s` | %s | %s | %s | %s |\n", of.name, shown_limit(asked_limit(of)).c_str(), shown(asked).c_str(),
        shown(found.value()).c_str(), shown(dropped).c_str());
    std::fflush(stdout);
}

const message &worst_message()
{
    return **std::max_element(all_messages().begin(), all_messages().end(),
        [](const message *left, const message *right) { return asked_limit(*left) < asked_limit(*right); });
}

} // namespace

int main()
{
    totals sum;
    std::printf("| message | limit | made | searched | drops |\n|---|---|---|---|---|\n");
    for (std::size_t index = 0; index < all_messages().size(); ++index)
        print_row(index, sum);
    std::printf("%s%llu inputs through 40 decoders: %s\n", sum.above.c_str(),
        static_cast<unsigned long long>(sum.inputs),
        sum.above.empty() ? "0 above a limit" : "above a limit, see above");
    const message &worst = worst_message();
    std::printf("worst: %s, %s bytes of memory for a byte of wire, by %s\n", worst.name,
        shown_limit(asked_limit(worst)).c_str(), shown_wire(worst_wire(worst, made_wire_bytes)).c_str());
    return sum.above.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
