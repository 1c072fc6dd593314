#include "amplification/step_inputs.h"

#include "support/wire_builder.h"

namespace mava_tum_amplification
{

namespace
{

using namespace mava_tum_model;
using mava_tum_test::wire_builder;

bool may_occur_again(const field &of)
{
    return of.kind != field_kind::text && of.kind != field_kind::bytes && of.kind != field_kind::record_array &&
           of.kind != field_kind::text_array;
}

std::vector<uint8_t> shortest(const field &of)
{
    switch (of.kind) {
    case field_kind::varint32:
    case field_kind::varint64:
        return wire_builder().varint(of.number, 0);
    case field_kind::fixed32:
        return wire_builder().fixed32(of.number, 0);
    default:
        return wire_builder().length_delimited(of.number, {});
    }
}

// The same with one byte more in its tag.
std::vector<uint8_t> with_longer_tag(const field &of)
{
    std::vector<uint8_t> bytes = shortest(of);
    const std::ptrdiff_t last_of_tag = of.number < 16 ? 0 : 1;
    bytes[static_cast<std::size_t>(last_of_tag)] |= 0x80;
    bytes.insert(bytes.begin() + last_of_tag + 1, 0);
    return bytes;
}

std::vector<uint8_t> backwards(const message &of)
{
    wire_builder wire;
    for (std::size_t i = of.fields.size(); i-- > 0;) {
        if (may_occur_again(of.fields[i]))
            wire.raw(shortest(of.fields[i]));
    }
    return wire;
}

} // namespace

std::vector<repeated_bytes> inputs_full_of_steps(const message &of)
{
    std::vector<repeated_bytes> inputs = {{"endless tag", {0x80}}, {"unknown varints", {0x00, 0x00}},
        {"unknown blocks", {0x02, 0x00}}, {"unknown fixed32", {0x05, 0, 0, 0, 0}}};
    for (const field &member : of.fields) {
        const std::string name = member_name(member);
        inputs.push_back({name, shortest(member)});
        if (may_occur_again(member))
            inputs.push_back({name + " with a longer tag", with_longer_tag(member)});
    }
    const std::vector<uint8_t> all = backwards(of);
    if (!all.empty())
        inputs.push_back({"all fields backwards", all});
    return inputs;
}

std::vector<uint8_t> repeat(const std::vector<uint8_t> &bytes, std::size_t length)
{
    std::vector<uint8_t> wire;
    while (wire.size() + bytes.size() <= length)
        wire.insert(wire.end(), bytes.begin(), bytes.end());
    return wire;
}

} // namespace mava_tum_amplification
