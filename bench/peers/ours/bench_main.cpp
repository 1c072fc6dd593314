// Measures operations of the library and of other implementations, whose modules are beside the program, in one
// process:
//   mava_tum_bench --versions <peer>...
//   mava_tum_bench <task> <workload> <set> <first number> <messages> <seed> <amount> <operation>,... <peer>...
// Tasks, what their amount is, and what they print, a line each, separated by tabs:
//   pairs   microseconds of a slice   operation, our side, other side, nanoseconds per call of both: for each pair of
//                                     slices (stopwatch.h)
//   time    milliseconds of a sample  operation, side, nanoseconds per call on the first message
//   cold    calls                     operation, side, nanoseconds of a call with warm and with cold caches
// Operations and sides run in a random order, which <seed> repeats. Before an operation is timed, it is checked on
// every message: if one result differs from the corpus, the program exits with 1 and prints no time of it.
#include "peers/harness/peer_program.h"
#include "peers/harness/stopwatch.h"
#include "peers/ours/corpus_content.h"

#include "mava_tum.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <sstream>

namespace bench
{
namespace
{

struct request {
    std::string task;
    uint64_t first_number;
    uint64_t messages;
    double amount;
    std::mt19937 random;
    std::vector<peer_program> peers;
};

[[noreturn]] void stop(int code, const std::string &why)
{
    std::fprintf(stderr, "%s\n", why.c_str());
    std::exit(code);
}

peer_program load_peer(const std::string &directory, const std::string &name)
{
    if (name == "ours")
        return {peer_version, add_operations};
    const std::string file = directory + "/mava_tum_bench_" + name + ".so";
    void *module = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    const void *program = module == nullptr ? nullptr : dlsym(module, peer_program_symbol);
    if (program == nullptr)
        stop(2, dlerror());
    return *static_cast<const peer_program *>(program);
}

// Our side that works like the other one: with the heap if the other uses the heap.
const char *our_side_against(const timed_operation &other)
{
    if (other.name != "decode")
        return "ours";
    for (const char *heap_side : {"protobuf new", "proto2 new", "protobuf-c malloc", "heap calls", "C++ layer"}) {
        if (other.side == heap_side)
            return "ours calloc";
    }
    return "ours bump";
}

// A fixed message is repeated for 24 pairs of slices.
pair_window window_of_fixed(timed_operation &first, timed_operation &second, double slice_nanoseconds)
{
    const double taken = time_operation(first, {1, 1e6}) + time_operation(second, {1, 1e6});
    const auto calls = std::max<uint64_t>(1, static_cast<uint64_t>(2 * slice_nanoseconds / taken));
    return {48 * calls, calls, slice_nanoseconds};
}

std::vector<std::pair<timed_operation *, timed_operation *>> pairs_of(const suite &operations)
{
    std::vector<std::pair<timed_operation *, timed_operation *>> pairs;
    for (const auto &first : operations.operations()) {
        for (const auto &second : operations.operations()) {
            if (first != second && first->side == our_side_against(*second))
                pairs.emplace_back(first.get(), second.get());
        }
    }
    return pairs;
}

void print_pairs(const suite &operations, request &asked)
{
    const corpus &content = operations.content();
    const double slice = asked.amount * 1e3;
    auto pairs = pairs_of(operations);
    std::ranges::shuffle(pairs, asked.random);
    for (const auto &[first, second] : pairs) {
        const pair_window window = content.set == "fixed"
                                       ? window_of_fixed(*first, *second, slice)
                                       : pair_window{asked.messages, content.message_count() - asked.messages, slice};
        for (const pair_times &times : time_pairs(*first, *second, window))
            std::printf("%s\t%s\t%s\t%.2f\t%.2f\n", first->name.c_str(), first->side.c_str(), second->side.c_str(),
                times.first, times.second);
    }
}

void print_times(const suite &operations, request &asked)
{
    for (const auto &operation : operations.operations())
        std::printf("%s\t%s\t%.3f\n", operation->name.c_str(), operation->side.c_str(),
            time_operation(*operation, {3, asked.amount * 1e6}));
}

void print_cold_times(const suite &operations, request &asked)
{
    const single_call_timer timer(static_cast<unsigned>(asked.amount));
    for (const auto &operation : operations.operations()) {
        const single_call call = timer.time(*operation);
        std::printf("%s\t%s\t%.1f\t%.1f\n", operation->name.c_str(), operation->side.c_str(), call.warm, call.cold);
    }
}

// The data of this operation exist only in this block.
void measure(const corpus &content, const std::string &operation, request &asked)
{
    suite operations(content, operation);
    std::ranges::shuffle(asked.peers, asked.random);
    for (const peer_program &peer : asked.peers)
        peer.add_operations(operations);
    if (!operations.first_disagreement().empty())
        stop(1, operations.first_disagreement());
    if (asked.task == "pairs")
        print_pairs(operations, asked);
    else if (asked.task == "time")
        print_times(operations, asked);
    else
        print_cold_times(operations, asked);
}

std::vector<std::string> words_of(const std::string &list)
{
    std::vector<std::string> words;
    std::istringstream stream(list);
    for (std::string word; std::getline(stream, word, ',');)
        words.push_back(word);
    return words;
}

int run(const std::string &directory, const std::vector<std::string> &arguments)
{
    request asked = {arguments[0], std::stoull(arguments[3]), std::stoull(arguments[4]), std::stod(arguments[6]),
        std::mt19937(static_cast<unsigned>(std::stoul(arguments[5]))), {}};
    for (size_t i = 8; i < arguments.size(); ++i)
        asked.peers.push_back(load_peer(directory, arguments[i]));
    corpus content;
    content.workload = arguments[1];
    content.set = arguments[2];
    const uint64_t warming = std::max<uint64_t>(16, asked.messages / 20);
    if (!fill_corpus(content, {asked.first_number, asked.messages + warming}))
        stop(2, "no messages for workload " + content.workload + ", set " + content.set);
    std::printf(
        "bytes\t%.1f\n", static_cast<double>(content.wire_bytes()) / static_cast<double>(content.message_count()));
    std::vector<std::string> operations = words_of(arguments[7]);
    std::ranges::shuffle(operations, asked.random);
    for (const std::string &operation : operations)
        measure(content, operation, asked);
    return 0;
}

// The loaded file of the library: the builds differ in their link order.
std::string library_file()
{
    Dl_info found = {};
    dladdr(reinterpret_cast<const void *>(mava_tum_session_context_decode_ext), &found);
    return found.dli_fname == nullptr ? "?" : found.dli_fname;
}

} // namespace
} // namespace bench

int main(int argc, char **argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const std::string program = argv[0];
    const std::string directory = program.substr(0, program.rfind('/'));
    if (arguments.size() > 1 && arguments[0] == "--versions") {
        std::puts(bench::library_file().c_str());
        for (size_t i = 1; i < arguments.size(); ++i)
            std::puts(bench::load_peer(directory, arguments[i]).version().c_str());
        return 0;
    }
    const bool known =
        arguments.size() > 8 && (arguments[0] == "pairs" || arguments[0] == "time" || arguments[0] == "cold");
    if (!known) {
        std::fprintf(stderr,
            "usage: %s --versions <peer>... | pairs|time|cold <workload> <set> <first number> <messages> <seed> "
            "<amount>"
            " <operation>,... <peer>...\n",
            argv[0]);
        return 2;
    }
    return bench::run(directory, arguments);
}
