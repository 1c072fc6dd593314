#include "injection/inject_adapter.h"

#include "calloc_log.h"
#include "check_adapter.h"
#include "model/application_receive.h"
#include "model/model.h"

#include <algorithm>
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

constexpr uint8_t not_written = 0xDD;

// Beforehand no byte of the record is zero.
std::vector<uint8_t> receive(const adapter &tested, std::span<const uint8_t> wire, block_log &blocks)
{
    std::vector<uint8_t> record(tested.received->size_bytes, not_written);
    const calloc_log live(blocks);
    tested.decode(wire.data(), static_cast<uint32_t>(wire.size()), record.data());
    return record;
}

// The application record that the model makes of `wire` when memory runs out as `blocks` says.
std::vector<uint8_t> predict(
    const message &of, const application_layout &layout, std::span<const uint8_t> wire, block_log &blocks)
{
    alignas(8) uint8_t codec_record[largest_codec_record] = {};
    model_decode(of, codec_record, wire.data(), wire.size(), blocks.source(), alias_flag);
    std::vector<uint8_t> record(layout.extent.bytes);
    model_receive(of, codec_record, layout, record.data());
    return record;
}

std::string compare_blocks(const block_log &asked, const block_log &predicted)
{
    if (asked.released_wrongly())
        return "a block was freed twice";
    if (asked.outstanding() != 0)
        return std::to_string(asked.outstanding()) + " blocks were never freed";
    return block_log::compare_allocations(asked, predicted);
}

std::string compare_members(
    const application_layout &layout, const std::vector<uint8_t> &expected, const std::vector<uint8_t> &actual)
{
    if (expected.size() != actual.size())
        return "the record has " + std::to_string(actual.size()) + " bytes, expected " +
               std::to_string(expected.size());
    const auto [wanted, found] = std::mismatch(expected.begin(), expected.end(), actual.begin());
    if (wanted == expected.end())
        return "";
    return member_at(layout, static_cast<uint32_t>(wanted - expected.begin())) + ": expected " +
           std::to_string(*wanted) + ", actual " + std::to_string(*found);
}

} // namespace

std::string inject_adapter(std::size_t adapter_index, std::span<const uint8_t> wire, const injection &failing_call)
{
    const adapter &tested = adapter_at(adapter_index);
    const application_layout &layout = *received_layout(tested.name);
    block_log predicted(failing_call.model);
    const std::vector<uint8_t> expected = predict(message_of_adapter(adapter_index), layout, wire, predicted);
    block_log asked(failing_call.library);
    const std::vector<uint8_t> actual = receive(tested, wire, asked);
    std::string found = compare_blocks(asked, predicted);
    if (found.empty())
        found = compare_members(layout, expected, actual);
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
