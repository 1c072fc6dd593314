// What the C++ layer costs: each operation through it beside the same work by plain C calls, in one run.
#include "bump_allocator.h"
#include "mava_tum/cpp/routes.hpp"
#include "mava_tum/cpp/session_messages.hpp"
#include "pair_table.h"
#include "workloads.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace bench
{
namespace
{

namespace tum = mava_tum::cpp;

constexpr const char *c_side = "C";
constexpr const char *cpp_side = "C++";

struct session_calls {
    using record = mava_tum_session_context;
    using owner = tum::session_context;
    using application = tum_nal_data_session_context;

    static constexpr auto encode_adapter = tum_nal_data_gpb_encode_tum_session_context;
    static constexpr auto decode = mava_tum_session_context_decode_ext;
    static constexpr auto free = mava_tum_session_context_free_ext;
    static constexpr auto duplicate = mava_tum_session_context_duplicate;

    static uint64_t encode(const record &source, uint8_t *buffer, uint64_t length)
    {
        return mava_tum_session_context_encode_ext(&source, buffer, length, nullptr, nullptr, 0);
    }
};

struct route_calls {
    using record = mava_tum_sub_route;
    using owner = tum::sub_route;
    using application = tum_nal_data_sub_route;

    static constexpr auto encode_adapter = tum_nal_data_gpb_encode_tum_sub_route;
    static constexpr auto decode = mava_tum_sub_route_decode_ext;
    static constexpr auto free = mava_tum_sub_route_free_ext;
    static constexpr auto duplicate = mava_tum_sub_route_duplicate;

    static uint64_t encode(const record &source, uint8_t *buffer, uint64_t length)
    {
        return mava_tum_sub_route_encode_ext(&source, buffer, length, nullptr, nullptr, 0);
    }
};

void *allocate(uint64_t size, void *)
{
    return std::malloc(size);
}

void release(void *block, void *)
{
    std::free(block);
}

// A program that uses its memory resource from C.
void *allocate_from_resource(uint64_t size, void *resource)
{
    return static_cast<std::pmr::memory_resource *>(resource)->allocate(size);
}

void keep(void *, void *) {}

template <class Call>
void register_side(const std::string &row, const char *side, Call call)
{
    benchmark::RegisterBenchmark((row + "/" + side).c_str(), [call](benchmark::State &state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(call());
            benchmark::ClobberMemory();
        }
    });
}

template <class Calls>
struct layer_workload {
    std::string name;
    std::vector<uint8_t> wire;
    typename Calls::owner decoded;
    std::vector<uint8_t> buffer = std::vector<uint8_t>(64 * 1024);
    bump_allocator block;

    layer_workload(const char *called, void (*fill)(typename Calls::application &)) : name(called), wire(64 * 1024)
    {
        const auto sent = std::make_unique<typename Calls::application>();
        fill(*sent);
        wire.resize(Calls::encode_adapter(sent.get(), wire.data(), static_cast<uint32_t>(wire.size())));
        if (decoded.decode(wire) != tum::result::ok || decoded.encode() != wire) {
            std::fprintf(stderr, "bench: %s does not come back from the wire, nothing was measured\n", called);
            std::exit(1);
        }
    }
};

// Texts, bytes fields and arrays from the heap, and back to it.
template <class Calls>
void register_heap_decode(layer_workload<Calls> &work)
{
    const std::string row = work.name + "/decode+free, heap";
    register_side(row, c_side, [&work] {
        typename Calls::record record;
        const int32_t code = Calls::decode(&record, work.wire.data(), work.wire.size(), allocate, nullptr, 0);
        benchmark::DoNotOptimize(&record);
        Calls::free(&record, release, nullptr, 0);
        return code;
    });
    register_side(row, cpp_side, [&work] {
        typename Calls::owner record;
        const tum::result code = record.decode(work.wire);
        benchmark::DoNotOptimize(&record);
        return code;
    });
}

// From a block of the caller's, which is taken back whole: callbacks in C, the same callbacks in C++.
template <class Calls>
void register_bump_decode(layer_workload<Calls> &work)
{
    const std::string row = work.name + "/decode+free, block of ours";
    register_side(row, c_side, [&work] {
        work.block.reset();
        typename Calls::record record;
        const int32_t code = Calls::decode(
            &record, work.wire.data(), work.wire.size(), bump_allocator::allocate, &work.block, MAVA_TUM_ALIAS);
        benchmark::DoNotOptimize(&record);
        Calls::free(&record, keep, nullptr, MAVA_TUM_ALIAS);
        return code;
    });
    register_side(row, cpp_side, [&work] {
        work.block.reset();
        typename Calls::owner record(tum::memory(bump_allocator::allocate, nullptr, &work.block));
        const tum::result code = record.decode(tum::alias, work.wire);
        benchmark::DoNotOptimize(&record);
        return code;
    });
}

// From a std::pmr::monotonic_buffer_resource over a buffer.
template <class Calls>
void register_monotonic_decode(layer_workload<Calls> &work)
{
    const std::string row = work.name + "/decode+free, monotonic";
    auto room = std::make_shared<std::vector<unsigned char>>(256 * 1024);
    register_side(row, c_side, [&work, room] {
        std::pmr::monotonic_buffer_resource resource(room->data(), room->size(), std::pmr::null_memory_resource());
        typename Calls::record record;
        const int32_t code = Calls::decode(
            &record, work.wire.data(), work.wire.size(), allocate_from_resource, &resource, MAVA_TUM_ALIAS);
        benchmark::DoNotOptimize(&record);
        Calls::free(&record, keep, nullptr, MAVA_TUM_ALIAS);
        return code;
    });
    register_side(row, cpp_side, [&work, room] {
        std::pmr::monotonic_buffer_resource resource(room->data(), room->size(), std::pmr::null_memory_resource());
        typename Calls::owner record(tum::memory(tum::monotonic, &resource));
        const tum::result code = record.decode(tum::alias, work.wire);
        benchmark::DoNotOptimize(&record);
        return code;
    });
}

template <class Calls>
void register_encode(layer_workload<Calls> &work)
{
    const std::string row = work.name + "/encode";
    register_side(row, c_side,
        [&work] { return Calls::encode(work.decoded.c_record(), work.buffer.data(), work.buffer.size()); });
    register_side(row, cpp_side, [&work] { return work.decoded.encode(tum::span<uint8_t>(work.buffer)).size; });
}

template <class Calls>
void register_duplicate(layer_workload<Calls> &work)
{
    const std::string row = work.name + "/duplicate+free, heap";
    register_side(row, c_side, [&work] {
        typename Calls::record copy = {};
        const int32_t code = Calls::duplicate(&copy, &work.decoded.c_record(), allocate, nullptr);
        benchmark::DoNotOptimize(&copy);
        Calls::free(&copy, release, nullptr, 0);
        return code;
    });
    register_side(row, cpp_side, [&work] {
        const auto copy = work.decoded.clone();
        benchmark::DoNotOptimize(&copy);
        return copy.has_value();
    });
}

// What a program reads of a session: numbers, texts, a nested record, a list.
uint64_t read_by_members(const mava_tum_session_context &session)
{
    uint64_t sum = (session.presence_mask & 1U << 4) != 0 ? session.feature_mask : 0;
    if ((session.presence_mask & 1U << 9) != 0 && (session.session_data.presence_mask & 1U << 4) != 0)
        sum += static_cast<unsigned char>(session.session_data.field_5[0]);
    for (uint32_t i = 0; i < session.qos_count; ++i) {
        if ((session.qos[i].presence_mask & 1U << 0) != 0)
            sum += session.qos[i].field_1;
    }
    return sum;
}

uint64_t read_by_accessors(const tum::session_context &session)
{
    uint64_t sum = session.feature_mask().value_or(0);
    if (const auto name = session.session_data().field_5())
        sum += static_cast<unsigned char>(name->data()[0]);
    for (const auto qos : session.qos())
        sum += qos.field_1().value_or(0);
    return sum;
}

void register_read(layer_workload<session_calls> &work)
{
    const std::string row = work.name + "/read";
    register_side(row, c_side, [&work] { return read_by_members(work.decoded.c_record()); });
    register_side(row, cpp_side, [&work] { return read_by_accessors(work.decoded); });
}

template <class Calls>
void register_workload(layer_workload<Calls> &work)
{
    register_heap_decode(work);
    register_bump_decode(work);
    register_monotonic_decode(work);
    register_encode(work);
    register_duplicate(work);
}

// Repetitions take turns, so that a slow moment of the machine meets both sides alike.
std::vector<char *> with_defaults(int argc, char **argv)
{
    static char interleave[] = "--benchmark_enable_random_interleaving=true";
    static char repetitions[] = "--benchmark_repetitions=15";
    static char min_time[] = "--benchmark_min_time=0.02";
    std::vector<char *> arguments = {argv[0], interleave, repetitions, min_time};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    return arguments;
}

int run(int argc, char **argv)
{
    std::vector<char *> arguments = with_defaults(argc, argv);
    int argument_count = static_cast<int>(arguments.size());
    benchmark::Initialize(&argument_count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(argument_count, arguments.data()))
        return 2;
    layer_workload<session_calls> typical("typical_session", fill_typical_session);
    layer_workload<session_calls> full("full_session", fill_full_session);
    layer_workload<route_calls> routes("route_batch", fill_route_batch);
    register_workload(typical);
    register_workload(full);
    register_workload(routes);
    register_read(typical);
    register_read(full);
    pair_table table(c_side, cpp_side);
    const size_t measured = benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return measured == 0 ? 2 : 0;
}

} // namespace
} // namespace bench

int main(int argc, char **argv)
{
#ifndef NDEBUG
    std::fputs("bench: built with assertions, the figures are not comparable\n", stderr);
#endif
    return bench::run(argc, argv);
}
