#include "amplification/measured_decode.h"

#include "model/block_log.h"
#include "model/library_calls.h"

namespace mava_tum_amplification
{

namespace
{

using namespace mava_tum_model;

constexpr std::size_t largest_codec_record = 656;

template <std::size_t size>
struct record_memory {
    alignas(8) uint8_t bytes[size] = {};
};

memory_use use_seen_by(const block_log &log)
{
    return {log.asked_bytes(), log.calls(), log.outstanding_bytes()};
}

} // namespace

memory_use measure_decoder(std::size_t message_index, std::span<const uint8_t> wire)
{
    static record_memory<largest_codec_record> record;
    const library_message &library = library_message_at(message_index);
    block_log log;
    library.decode(record.bytes, wire.data(), wire.size(), block_log::allocate, &log, 0);
    if (log.made_any_call())
        library.free(record.bytes, block_log::release, &log, 0);
    return use_seen_by(log);
}

} // namespace mava_tum_amplification
