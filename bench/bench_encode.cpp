// A filled record to wire bytes.
#include "bench_operations.h"
#include "peers/protobuf/peer_arena.h"

namespace bench
{
namespace
{

template <class Kind>
void register_ours(workload<Kind> &work)
{
    auto buffer = std::make_shared<std::vector<uint8_t>>(buffer_bytes);
    register_side(work.name, encode, ours,
        [&work, buffer] { return Kind::encode(&work.record, buffer->data(), buffer_bytes, nullptr, nullptr, 0); });
}

// SerializeToArray works the size out and then writes: both are part of getting the bytes.
template <class Message>
int serialize(const Message &message, std::vector<uint8_t> &buffer)
{
    message.SerializeToArray(buffer.data(), static_cast<int>(buffer.size()));
    return message.GetCachedSize();
}

template <class Kind>
void register_protobuf(workload<Kind> &work)
{
    auto buffer = std::make_shared<std::vector<uint8_t>>(buffer_bytes);
    register_side(work.name, encode, protobuf_heap, [&work, buffer] { return serialize(work.message, *buffer); });
}

template <class Kind>
void register_arena(workload<Kind> &work)
{
    auto buffer = std::make_shared<std::vector<uint8_t>>(buffer_bytes);
    auto arena = std::make_shared<peer_arena>();
    auto *message = arena->create<typename Kind::message>();
    message->CopyFrom(work.message);
    register_side(work.name, encode, protobuf_arena, [arena, message, buffer] { return serialize(*message, *buffer); });
}

} // namespace

template <class Kind>
void register_encode(workload<Kind> &work)
{
    register_ours(work);
    register_protobuf(work);
    register_arena(work);
}

template void register_encode(workload<session_kind> &);
template void register_encode(workload<route_kind> &);

} // namespace bench
