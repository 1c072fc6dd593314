#include "app/called_adapters.h"

#include <algorithm>
#include <cstddef>
#include <memory>

namespace mava_tum_cli
{

using mava_tum_inspect::adapter_description;

namespace
{

constexpr const char *feature_mask = "feature_mask";
constexpr unsigned feature_bits = 32;

// Aligned for any record.
std::unique_ptr<std::byte[]> block_for(const record_layout &layout)
{
    return std::make_unique<std::byte[]>(layout.size_bytes);
}

bool is_zero(const json &value)
{
    if (value.is_structured())
        return std::ranges::all_of(value, is_zero);
    if (value.is_string())
        return value.get_ref<const std::string &>().find_first_not_of("0.:") == std::string::npos;
    return value == 0;
}

bool has_value(const json &record, const std::string &name)
{
    const auto member = record.find(name);
    return member != record.end() && !is_zero(*member);
}

// The bits of the mask that are not set, one after the other, until all have been found that help.
void find_feature_bits(const adapter_description &adapter, json document, std::vector<unsent_member> &unsent)
{
    const uint64_t mask = document.value(feature_mask, uint64_t{0});
    for (unsigned bit = 0; bit < feature_bits; ++bit) {
        document[feature_mask] = mask | uint64_t{1} << bit;
        const json arrived = decode_record(adapter, encode_record(adapter, document));
        for (unsent_member &member : unsent)
            if (!member.feature_bit && has_value(arrived, member.name))
                member.feature_bit = bit;
    }
}

bool has_feature_mask(const adapter_description &adapter)
{
    return std::ranges::any_of(
        adapter.sent->members, [](const record_member &member) { return member.name == feature_mask; });
}

} // namespace

byte_vector encode_record(const adapter_description &adapter, const json &document)
{
    const auto record = block_for(*adapter.sent);
    record_of_json(*adapter.sent, document, "", record.get());
    byte_vector wire(adapter.encode(record.get(), nullptr, 0));
    adapter.encode(record.get(), wire.data(), static_cast<uint32_t>(wire.size()));
    return wire;
}

json decode_record(const adapter_description &adapter, std::span<const uint8_t> wire)
{
    const auto record = block_for(*adapter.received);
    adapter.decode(wire.data(), static_cast<uint32_t>(wire.size()), record.get());
    return json_of_record(*adapter.received, record.get());
}

std::vector<unsent_member> unsent_members(
    const adapter_description &adapter, const json &document, std::span<const uint8_t> wire)
{
    const json arrived = decode_record(adapter, wire);
    std::vector<unsent_member> unsent;
    for (const auto &[name, value] : document.items())
        if (!is_zero(value) && !has_value(arrived, name))
            unsent.push_back({name, std::nullopt});
    if (!unsent.empty() && has_feature_mask(adapter))
        find_feature_bits(adapter, document, unsent);
    return unsent;
}

} // namespace mava_tum_cli
