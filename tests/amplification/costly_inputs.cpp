#include "amplification/costly_inputs.h"

#include "amplification/asked_limit.h"
#include "support/wire_builder.h"

namespace mava_tum_amplification
{

namespace
{

using namespace mava_tum_model;
using mava_tum_test::wire_builder;

// ---- in memory ----

// Tag and length of a field of at most `length` bytes.
std::size_t head_bytes(const field &of, std::size_t length)
{
    return wire_builder().length_delimited(of.number, {}).bare_varint(length).bytes().size() - 1;
}

std::size_t room_in(const field &of, std::size_t length)
{
    const std::size_t head = head_bytes(of, length);
    return length < head ? 0 : length - head;
}

// The first field with the highest limit. A text before a bytes field: it also requests a NUL.
template <class Limit>
const field *dearest_field(const message &of, Limit limit)
{
    const field *dearest = nullptr;
    for (const field &member : of.fields) {
        const memory_ratio ratio = limit(member);
        const bool is_text_for_bytes = dearest != nullptr && dearest->kind == field_kind::bytes &&
                                       member.kind == field_kind::text && !(ratio < limit(*dearest));
        if (ratio.memory != 0 && (dearest == nullptr || limit(*dearest) < ratio || is_text_for_bytes))
            dearest = &member;
    }
    return dearest;
}

wire_bytes empty_elements(const field &of, std::size_t length)
{
    wire_builder wire;
    const std::size_t element_bytes = head_bytes(of, 0);
    for (std::size_t bytes = element_bytes; bytes <= length; bytes += element_bytes)
        wire.length_delimited(of.number, {});
    return wire;
}

bool is_array(const field &of)
{
    return of.kind == field_kind::record_array || of.kind == field_kind::text_array;
}

// ---- in steps ----

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

wire_bytes worst_wire(const message &of, std::size_t length)
{
    const field *dearest = dearest_field(of, [](const field &member) { return asked_limit(member); });
    if (dearest == nullptr || length < head_bytes(*dearest, 0))
        return {};
    if (is_array(*dearest) && !(slot_ratio(*dearest) < asked_limit(*dearest)))
        return empty_elements(*dearest, length);
    const std::size_t room = room_in(*dearest, length);
    const wire_bytes content =
        dearest->nested != nullptr ? worst_wire(*dearest->nested, room) : wire_bytes(room, uint8_t{'x'});
    return wire_builder().length_delimited(dearest->number, content);
}

wire_bytes dropping_wire(const message &of, std::size_t length)
{
    const field *dearest = dearest_field(of, [](const field &member) { return dropped_limit(member); });
    if (dearest == nullptr || length < 2 * head_bytes(*dearest, 0))
        return {};
    if (is_array(*dearest))
        return wire_builder().length_delimited(
            dearest->number, dropping_wire(*dearest->nested, room_in(*dearest, length)));
    const std::size_t room = room_in(*dearest, length - head_bytes(*dearest, 0));
    return wire_builder()
        .length_delimited(dearest->number, worst_wire(*dearest->nested, room))
        .length_delimited(dearest->number, {});
}

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
