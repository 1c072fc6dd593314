// A deep copy of a record, and giving the copy's memory back.
#include "bench_operations.h"
#include "calloc_callbacks.h"
#include "peers/protobuf/peer_arena.h"

namespace bench
{
namespace
{

template <class Kind>
void register_ours(workload<Kind> &work)
{
    auto copy = std::make_shared<typename Kind::record>();
    register_side(work.name, duplicate_free, ours, [&work, copy] {
        const int32_t result = Kind::duplicate(copy.get(), &work.record, allocate_zeroed, nullptr);
        Kind::free(copy.get(), release_allocated, nullptr, 0);
        return result;
    });
}

// A new copy each time, as on our side: a message that is copied over again would keep its blocks.
template <class Kind>
void register_protobuf(workload<Kind> &work)
{
    register_side(work.name, duplicate_free, protobuf_heap, [&work] {
        typename Kind::message copy(work.message);
        benchmark::DoNotOptimize(&copy);
        return copy.field_1();
    });
}

template <class Kind>
void register_arena(workload<Kind> &work)
{
    auto arena = std::make_shared<peer_arena>();
    register_side(work.name, duplicate_free, protobuf_arena, [&work, arena] {
        auto *copy = arena->create<typename Kind::message>();
        copy->CopyFrom(work.message);
        const uint32_t value = copy->field_1();
        arena->reset();
        return value;
    });
}

} // namespace

template <class Kind>
void register_duplicate(workload<Kind> &work)
{
    register_ours(work);
    register_protobuf(work);
    register_arena(work);
}

template void register_duplicate(workload<session_kind> &);
template void register_duplicate(workload<route_kind> &);

} // namespace bench
