// A protobuf arena at its best: one block of the caller's, large enough, used again for each message.
#ifndef MAVA_TUM_BENCH_PEER_ARENA_H
#define MAVA_TUM_BENCH_PEER_ARENA_H

#include <google/protobuf/arena.h>

#include <cstddef>
#include <vector>

namespace bench
{

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

} // namespace bench

#endif
