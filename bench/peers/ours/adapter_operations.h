// The adapters: one call each way. With them the floor of a decode adapter, and of a decode with calloc, which owe one
// calloc and one free to each text and array of the message.
#ifndef MAVA_TUM_BENCH_ADAPTER_OPERATIONS_H
#define MAVA_TUM_BENCH_ADAPTER_OPERATIONS_H

#include "peers/ours/codec_operations.h"

namespace bench
{

// The sizes of the blocks that a decode of each message asks for.
template <class Codec>
std::vector<std::vector<uint64_t>> block_sizes(const corpus &content)
{
    struct recording {
        static void *allocate(uint64_t size, void *sizes)
        {
            static_cast<std::vector<uint64_t> *>(sizes)->push_back(size);
            return std::calloc(1, size);
        }
    };
    std::vector<std::vector<uint64_t>> sizes(content.message_count());
    for (size_t i = 0; i < sizes.size(); ++i) {
        typename Codec::record record = {};
        Codec::decode(record, content.wires[i].data(), content.wires[i].size(),
            {recording::allocate, release_allocated, &sizes[i]}, MAVA_TUM_ALIAS);
        Codec::free(record, heap, MAVA_TUM_ALIAS);
    }
    return sizes;
}

// Only the heap's share of a decode: no byte is decoded.
template <class Codec>
void add_heap_floor(suite &operations, const char *operation)
{
    auto sizes = std::make_shared<std::vector<std::vector<uint64_t>>>(block_sizes<Codec>(operations.content()));
    auto blocks = std::make_shared<std::vector<void *>>();
    operations.add_floor(operation, "heap calls", [sizes, blocks](size_t i) {
        blocks->clear();
        for (const uint64_t size : (*sizes)[i])
            blocks->push_back(std::calloc(1, size));
        for (void *block : *blocks)
            std::free(block);
        return true;
    });
}

template <class Adapter>
void add_adapter(suite &operations)
{
    using application = typename Adapter::sent;
    const corpus &content = operations.content();
    auto sent = std::make_shared<std::vector<application>>(records_to_send<application>(content));
    auto buffer = std::make_shared<std::vector<uint8_t>>(content.longest_wire() + 64 * 1024);
    operations.add_encode("encode_adapter", "ours", [sent, buffer](size_t i) {
        const auto capacity = static_cast<uint32_t>(buffer->size());
        return byte_view(buffer->data(), Adapter::encode(&(*sent)[i], buffer->data(), capacity));
    });
    auto received = std::make_shared<application>();
    operations.add_decode_adapter("ours", [&content, received](size_t i) -> const application & {
        const std::vector<uint8_t> &wire = content.wires[i];
        Adapter::decode(wire.data(), static_cast<uint32_t>(wire.size()), received.get());
        return *received;
    });
}

} // namespace bench

#endif
