// Wire bytes to a record of the caller's, and giving the record's memory back.
#include "bench_operations.h"
#include "peers/protobuf/peer_arena.h"

namespace bench
{
namespace
{

// Alias mode: bytes fields point into the wire. Texts and arrays come from a scratch that is reset for each message.
template <class Kind>
void register_ours(workload<Kind> &work)
{
    auto scratch = std::make_shared<bump_allocator>();
    auto record = std::make_shared<typename Kind::record>();
    register_side(work.name, decode_free, ours, [&work, scratch, record] {
        scratch->reset();
        const int32_t result = Kind::decode(
            record.get(), work.wire.data(), work.wire.size(), bump_allocator::allocate, scratch.get(), MAVA_TUM_ALIAS);
        Kind::free(record.get(), bump_allocator::release, scratch.get(), MAVA_TUM_ALIAS);
        return result;
    });
}

// Parsing clears the message first and keeps its blocks and strings for the next round: nothing else is to be freed.
template <class Kind>
void register_protobuf(workload<Kind> &work)
{
    auto message = std::make_shared<typename Kind::message>();
    register_side(work.name, decode_free, protobuf_heap,
        [&work, message] { return message->ParseFromArray(work.wire.data(), static_cast<int>(work.wire.size())); });
}

template <class Kind>
void register_arena(workload<Kind> &work)
{
    auto arena = std::make_shared<peer_arena>();
    register_side(work.name, decode_free, protobuf_arena, [&work, arena] {
        auto *message = arena->create<typename Kind::message>();
        const bool parsed = message->ParseFromArray(work.wire.data(), static_cast<int>(work.wire.size()));
        arena->reset();
        return parsed;
    });
}

} // namespace

template <class Kind>
void register_decode(workload<Kind> &work)
{
    register_ours(work);
    register_protobuf(work);
    register_arena(work);
}

template void register_decode(workload<session_kind> &);
template void register_decode(workload<route_kind> &);

} // namespace bench
