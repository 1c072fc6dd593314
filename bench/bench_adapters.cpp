// An application record to wire bytes and back. Ours is one call; a user of protobuf fills a message from the
// application record and serialises it, or parses a message and reads it into the application record.
#include "bench_operations.h"
#include "peers/protobuf/peer_arena.h"

namespace bench
{
namespace
{

template <class Kind>
void register_our_encode(workload<Kind> &work)
{
    auto buffer = std::make_shared<std::vector<uint8_t>>(buffer_bytes);
    register_side(work.name, encode_adapter, ours,
        [&work, buffer] { return Kind::encode_adapter(work.application.get(), buffer->data(), buffer_bytes); });
}

template <class Kind>
int fill_and_serialize(
    const typename Kind::application &application, typename Kind::message &message, std::vector<uint8_t> &buffer)
{
    fill_peer(application, message);
    message.SerializeToArray(buffer.data(), static_cast<int>(buffer.size()));
    return message.GetCachedSize();
}

template <class Kind>
void register_protobuf_encode(workload<Kind> &work)
{
    auto buffer = std::make_shared<std::vector<uint8_t>>(buffer_bytes);
    auto message = std::make_shared<typename Kind::message>();
    register_side(work.name, encode_adapter, protobuf_heap, [&work, message, buffer] {
        message->Clear();
        return fill_and_serialize<Kind>(*work.application, *message, *buffer);
    });
}

template <class Kind>
void register_arena_encode(workload<Kind> &work)
{
    auto buffer = std::make_shared<std::vector<uint8_t>>(buffer_bytes);
    auto arena = std::make_shared<peer_arena>();
    register_side(work.name, encode_adapter, protobuf_arena, [&work, arena, buffer] {
        auto *message = arena->create<typename Kind::message>();
        const int size = fill_and_serialize<Kind>(*work.application, *message, *buffer);
        arena->reset();
        return size;
    });
}

template <class Kind>
void register_our_decode(workload<Kind> &work)
{
    auto received = std::make_shared<typename Kind::application>();
    register_side(work.name, decode_adapter, ours, [&work, received] {
        Kind::decode_adapter(work.wire.data(), static_cast<uint32_t>(work.wire.size()), received.get());
        return received.get();
    });
}

template <class Kind>
void parse_and_read(
    const workload<Kind> &work, typename Kind::message &message, typename Kind::application &application)
{
    message.ParseFromArray(work.wire.data(), static_cast<int>(work.wire.size()));
    read_peer(message, application);
}

template <class Kind>
void register_protobuf_decode(workload<Kind> &work)
{
    auto received = std::make_shared<typename Kind::application>();
    auto message = std::make_shared<typename Kind::message>();
    register_side(work.name, decode_adapter, protobuf_heap, [&work, message, received] {
        parse_and_read(work, *message, *received);
        return received.get();
    });
}

template <class Kind>
void register_arena_decode(workload<Kind> &work)
{
    auto received = std::make_shared<typename Kind::application>();
    auto arena = std::make_shared<peer_arena>();
    register_side(work.name, decode_adapter, protobuf_arena, [&work, arena, received] {
        parse_and_read(work, *arena->create<typename Kind::message>(), *received);
        arena->reset();
        return received.get();
    });
}

} // namespace

template <class Kind>
void register_encode_adapter(workload<Kind> &work)
{
    register_our_encode(work);
    register_protobuf_encode(work);
    register_arena_encode(work);
}

template <class Kind>
void register_decode_adapter(workload<Kind> &work)
{
    register_our_decode(work);
    register_protobuf_decode(work);
    register_arena_decode(work);
}

template void register_encode_adapter(workload<session_kind> &);
template void register_encode_adapter(workload<route_kind> &);
template void register_decode_adapter(workload<session_kind> &);
template void register_decode_adapter(workload<route_kind> &);

} // namespace bench
