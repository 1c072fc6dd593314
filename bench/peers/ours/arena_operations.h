// Decoding as the example decode_into_arena does it: with its arena, which is reset instead of freeing the record.
#ifndef MAVA_TUM_BENCH_ARENA_OPERATIONS_H
#define MAVA_TUM_BENCH_ARENA_OPERATIONS_H

#include "arena.h"
#include "peers/ours/codec_operations.h"

namespace bench
{

template <class Codec>
void add_arena_decode(suite &operations, uint32_t flags)
{
    struct state {
        explicit state(uint64_t bytes) : block(bytes / sizeof(std::max_align_t)) {}

        std::vector<std::max_align_t> block;
        typename Codec::record record = {};
        arena memory = {reinterpret_cast<unsigned char *>(block.data()), block.size() * sizeof(std::max_align_t), 0};
    };
    const corpus &content = operations.content();
    auto own = std::make_shared<state>(bump_bytes_for(content.longest_wire()));
    const auto decode = [&content, own, flags](size_t i) {
        const std::vector<uint8_t> &wire = content.wires[i];
        const our_allocator allocator = {arena_allocate, nullptr, &own->memory};
        arena_reset(&own->memory);
        return Codec::decode(own->record, wire.data(), wire.size(), allocator, flags) == MAVA_TUM_OK;
    };
    operations.add("decode", "ours arena", decode, [decode, own](size_t i) {
        decode(i);
        return wire_of<Codec>(own->record);
    });
}

} // namespace bench

#endif
