// The operations of a protobuf user, each with a new message, with one that is used again, and with one on an arena.
#ifndef MAVA_TUM_BENCH_PROTOBUF_OPERATIONS_H
#define MAVA_TUM_BENCH_PROTOBUF_OPERATIONS_H

#include "peers/harness/suite.h"
#include "peers/protobuf/protobuf_records.h"

#include <google/protobuf/arena.h>

namespace bench
{

// The fastest use of a protobuf arena: one large block of the caller, reused for each message.
class peer_arena
{
public:
    explicit peer_arena(size_t block_bytes = 256 * 1024) : block_(block_bytes), arena_(options_for(block_)) {}

    // The message lives until `reset`.
    template <class Message>
    Message *create()
    {
        return google::protobuf::Arena::CreateMessage<Message>(&arena_);
    }

    void reset()
    {
        arena_.Reset();
    }

private:
    static google::protobuf::ArenaOptions options_for(std::vector<char> &block)
    {
        google::protobuf::ArenaOptions options;
        options.initial_block = block.data();
        options.initial_block_size = block.size();
        return options;
    }

    std::vector<char> block_;
    google::protobuf::Arena arena_;
};

// The message of a call: a new one, a reused one, or one on an arena. `with` calls its argument with it.
template <class Message>
class new_message
{
public:
    static constexpr const char *side = MAVA_TUM_BENCH_PROTOBUF_SIDE " new";

    explicit new_message(size_t /*arena_bytes*/) {}

    template <class Call>
    auto with(Call call)
    {
        Message message;
        return call(message);
    }
};

template <class Message>
class reused_message
{
public:
    static constexpr const char *side = MAVA_TUM_BENCH_PROTOBUF_SIDE " reused";

    explicit reused_message(size_t /*arena_bytes*/) {}

    // Parsing and copying clear the message themselves; clear it before filling it.
    template <class Call>
    auto with(Call call)
    {
        return call(message_);
    }

private:
    Message message_;
};

template <class Message>
class arena_message
{
public:
    static constexpr const char *side = MAVA_TUM_BENCH_PROTOBUF_SIDE " arena";

    explicit arena_message(size_t arena_bytes) : arena_(arena_bytes) {}

    template <class Call>
    auto with(Call call)
    {
        const auto result = call(*arena_.create<Message>());
        arena_.reset();
        return result;
    }

private:
    peer_arena arena_;
};

template <class Message>
bool parse(Message &message, const std::vector<uint8_t> &wire)
{
    return message.ParseFromArray(wire.data(), static_cast<int>(wire.size()));
}

// As SerializeToArray, which does not return the size.
template <class Message>
byte_view serialize(const Message &message, std::vector<uint8_t> &buffer)
{
    const size_t bytes = message.ByteSizeLong();
    if (bytes > buffer.size())
        return {};
    message.SerializeWithCachedSizesToArray(buffer.data());
    return {buffer.data(), bytes};
}

template <class Message>
std::vector<uint8_t> wire_of(const Message &message)
{
    std::vector<uint8_t> wire(message.ByteSizeLong());
    message.SerializeWithCachedSizesToArray(wire.data());
    return wire;
}

inline size_t arena_bytes_for(const corpus &content)
{
    return 256 * 1024 + 32 * content.longest_wire();
}

inline std::shared_ptr<std::vector<uint8_t>> output_buffer(const corpus &content)
{
    return std::make_shared<std::vector<uint8_t>>(content.longest_wire() + 64 * 1024);
}

template <class Message>
std::shared_ptr<std::vector<Message>> parsed_corpus(const corpus &content)
{
    auto messages = std::make_shared<std::vector<Message>>(content.message_count());
    for (size_t i = 0; i < messages->size(); ++i)
        parse((*messages)[i], content.wires[i]);
    return messages;
}

template <class Message, template <class> class Source>
void add_decode(suite &operations)
{
    const corpus &content = operations.content();
    auto source = std::make_shared<Source<Message>>(arena_bytes_for(content));
    operations.add(
        "decode", Source<Message>::side,
        [&content, source](
            size_t i) { return source->with([&](Message &message) { return parse(message, content.wires[i]); }); },
        [&content, source](size_t i) {
            return source->with([&](Message &message) {
                parse(message, content.wires[i]);
                return wire_of(message);
            });
        });
}

// The kind of message does not affect reading: only the reused one is timed.
template <class Message>
void add_encode(suite &operations)
{
    if (!operations.wants("encode"))
        return;
    auto messages = parsed_corpus<Message>(operations.content());
    auto buffer = output_buffer(operations.content());
    operations.add_encode("encode", reused_message<Message>::side,
        [messages, buffer](size_t i) { return serialize((*messages)[i], *buffer); });
}

template <class Message, template <class> class Source>
void add_duplicate(suite &operations)
{
    if (!operations.wants("duplicate"))
        return;
    auto messages = parsed_corpus<Message>(operations.content());
    auto source = std::make_shared<Source<Message>>(arena_bytes_for(operations.content()));
    operations.add(
        "duplicate", Source<Message>::side,
        [messages, source](size_t i) {
            return source->with([&](Message &copy) {
                copy.CopyFrom((*messages)[i]);
                return true;
            });
        },
        [messages, source](size_t i) {
            return source->with([&](Message &copy) {
                copy.CopyFrom((*messages)[i]);
                return wire_of(copy);
            });
        });
}

template <class Message, class Application, template <class> class Source>
void add_adapter(suite &operations)
{
    const corpus &content = operations.content();
    auto source = std::make_shared<Source<Message>>(arena_bytes_for(content));
    const std::span<const Application> sent = records_to_send<Application>(content);
    auto buffer = output_buffer(content);
    operations.add_encode("encode_adapter", Source<Message>::side, [sent, source, buffer](size_t i) {
        return source->with([&](Message &message) {
            message.Clear();
            fill_peer(sent[i], message);
            return serialize(message, *buffer);
        });
    });
    auto received = std::make_shared<Application>();
    operations.add_decode_adapter(Source<Message>::side, [&content, source, received](size_t i) -> const Application & {
        source->with([&](Message &message) {
            parse(message, content.wires[i]);
            read_peer(message, *received);
            return true;
        });
        return *received;
    });
}

template <class Message>
void add_codec(suite &operations)
{
    add_decode<Message, new_message>(operations);
    add_decode<Message, reused_message>(operations);
    if constexpr (peer_uses_arena)
        add_decode<Message, arena_message>(operations);
    add_encode<Message>(operations);
    add_duplicate<Message, new_message>(operations);
    add_duplicate<Message, reused_message>(operations);
    if constexpr (peer_uses_arena)
        add_duplicate<Message, arena_message>(operations);
}

template <class Message, class Application>
void add_all(suite &operations)
{
    add_codec<Message>(operations);
    add_adapter<Message, Application, new_message>(operations);
    add_adapter<Message, Application, reused_message>(operations);
    if constexpr (peer_uses_arena)
        add_adapter<Message, Application, arena_message>(operations);
}

} // namespace bench

#endif
