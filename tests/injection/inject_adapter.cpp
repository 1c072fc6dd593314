#include "injection/inject_adapter.h"

#include "adapters.h"
#include "calloc_log.h"
#include "check_adapter.h"
#include "model/model.h"

#include <vector>

namespace mava_tum_injection
{

namespace
{

using namespace mava_tum_model;
using mava_tum_fuzz::adapter;
using mava_tum_fuzz::adapter_at;
using mava_tum_fuzz::calloc_log;
using mava_tum_fuzz::message_of_adapter;

constexpr std::size_t largest_codec_record = 656;

// Beforehand every byte of the record is `fill`.
std::vector<uint8_t> receive(const adapter &tested, std::span<const uint8_t> wire, uint8_t fill, block_log &blocks)
{
    std::vector<uint8_t> record(tested.received_bytes, fill);
    const calloc_log live(blocks);
    tested.decode(wire.data(), static_cast<uint32_t>(wire.size()), record.data());
    return record;
}

// A message of the fields that the model keeps of `wire` when memory runs out as `blocks` says. What a nested record
// received before its own fault is in it: an encode writes such a record although its parent does not mark it, and an
// adapter delivers it (L16).
std::vector<uint8_t> what_is_kept(const message &of, std::span<const uint8_t> wire, block_log &blocks)
{
    alignas(8) uint8_t record[largest_codec_record] = {};
    model_decode(of, record, wire.data(), wire.size(), blocks.source(), alias_flag);
    std::vector<uint8_t> kept(model_encode(of, record, {}, 0));
    model_encode(of, record, {kept.data(), kept.data(), kept.size(), nullptr, nullptr}, 0);
    return kept;
}

std::string compare_blocks(const block_log &asked, const block_log &predicted)
{
    if (asked.released_wrongly())
        return "a block was freed twice";
    if (asked.outstanding() != 0)
        return std::to_string(asked.outstanding()) + " blocks were never freed";
    return block_log::compare_allocations(asked, predicted);
}

std::string compare_members(const std::vector<uint8_t> &expected, const std::vector<uint8_t> &actual)
{
    for (std::size_t offset = 0; offset < expected.size(); ++offset) {
        if (expected[offset] != actual[offset])
            return "byte " + std::to_string(offset) + " of the record: expected " + std::to_string(expected[offset]) +
                   ", actual " + std::to_string(actual[offset]);
    }
    return "";
}

} // namespace

std::string inject_adapter(std::size_t adapter_index, std::span<const uint8_t> wire, const injection &failing_call)
{
    const adapter &tested = adapter_at(adapter_index);
    block_log predicted(failing_call.model);
    const std::vector<uint8_t> kept = what_is_kept(message_of_adapter(adapter_index), wire, predicted);
    block_log undisturbed;
    const std::vector<uint8_t> expected = receive(tested, kept, 0x22, undisturbed);

    block_log asked(failing_call.library);
    const std::vector<uint8_t> actual = receive(tested, wire, 0xDD, asked);
    std::string found = compare_blocks(asked, predicted);
    if (found.empty())
        found = compare_members(expected, actual);
    return found.empty() ? found : std::string(tested.name) + " adapter: " + found;
}

void fail_adapter(std::size_t adapter_index, std::span<const uint8_t> wire, injection_tally &tally)
{
    alignas(8) uint8_t record[largest_codec_record] = {};
    call_counter counted;
    model_decode(message_of_adapter(adapter_index), record, wire.data(), wire.size(), counted.source(), alias_flag);
    fail_every_call(counted.calls(), tally,
        [&](const injection &failing_call) { return inject_adapter(adapter_index, wire, failing_call); });
}

} // namespace mava_tum_injection
