// Our measured operations: the codec functions and the adapters.
#ifndef MAVA_TUM_BENCH_OUR_OPERATIONS_H
#define MAVA_TUM_BENCH_OUR_OPERATIONS_H

#include "arena.h"
#include "bump_allocator.h"
#include "peers/harness/suite.h"
#include "peers/ours/our_messages.h"

#include <array>
#include <cstdlib>

namespace bench
{

// Callbacks for the heap of the C library.
inline void *allocate_zeroed(uint64_t size, void *)
{
    return std::calloc(1, size);
}

inline void release_allocated(void *pointer, void *)
{
    std::free(pointer);
}

inline constexpr our_allocator heap = {allocate_zeroed, release_allocated, nullptr};

inline our_allocator of_bump(bump_allocator &memory)
{
    return {bump_allocator::allocate, bump_allocator::release, &memory};
}

// Enough for all blocks of records whose wire has `wire_bytes` bytes, unless they consist of empty elements.
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
            const unsigned char *first_block = memory.unused();
            Codec::decode(records[i], wire.data(), wire.size(), of_bump(memory), MAVA_TUM_ALIAS);
            blocks.emplace_back(first_block, memory.unused());
        }
    }

    bump_allocator memory;
    std::vector<typename Codec::record> records;
    std::vector<byte_view> blocks; // of each record
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

template <class Object>
byte_view bytes_of(const Object &object)
{
    return {reinterpret_cast<const uint8_t *>(&object), sizeof object};
}

// Of the records that an encoder reads: the cache lines that are not all zero, message by message.
class used_lines
{
public:
    void add(byte_view memory)
    {
        while (!memory.empty()) {
            const size_t left_in_line = line_bytes - reinterpret_cast<uintptr_t>(memory.data()) % line_bytes;
            const byte_view line = memory.first(std::min(memory.size(), left_in_line));
            if (std::ranges::any_of(line, [](uint8_t byte) { return byte != 0; }))
                lines_.push_back(line.data());
            memory = memory.subspan(line.size());
        }
    }

    // The lines added since the last call belong to the next message.
    void end_message()
    {
        ends_.push_back(lines_.size());
    }

    void read(size_t message) const
    {
        unsigned sum = 0;
        for (size_t i = message == 0 ? 0 : ends_[message - 1]; i != ends_[message]; ++i)
            sum += *lines_[i];
        keep(sum);
    }

private:
    static constexpr size_t line_bytes = 64;

    std::vector<const uint8_t *> lines_;
    std::vector<size_t> ends_; // for each message, the number of lines up to and with it
};

// A lower bound of an encode: reads the lines and copies the wire.
inline void add_encode_floor(suite &operations, const char *operation, used_lines lines)
{
    const corpus &content = operations.content();
    auto buffer = std::make_shared<std::vector<uint8_t>>(content.longest_wire());
    operations.add_encode(operation, "memcpy", [&content, lines = std::move(lines), buffer](size_t i) {
        const std::vector<uint8_t> &wire = content.wires[i];
        lines.read(i);
        std::memcpy(buffer->data(), wire.data(), wire.size());
        return byte_view(buffer->data(), wire.size());
    });
}

// Into a large buffer, into one of exactly the size, and a size request.
template <class Codec>
void add_encode(suite &operations)
{
    if (!operations.wants("encode"))
        return;
    const corpus &content = operations.content();
    auto decoded = std::make_shared<decoded_corpus<Codec>>(content);
    auto buffer = std::make_shared<std::vector<uint8_t>>(content.longest_wire() + 64 * 1024);
    const auto encode_into = [decoded, buffer](size_t i, uint64_t capacity) {
        return byte_view(buffer->data(), Codec::encode(decoded->records[i], buffer->data(), capacity));
    };
    operations.add_encode("encode", "ours", [encode_into, buffer](size_t i) { return encode_into(i, buffer->size()); });
    operations.add_encode(
        "encode", "ours exact", [encode_into, &content](size_t i) { return encode_into(i, content.wires[i].size()); });
    operations.add_floor("encode", "size request", [decoded, &content](size_t i) {
        return Codec::encode(decoded->records[i], nullptr, 0) == content.wires[i].size();
    });
    used_lines lines;
    for (size_t i = 0; i < content.message_count(); ++i) {
        lines.add(bytes_of(decoded->records[i]));
        lines.add(decoded->blocks[i]);
        lines.end_message();
    }
    add_encode_floor(operations, "encode", std::move(lines));
}

template <class Codec>
void add_duplicate(suite &operations)
{
    if (!operations.wants("duplicate"))
        return;
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

// Notes the size of each block that it allocates.
struct recording_heap {
    std::vector<uint64_t> sizes;

    our_allocator allocator()
    {
        return {allocate, release_allocated, this};
    }

private:
    static void *allocate(uint64_t size, void *recording)
    {
        static_cast<recording_heap *>(recording)->sizes.push_back(size);
        return std::calloc(1, size);
    }
};

// A lower bound of a decode: makes the same allocator calls, and copies the wire into the blocks and the record.
template <class Record>
void add_decode_floor(suite &operations, std::vector<std::vector<uint64_t>> block_sizes)
{
    const corpus &content = operations.content();
    auto memory = std::make_shared<bump_allocator>(bump_bytes_for(content.longest_wire()));
    auto record = std::make_shared<Record>();
    operations.add_floor("decode", "memcpy", [&content, memory, record, sizes = std::move(block_sizes)](size_t i) {
        byte_view left = content.wires[i];
        const auto copy_to = [&left](void *place, uint64_t size) {
            const byte_view copied = left.first(std::min<size_t>(size, left.size()));
            std::memcpy(place, copied.data(), copied.size());
            left = left.subspan(copied.size());
        };
        memory->reset();
        for (const uint64_t size : sizes[i])
            copy_to(bump_allocator::allocate(size, memory.get()), size);
        copy_to(record.get(), sizeof(Record));
        return true;
    });
}

// Makes only the heap calls of an operation.
inline void add_heap_floor(suite &operations, const char *operation, std::vector<std::vector<uint64_t>> block_sizes)
{
    auto blocks = std::make_shared<std::vector<void *>>();
    auto sizes = std::make_shared<std::vector<std::vector<uint64_t>>>(std::move(block_sizes));
    operations.add_floor(operation, "heap calls", [sizes, blocks](size_t i) {
        blocks->clear();
        for (const uint64_t size : (*sizes)[i])
            blocks->push_back(std::calloc(1, size));
        for (void *block : *blocks)
            std::free(block);
        return true;
    });
}

// Of a decode, and of a duplicate with the heap.
template <class Codec>
void add_decode_floors(suite &operations)
{
    if (!operations.wants("decode") && !operations.wants("duplicate"))
        return;
    const corpus &content = operations.content();
    std::vector<std::vector<uint64_t>> of_decode;
    std::vector<std::vector<uint64_t>> of_duplicate;
    for (const std::vector<uint8_t> &wire : content.wires) {
        recording_heap decoding;
        recording_heap duplicating;
        typename Codec::record record = {};
        typename Codec::record copy = {};
        Codec::decode(record, wire.data(), wire.size(), decoding.allocator(), MAVA_TUM_ALIAS);
        Codec::duplicate(copy, record, duplicating.allocator());
        Codec::free(copy, heap, 0);
        Codec::free(record, heap, MAVA_TUM_ALIAS);
        of_decode.push_back(std::move(decoding.sizes));
        of_duplicate.push_back(std::move(duplicating.sizes));
    }
    add_decode_floor<typename Codec::record>(operations, of_decode);
    add_heap_floor(operations, "decode", std::move(of_decode));
    add_heap_floor(operations, "duplicate", std::move(of_duplicate));
}

template <class Codec>
void add_codec(suite &operations)
{
    add_decode<Codec>(operations, MAVA_TUM_ALIAS);
    add_encode<Codec>(operations);
    add_duplicate<Codec>(operations);
    add_decode_floors<Codec>(operations);
}

// Decodes as the example decode_into_arena: its arena is reset instead of freeing the record.
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

// Gather output: a bytes field is not copied, its segment points at the record's memory.
inline void add_gathering_encode(suite &operations)
{
    struct output {
        std::array<uint8_t, 64 * 1024> buffer;
        std::array<mava_tum_segment, 64> pieces;
        uint32_t piece_count;
    };
    auto decoded = std::make_shared<decoded_corpus<session_codec>>(operations.content());
    auto out = std::make_shared<output>();
    const auto encode = [decoded, out](size_t i) {
        out->piece_count = static_cast<uint32_t>(out->pieces.size());
        return mava_tum_session_context_encode_ext(&decoded->records[i], out->buffer.data(), out->buffer.size(),
                   out->pieces.data(), &out->piece_count, MAVA_TUM_ALIAS) <= out->buffer.size();
    };
    operations.add("encode", "ours", encode, [encode, out](size_t i) {
        std::vector<uint8_t> wire;
        encode(i);
        for (uint32_t piece = 0; piece < out->piece_count; ++piece)
            wire.insert(wire.end(), out->pieces[piece].data, out->pieces[piece].data + out->pieces[piece].length);
        return wire;
    });
}

// The adapters: one call each way.
template <class Adapter>
void add_adapter(suite &operations)
{
    using application = typename Adapter::sent;
    const corpus &content = operations.content();
    const std::span<const application> sent = records_to_send<application>(content);
    auto buffer = std::make_shared<std::vector<uint8_t>>(content.longest_wire() + 64 * 1024);
    operations.add_encode("encode_adapter", "ours", [sent, buffer](size_t i) {
        const auto capacity = static_cast<uint32_t>(buffer->size());
        return byte_view(buffer->data(), Adapter::encode(&sent[i], buffer->data(), capacity));
    });
    if (operations.wants("encode_adapter")) {
        used_lines lines;
        for (const application &record : sent) {
            lines.add(bytes_of(record));
            lines.end_message();
        }
        add_encode_floor(operations, "encode_adapter", std::move(lines));
    }
    auto received = std::make_shared<application>();
    operations.add_decode_adapter("ours", [&content, received](size_t i) -> const application & {
        const std::vector<uint8_t> &wire = content.wires[i];
        Adapter::decode(wire.data(), static_cast<uint32_t>(wire.size()), received.get());
        return *received;
    });
    // A lower bound: clears the application record and copies the wire into it.
    operations.add_floor("decode_adapter", "memcpy", [&content, received](size_t i) {
        const std::vector<uint8_t> &wire = content.wires[i];
        std::memset(received.get(), 0, sizeof(application));
        std::memcpy(received.get(), wire.data(), std::min(wire.size(), sizeof(application)));
        return true;
    });
}

} // namespace bench

#endif
