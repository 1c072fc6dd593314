// Calls the codec's functions of any message. Some of them take an allocator or flags and some do not: an overload for
// each shape, all of them inlined to the plain call.
#ifndef MAVA_TUM_CPP_CODEC_CALLS_HPP
#define MAVA_TUM_CPP_CODEC_CALLS_HPP

#include "mava_tum/cpp/result.hpp"
#include "mava_tum/cpp/span.hpp"

namespace mava_tum::cpp
{

// What the layer knows of a message, by its codec record. Specialised beside each message:
//     view, editor           the classes that read and change a record that lies somewhere else
//     owns_memory            whether a record ever owns a block
//     decode, encode, duplicate   the codec's functions
template <class Record>
struct codec_of;

// What a decode or a duplicate asks for blocks.
struct block_source {
    mava_tum_alloc_fn allocator;
    void *context;
};

template <class Record>
std::int32_t call_decode(std::int32_t (*decode)(Record *, const std::uint8_t *, std::uint64_t), Record &record,
    bytes_view wire, block_source, std::uint32_t)
{
    return decode(&record, wire.data(), wire.size());
}

template <class Record>
std::int32_t call_decode(
    std::int32_t (*decode)(Record *, const std::uint8_t *, std::uint64_t, mava_tum_alloc_fn, void *), Record &record,
    bytes_view wire, block_source blocks, std::uint32_t)
{
    return decode(&record, wire.data(), wire.size(), blocks.allocator, blocks.context);
}

template <class Record>
std::int32_t call_decode(
    std::int32_t (*decode)(Record *, const std::uint8_t *, std::uint64_t, mava_tum_alloc_fn, void *, std::uint32_t),
    Record &record, bytes_view wire, block_source blocks, std::uint32_t flags)
{
    return decode(&record, wire.data(), wire.size(), blocks.allocator, blocks.context, flags);
}

template <class Record>
std::uint64_t call_encode(
    std::uint64_t (*encode)(const Record *, std::uint8_t *, std::uint64_t, mava_tum_segment *, std::uint32_t *),
    const Record &record, span<std::uint8_t> buffer)
{
    return encode(&record, buffer.data(), buffer.size(), nullptr, nullptr);
}

template <class Record>
std::uint64_t call_encode(std::uint64_t (*encode)(const Record *, std::uint8_t *, std::uint64_t, mava_tum_segment *,
                              std::uint32_t *, std::uint32_t),
    const Record &record, span<std::uint8_t> buffer)
{
    return encode(&record, buffer.data(), buffer.size(), nullptr, nullptr, 0);
}

template <class Record>
std::int32_t call_duplicate(
    std::int32_t (*duplicate)(Record *, const Record *), Record &destination, const Record &source, block_source)
{
    return duplicate(&destination, &source);
}

template <class Record>
std::int32_t call_duplicate(std::int32_t (*duplicate)(Record *, const Record *, mava_tum_alloc_fn, void *),
    Record &destination, const Record &source, block_source blocks)
{
    return duplicate(&destination, &source, blocks.allocator, blocks.context);
}

} // namespace mava_tum::cpp

#endif
