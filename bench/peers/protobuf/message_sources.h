// Where a protobuf user takes the message from that a call works on: a new one, one that is used again, or one on an
// arena. `with` lends it to the call and takes it back.
#ifndef MAVA_TUM_BENCH_MESSAGE_SOURCES_H
#define MAVA_TUM_BENCH_MESSAGE_SOURCES_H

#include "peers/protobuf/peer_arena.h"
#include "peers/protobuf/peer_language.h"

namespace bench
{

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

    // Parsing and copying clear the message themselves; who fills it clears it first.
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

} // namespace bench

#endif
