#include "amplification/measured_decode.h"

#include "check_adapter.h"
#include "calloc_log.h"
#include "model/block_log.h"
#include "model/library_calls.h"

namespace mava_tum_amplification
{

namespace
{

using namespace mava_tum_model;

constexpr std::size_t largest_codec_record = 656;
constexpr std::size_t largest_application_record = 17620;

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

memory_use measure_adapter(std::size_t adapter_index, std::span<const uint8_t> wire)
{
    static record_memory<largest_application_record> record;
    block_log log;
    {
        const mava_tum_fuzz::calloc_log watch(log);
        mava_tum_fuzz::adapter_at(adapter_index).decode(wire.data(), static_cast<uint32_t>(wire.size()), record.bytes);
    }
    return use_seen_by(log);
}

} // namespace mava_tum_amplification
