// protobuf-c: unpacked messages are trees of blocks from the heap or from an allocator that is reset. It has no
// function for a duplicate.
#include "bump_allocator.h"
#include "peers/harness/peer_program.h"
#include "peers/harness/workload_names.h"
#include "peers/protobuf_c/protobuf_c_records.h"

#include <string>

namespace bench
{
namespace
{

constexpr const char *malloc_side = "protobuf-c malloc";
constexpr const char *bump_side = "protobuf-c bump";

// The generated functions of a message, under common names.
template <class Message, auto Init, auto Unpack, auto Size, auto Pack, auto Free>
struct generated {
    using message = Message;
    static constexpr auto init = Init;
    static constexpr auto unpack = Unpack;
    static constexpr auto size = Size;
    static constexpr auto pack = Pack;
    static constexpr auto free = Free;
};

using session = generated<Bench__Peer__SessionContext, bench__peer__session_context__init,
    bench__peer__session_context__unpack, bench__peer__session_context__get_packed_size,
    bench__peer__session_context__pack, bench__peer__session_context__free_unpacked>;
using routes = generated<Bench__Peer__SubRoute, bench__peer__sub_route__init, bench__peer__sub_route__unpack,
    bench__peer__sub_route__get_packed_size, bench__peer__sub_route__pack, bench__peer__sub_route__free_unpacked>;
using stats = generated<Bench__Peer__SubscriberStats, bench__peer__subscriber_stats__init,
    bench__peer__subscriber_stats__unpack, bench__peer__subscriber_stats__get_packed_size,
    bench__peer__subscriber_stats__pack, bench__peer__subscriber_stats__free_unpacked>;
using states = generated<Bench__Peer__RecSessReq, bench__peer__rec_sess_req__init, bench__peer__rec_sess_req__unpack,
    bench__peer__rec_sess_req__get_packed_size, bench__peer__rec_sess_req__pack,
    bench__peer__rec_sess_req__free_unpacked>;
using start = generated<Bench__Peer__SrgGroupRecStartReq, bench__peer__srg_group_rec_start_req__init,
    bench__peer__srg_group_rec_start_req__unpack, bench__peer__srg_group_rec_start_req__get_packed_size,
    bench__peer__srg_group_rec_start_req__pack, bench__peer__srg_group_rec_start_req__free_unpacked>;
using replay_request = generated<Bench__Peer__RecSessReplayReq, bench__peer__rec_sess_replay_req__init,
    bench__peer__rec_sess_replay_req__unpack, bench__peer__rec_sess_replay_req__get_packed_size,
    bench__peer__rec_sess_replay_req__pack, bench__peer__rec_sess_replay_req__free_unpacked>;

// Frees what it unpacked, block by block.
class malloc_memory
{
public:
    static constexpr const char *side = malloc_side;

    explicit malloc_memory(uint64_t /*bytes*/) {}

    template <class Generated, class Call>
    auto with_unpacked(const std::vector<uint8_t> &wire, Call call)
    {
        auto *message = Generated::unpack(nullptr, wire.size(), wire.data());
        const auto result = call(message);
        Generated::free(message, nullptr);
        return result;
    }
};

// Releases all blocks at once.
class bump_memory
{
public:
    static constexpr const char *side = bump_side;

    explicit bump_memory(uint64_t bytes) : blocks_(bytes), allocator_{allocate, release, &blocks_} {}
    bump_memory(const bump_memory &) = delete;
    bump_memory &operator=(const bump_memory &) = delete;

    template <class Generated, class Call>
    auto with_unpacked(const std::vector<uint8_t> &wire, Call call)
    {
        const auto result = call(Generated::unpack(&allocator_, wire.size(), wire.data()));
        blocks_.reset();
        return result;
    }

private:
    static void *allocate(void *blocks, size_t size)
    {
        return bump_allocator::allocate(size, blocks);
    }

    static void release(void *, void *) {}

    bump_allocator blocks_;
    ProtobufCAllocator allocator_;
};

uint64_t bump_bytes_for(const corpus &content)
{
    return 256 * 1024 + 32 * content.longest_wire();
}

std::shared_ptr<std::vector<uint8_t>> output_buffer(const corpus &content)
{
    return std::make_shared<std::vector<uint8_t>>(content.longest_wire() + 64 * 1024);
}

template <class Generated>
byte_view pack(const typename Generated::message &message, std::vector<uint8_t> &buffer)
{
    if (Generated::size(&message) > buffer.size())
        return {};
    return {buffer.data(), Generated::pack(&message, buffer.data())};
}

template <class Generated, class Memory>
void add_decode(suite &operations)
{
    using message_type = typename Generated::message;
    const corpus &content = operations.content();
    auto memory = std::make_shared<Memory>(bump_bytes_for(content));
    operations.add(
        "decode", Memory::side,
        [&content, memory](size_t i) {
            return memory->template with_unpacked<Generated>(
                content.wires[i], [](const message_type *message) { return message != nullptr; });
        },
        [&content, memory, buffer = output_buffer(content)](size_t i) {
            return memory->template with_unpacked<Generated>(
                content.wires[i], [&](const message_type *message) { return pack<Generated>(*message, *buffer); });
        });
}

template <class Generated>
struct unpacked_corpus {
    explicit unpacked_corpus(const corpus &content)
    {
        for (const std::vector<uint8_t> &wire : content.wires)
            messages.push_back(Generated::unpack(nullptr, wire.size(), wire.data()));
    }

    ~unpacked_corpus()
    {
        for (auto *message : messages)
            Generated::free(message, nullptr);
    }

    unpacked_corpus(const unpacked_corpus &) = delete;
    unpacked_corpus &operator=(const unpacked_corpus &) = delete;

    std::vector<typename Generated::message *> messages;
};

template <class Generated>
void add_codec(suite &operations)
{
    add_decode<Generated, malloc_memory>(operations);
    add_decode<Generated, bump_memory>(operations);
    if (!operations.wants("encode"))
        return;
    auto unpacked = std::make_shared<unpacked_corpus<Generated>>(operations.content());
    auto buffer = output_buffer(operations.content());
    operations.add_encode("encode", malloc_side,
        [unpacked, buffer](size_t i) { return pack<Generated>(*unpacked->messages[i], *buffer); });
}

// Filling allocates nothing, so one side is enough.
template <class Generated, class Application, class Parts>
void add_encode_adapter(suite &operations)
{
    const std::span<const Application> sent = records_to_send<Application>(operations.content());
    auto buffer = output_buffer(operations.content());
    operations.add_encode("encode_adapter", malloc_side, [sent, buffer](size_t i) {
        typename Generated::message message;
        Parts parts;
        Generated::init(&message);
        fill_peer(sent[i], message, parts);
        return pack<Generated>(message, *buffer);
    });
}

template <class Generated, class Application, class Memory>
void add_decode_adapter(suite &operations)
{
    const corpus &content = operations.content();
    auto memory = std::make_shared<Memory>(bump_bytes_for(content));
    auto received = std::make_shared<Application>();
    operations.add_decode_adapter(Memory::side, [&content, memory, received](size_t i) -> const Application & {
        memory->template with_unpacked<Generated>(content.wires[i], [&](const typename Generated::message *message) {
            if (message != nullptr)
                read_peer(*message, *received);
            return message != nullptr;
        });
        return *received;
    });
}

template <class Generated, class Application, class Parts>
void add_all(suite &operations)
{
    add_codec<Generated>(operations);
    add_encode_adapter<Generated, Application, Parts>(operations);
    add_decode_adapter<Generated, Application, malloc_memory>(operations);
    add_decode_adapter<Generated, Application, bump_memory>(operations);
}

} // namespace

std::string peer_version()
{
    return std::string("protobuf-c ") + protobuf_c_version();
}

void add_operations(suite &operations)
{
    const std::string &workload = operations.content().workload;
    if (is_session(workload))
        add_all<session, tum_nal_data_session_context, session_parts>(operations);
    else if (workload == route_batch)
        add_all<routes, tum_nal_data_sub_route, routes_parts>(operations);
    else if (workload == subscriber_stats)
        add_all<stats, tum_nal_data_subscriber_stats, statistics_parts>(operations);
    else if (workload == session_states)
        add_all<states, tum_nal_data_rec_sess_req, states_parts>(operations);
    else if (workload == group_start)
        add_all<start, tum_nal_data_srg_group_rec_start_req, no_parts>(operations);
    else if (is_replay(workload))
        add_codec<replay_request>(operations);
    else if (is_large_bytes(workload))
        add_codec<session>(operations);
}

} // namespace bench
