#include "amplification/worst_wire.h"

#include "amplification/asked_limit.h"
#include "support/wire_builder.h"

namespace mava_tum_amplification
{

namespace
{

using namespace mava_tum_model;
using mava_tum_test::wire_builder;

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

} // namespace mava_tum_amplification
