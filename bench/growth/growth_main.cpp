// Prints the time of calls on inputs of growing length:
//   mava_tum_bench_growth <largest input in bytes> <milliseconds per sample>
// A line per measurement: operation, message, kind of input, bytes of input, nanoseconds; separated by tabs. Exits with
// 1 if a call does not read its whole input.
#include "growth/growing_input.h"
#include "growth/measured_call.h"
#include "peers/harness/stopwatch.h"

#include <cstdio>
#include <cstdlib>

namespace bench
{
namespace
{

using mava_tum_model::library_message;
using mava_tum_model::message;

constexpr size_t doublings = 9;
// The output of a decode stays in the caches, so that growth by cache misses is not measured.
constexpr uint64_t most_memory = 8 * 1024 * 1024;
constexpr unsigned samples = 3;

struct limits {
    size_t largest_input;
    double sample_nanoseconds;
};

class repeated_call final : public timed_operation
{
public:
    explicit repeated_call(measured_call &call) : call_(call) {}

    void run(size_t, uint64_t calls) override
    {
        for (; calls != 0; --calls)
            call_.call();
    }

private:
    measured_call &call_;
};

[[noreturn]] void stop(const char *operation, const char *name, const growing_input &input)
{
    std::fprintf(stderr, "%s of %s, %s: does not go through its input\n", operation, name, input.kind.c_str());
    std::exit(1);
}

// Zero if the call does not read its whole input.
size_t largest_input(const limits &within, const growing_input &input, measured_call &probe)
{
    constexpr size_t probed_bytes = 4096;
    const wire_bytes wire = input_of(input, probed_bytes);
    if (!probe.prepare(wire))
        return 0;
    size_t largest = within.largest_input;
    while (probe.memory_bytes() * (largest / probed_bytes) > most_memory)
        largest /= 2;
    return largest;
}

void measure(const char *operation, const char *name, const growing_input &input, size_t largest, const limits &within,
    measured_call &call)
{
    for (size_t bytes = largest >> doublings; bytes <= largest; bytes *= 2) {
        const wire_bytes wire = input_of(input, bytes);
        if (!call.prepare(wire))
            stop(operation, name, input);
        repeated_call repeated(call);
        const double nanoseconds = time_operation(repeated, {samples, within.sample_nanoseconds});
        std::printf("%s\t%s\t%s\t%zu\t%.1f\n", operation, name, input.kind.c_str(), wire.size(), nanoseconds);
    }
}

// Null: no adapter carries the message.
const mava_tum_catalogue::adapter *first_adapter_of(const library_message &carried)
{
    for (const mava_tum_catalogue::adapter &adapter : mava_tum_catalogue::all_adapters())
        if (adapter.carried == &carried)
            return &adapter;
    return nullptr;
}

void measure_decoders(const message &of, const library_message &functions, const limits &within)
{
    const auto decoding = decode_call(functions);
    for (const growing_input &input : worst_inputs(of)) {
        const size_t largest = largest_input(within, input, *decoding);
        if (largest == 0)
            stop("decode", of.name, input);
        measure("decode", of.name, input, largest, within, *decoding);
        if (const mava_tum_catalogue::adapter *adapter = first_adapter_of(functions))
            measure("decode adapter", of.name, input, largest, within, *adapter_call(*adapter));
    }
}

void measure_encoders(const message &of, const library_message &functions, const limits &within)
{
    const auto encoding = encode_call(functions);
    for (const growing_input &input : deepest_inputs(of)) {
        const size_t largest = largest_input(within, input, *encoding);
        if (largest == 0)
            stop("encode", of.name, input);
        measure("encode", of.name, input, largest, within, *encoding);
    }
}

void measure_all(const limits &within)
{
    const auto messages = mava_tum_model::all_messages();
    for (size_t i = 0; i < messages.size(); ++i) {
        measure_decoders(*messages[i], mava_tum_model::library_message_at(i), within);
        measure_encoders(*messages[i], mava_tum_model::library_message_at(i), within);
    }
}

} // namespace
} // namespace bench

int main(int argc, char **argv)
{
    if (argc != 3 || std::atoi(argv[1]) < 4096) {
        std::fprintf(stderr, "usage: %s <largest input in bytes, from 4096> <milliseconds per sample>\n", argv[0]);
        return 2;
    }
    bench::measure_all({static_cast<size_t>(std::atoi(argv[1])), std::atof(argv[2]) * 1e6});
    return 0;
}
