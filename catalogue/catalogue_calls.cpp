// Calls the functions of every message, and of every adapter, with the same parameters.
#include "catalogue.h"
#include "mava_tum/cpp/codec_calls.hpp"

#include <array>

namespace mava_tum_catalogue
{

namespace
{

using mava_tum::cpp::call_codec;

template <class Record>
constexpr codec_calls calls_of_message()
{
    using row = message_row<Record>;
    return {[](void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx,
                uint32_t flags) {
                return call_codec(row::decode, static_cast<Record *>(record), data, length, alloc_fn, alloc_ctx, flags);
            },
        [](const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments, uint32_t *segment_count,
            uint32_t flags) {
            return call_codec(
                row::encode, static_cast<const Record *>(record), buffer, length, segments, segment_count, flags);
        },
        [](void *destination, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx) {
            return call_codec(row::duplicate, static_cast<Record *>(destination), static_cast<const Record *>(source),
                alloc_fn, alloc_ctx);
        },
        [](void *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags) {
            call_codec(row::release, static_cast<Record *>(record), release_fn, release_ctx, flags);
        }};
}

template <class Row>
constexpr adapter_calls calls_of_adapter()
{
    return {[](const void *record, uint8_t *buffer, uint32_t capacity) {
                return Row::encode(static_cast<const typename Row::sent *>(record), buffer, capacity);
            },
        [](const uint8_t *data, uint32_t length, void *record) {
            Row::decode(data, length, static_cast<typename Row::received *>(record));
        }};
}

template <class... Record>
constexpr std::array<codec_calls, sizeof...(Record)> calls_of_messages(type_list<Record...>)
{
    return {calls_of_message<Record>()...};
}

template <class... Row>
constexpr std::array<adapter_calls, sizeof...(Row)> calls_of_adapters(type_list<Row...>)
{
    return {calls_of_adapter<Row>()...};
}

// In the order of the tables.
constexpr auto message_calls = calls_of_messages(message_records());
constexpr auto all_adapter_calls = calls_of_adapters(adapter_rows());

} // namespace

const codec_calls &message::calls() const
{
    return message_calls[place];
}

const adapter_calls &adapter::calls() const
{
    return all_adapter_calls[place];
}

} // namespace mava_tum_catalogue
