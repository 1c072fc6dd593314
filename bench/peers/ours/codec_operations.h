// The codec functions: decode and free, encode, duplicate and free.
#ifndef MAVA_TUM_BENCH_CODEC_OPERATIONS_H
#define MAVA_TUM_BENCH_CODEC_OPERATIONS_H

#include "bump_allocator.h"
#include "calloc_callbacks.h"
#include "peers/harness/suite.h"
#include "peers/ours/our_messages.h"

namespace bench
{

inline constexpr our_allocator heap = {allocate_zeroed, release_allocated, nullptr};

inline our_allocator of_bump(bump_allocator &memory)
{
    return {bump_allocator::allocate, bump_allocator::release, &memory};
}

// Enough for all blocks of records whose wire has `wire_bytes` bytes, as long as they are not made of empty elements.
inline uint64_t bump_bytes_for(uint64_t wire_bytes)
{
    return 64 * 1024 + 16 * wire_bytes;
}

// The corpus, decoded, for the encoders to read.
template <class Codec>
struct decoded_corpus {
    explicit decoded_corpus(const corpus &content)
        : memory(bump_bytes_for(content.wire_bytes() + 4096 * content.message_count())),
          records(content.message_count())
    {
        for (size_t i = 0; i < records.size(); ++i) {
            const std::vector<uint8_t> &wire = content.wires[i];
            Codec::decode(records[i], wire.data(), wire.size(), of_bump(memory), MAVA_TUM_ALIAS);
        }
    }

    bump_allocator memory;
    std::vector<typename Codec::record> records;
};

template <class Codec>
std::vector<uint8_t> wire_of(const typename Codec::record &record)
{
    std::vector<uint8_t> wire(Codec::encode(record, nullptr, 0));
    Codec::encode(record, wire.data(), wire.size());
    return wire;
}

template <class Codec>
void add_decode(suite &operations, uint32_t flags)
{
    using record_type = typename Codec::record;
    const corpus &content = operations.content();
    auto memory = std::make_shared<bump_allocator>(bump_bytes_for(content.longest_wire()));
    auto record = std::make_shared<record_type>();
    const auto decode_free = [&content, record, flags](size_t i, const our_allocator &allocator) {
        const std::vector<uint8_t> &wire = content.wires[i];
        const int32_t result = Codec::decode(*record, wire.data(), wire.size(), allocator, flags);
        Codec::free(*record, allocator, flags);
        return result == MAVA_TUM_OK;
    };
    const auto wire_after = [&content, record, flags](size_t i, const our_allocator &allocator) {
        Codec::decode(*record, content.wires[i].data(), content.wires[i].size(), allocator, flags);
        std::vector<uint8_t> wire = wire_of<Codec>(*record);
        Codec::free(*record, allocator, flags);
        return wire;
    };
    const auto emptied = [memory] {
        memory->reset();
        return of_bump(*memory);
    };
    operations.add(
        "decode", "ours bump", [=](size_t i) { return decode_free(i, emptied()); },
        [=](size_t i) { return wire_after(i, emptied()); });
    operations.add(
        "decode", "ours calloc", [=](size_t i) { return decode_free(i, heap); },
        [=](size_t i) { return wire_after(i, heap); });
}

// Into a buffer with room to spare, into one of exactly the size, and the question for the size.
template <class Codec>
void add_encode(suite &operations)
{
    const corpus &content = operations.content();
    auto decoded = std::make_shared<decoded_corpus<Codec>>(content);
    auto buffer = std::make_shared<std::vector<uint8_t>>(content.longest_wire() + 64 * 1024);
    const auto encode_into = [decoded, buffer](size_t i, uint64_t capacity) {
        return byte_view(buffer->data(), Codec::encode(decoded->records[i], buffer->data(), capacity));
    };
    operations.add_encode("encode", "ours", [encode_into, buffer](size_t i) { return encode_into(i, buffer->size()); });
    operations.add_encode(
        "encode_exact", "ours", [encode_into, &content](size_t i) { return encode_into(i, content.wires[i].size()); });
    operations.add_floor("size_request", "ours", [decoded, &content](size_t i) {
        return Codec::encode(decoded->records[i], nullptr, 0) == content.wires[i].size();
    });
}

template <class Codec>
void add_duplicate(suite &operations)
{
    using record_type = typename Codec::record;
    auto decoded = std::make_shared<decoded_corpus<Codec>>(operations.content());
    auto copy = std::make_shared<record_type>();
    operations.add(
        "duplicate", "ours",
        [decoded, copy](size_t i) {
            const int32_t result = Codec::duplicate(*copy, decoded->records[i], heap);
            Codec::free(*copy, heap, 0);
            return result == MAVA_TUM_OK;
        },
        [decoded](size_t i) {
            record_type checked = {};
            Codec::duplicate(checked, decoded->records[i], heap);
            std::vector<uint8_t> wire = wire_of<Codec>(checked);
            Codec::free(checked, heap, 0);
            return wire;
        });
}

template <class Codec>
void add_codec(suite &operations)
{
    add_decode<Codec>(operations, MAVA_TUM_ALIAS);
    add_encode<Codec>(operations);
    add_duplicate<Codec>(operations);
}

} // namespace bench

#endif
