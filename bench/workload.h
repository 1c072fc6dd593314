// A workload with everything that is derived from its application record.
#ifndef MAVA_TUM_BENCH_WORKLOAD_H
#define MAVA_TUM_BENCH_WORKLOAD_H

#include "bump_allocator.h"
#include "message_kinds.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace bench
{

// Room for the largest message here; an encoder gets the whole of it.
constexpr uint32_t buffer_bytes = 64 * 1024;

template <class Kind>
struct workload {
    using fill_function = void (*)(typename Kind::application &);

    workload(const char *workload_name, fill_function fill);

    std::string name;
    std::unique_ptr<typename Kind::application> application;
    typename Kind::message message;    // filled from `application`
    std::vector<uint8_t> wire;         // `message`, serialised: the bytes that the library has to agree with
    bump_allocator record_memory;      // of `record`
    typename Kind::record record = {}; // `wire`, decoded; its bytes fields alias it
    int32_t record_result;             // of that decode
};

template <class Kind>
workload<Kind>::workload(const char *workload_name, fill_function fill)
    : name(workload_name), application(std::make_unique<typename Kind::application>())
{
    fill(*application);
    fill_peer(*application, message);
    wire.resize(message.ByteSizeLong());
    message.SerializeToArray(wire.data(), static_cast<int>(wire.size()));
    record_result =
        Kind::decode(&record, wire.data(), wire.size(), bump_allocator::allocate, &record_memory, MAVA_TUM_ALIAS);
}

} // namespace bench

#endif
