#include "model/wire_maker.h"

#include "model/model_wire.h"

#include <algorithm>
#include <utility>

namespace mava_tum_model
{

namespace
{

// ---- parts ----

void append_varint(wire_bytes &wire, uint64_t value, uint32_t extra_bytes = 0)
{
    while (value >= 0x80 || extra_bytes > 0) {
        if (value < 0x80)
            extra_bytes -= 1;
        wire.push_back(static_cast<uint8_t>((value & 0x7F) | 0x80));
        value >>= 7;
    }
    wire.push_back(static_cast<uint8_t>(value));
}

void append(wire_bytes &wire, const wire_bytes &more)
{
    wire.insert(wire.end(), more.begin(), more.end());
}

void append_delimited(wire_bytes &wire, uint32_t number, const wire_bytes &content)
{
    append_varint(wire, number * 8 + delimited_type);
    append_varint(wire, content.size());
    append(wire, content);
}

wire_bytes sample_text(const field &member)
{
    wire_bytes text;
    for (uint32_t index = 0; index < 3 + member.number % 5; ++index)
        text.push_back(static_cast<uint8_t>('a' + (member.number + index) % 26));
    return text;
}

void append_full_field(wire_bytes &wire, const field &member, uint32_t list_length)
{
    switch (member.kind) {
    case field_kind::varint32:
        append_varint(wire, member.number * 8 + varint_type);
        append_varint(wire, member.number * 0x123u);
        break;
    case field_kind::varint64:
        append_varint(wire, member.number * 8 + varint_type);
        append_varint(wire, member.number * 0x123456789ABCu);
        break;
    case field_kind::fixed32:
        append_varint(wire, member.number * 8 + fixed32_type);
        for (uint32_t index = 0; index < 4; ++index)
            wire.push_back(static_cast<uint8_t>(member.number + index));
        break;
    case field_kind::bytes:
    case field_kind::text:
        append_delimited(wire, member.number, sample_text(member));
        break;
    case field_kind::record:
        append_delimited(wire, member.number, full_wire(*member.nested, list_length));
        break;
    case field_kind::record_array:
    case field_kind::text_array:
        for (uint32_t index = 0; index < list_length; ++index) {
            append_delimited(wire, member.number,
                member.kind == field_kind::text_array ? sample_text(member) : full_wire(*member.nested, list_length));
        }
        break;
    }
}

wire_bytes random_content(random_source &random)
{
    wire_bytes content(random.one_in(4) ? random.below(70) : random.below(6));
    for (uint8_t &byte : content)
        byte = static_cast<uint8_t>(random.one_in(12) ? 0 : random.next());
    return content;
}

void append_random_field(wire_bytes &wire, const field &member, random_source &random)
{
    switch (member.kind) {
    case field_kind::varint32:
    case field_kind::varint64:
        append_varint(wire, member.number * 8 + varint_type);
        append_varint(wire, random.boundary_value());
        break;
    case field_kind::fixed32:
        append_varint(wire, member.number * 8 + fixed32_type);
        for (uint32_t index = 0; index < 4; ++index)
            wire.push_back(static_cast<uint8_t>(random.next()));
        break;
    case field_kind::bytes:
    case field_kind::text:
        append_delimited(wire, member.number, random_content(random));
        break;
    case field_kind::record:
        append_delimited(wire, member.number, random_wire(*member.nested, random));
        break;
    case field_kind::record_array:
    case field_kind::text_array:
        for (uint64_t index = random.below(4); index < 4; ++index) {
            append_delimited(wire, member.number,
                member.kind == field_kind::text_array ? random_content(random) : random_wire(*member.nested, random));
        }
        break;
    }
}

// ---- fields of existing bytes ----

struct slice {
    wire_bytes bytes; // tag and value
    uint32_t tag = 0;
    std::size_t tag_bytes = 0;
    std::size_t value_at = 0; // delimited: where the content starts
};

// As far as it can be split; the last slice has the rest.
std::vector<slice> slices_of(const wire_bytes &wire)
{
    std::vector<slice> slices;
    cursor at = {wire.data(), wire.size(), 0};
    while (at.position < at.length) {
        slice next;
        const uint64_t start = at.position;
        bool whole = at.read32(next.tag);
        next.tag_bytes = at.position - start;
        cursor value = at;
        uint32_t length = 0;
        if (whole && (next.tag & 7) == delimited_type && value.read32(length))
            next.value_at = value.position - start;
        whole = whole && at.skip(next.tag & 7) == ok && at.position <= at.length;
        const uint64_t end = whole ? at.position : at.length;
        at.position = end;
        next.bytes.assign(
            wire.begin() + static_cast<std::ptrdiff_t>(start), wire.begin() + static_cast<std::ptrdiff_t>(end));
        slices.push_back(std::move(next));
    }
    return slices;
}

wire_bytes content_of(const slice &from)
{
    return wire_bytes(from.bytes.begin() + static_cast<std::ptrdiff_t>(from.value_at), from.bytes.end());
}

wire_bytes joined(const std::vector<slice> &slices)
{
    wire_bytes wire;
    for (const slice &part : slices)
        append(wire, part.bytes);
    return wire;
}

// ---- changes of one field ----

void replace_tag(slice &changed, uint32_t tag, uint32_t extra_bytes)
{
    wire_bytes bytes;
    append_varint(bytes, tag, extra_bytes);
    bytes.insert(
        bytes.end(), changed.bytes.begin() + static_cast<std::ptrdiff_t>(changed.tag_bytes), changed.bytes.end());
    changed.bytes = std::move(bytes);
}

void replace_length(slice &changed, uint64_t length, uint32_t extra_bytes)
{
    wire_bytes bytes;
    append_varint(bytes, changed.tag);
    append_varint(bytes, length, extra_bytes);
    append(bytes, content_of(changed));
    changed.bytes = std::move(bytes);
}

uint32_t some_extra_bytes(random_source &random)
{
    return static_cast<uint32_t>(random.one_in(3) ? random.below(12) : random.below(4));
}

void lie_about_length(slice &changed, random_source &random)
{
    const uint64_t length = content_of(changed).size();
    const uint64_t lies[] = {length + 1, length - 1, 0, random.boundary_value() & 0xFFFFFFFF, 0xFFFFFFFF, length + 2};
    replace_length(changed, lies[random.below(std::size(lies))], random.one_in(4) ? some_extra_bytes(random) : 0);
}

void lengthen_value(slice &changed, random_source &random)
{
    if (changed.value_at != 0) {
        replace_length(changed, content_of(changed).size(), some_extra_bytes(random));
    } else if ((changed.tag & 7) == varint_type) {
        changed.bytes.back() |= 0x80;
        for (uint32_t extra = some_extra_bytes(random); extra > 0; --extra)
            changed.bytes.push_back(static_cast<uint8_t>(0x80 | random.next()));
        changed.bytes.push_back(static_cast<uint8_t>(random.next() & 0x7F));
    }
}

void change_byte(slice &changed, random_source &random)
{
    uint8_t &byte = changed.bytes[random.below(changed.bytes.size())];
    byte = static_cast<uint8_t>(random.one_in(2) ? random.next() : byte ^ (1u << random.below(8)));
}

const field *field_of(const message &of, const slice &part)
{
    const auto found = std::find_if(
        of.fields.begin(), of.fields.end(), [&part](const field &member) { return member.number == part.tag >> 3; });
    return found == of.fields.end() ? nullptr : &*found;
}

// Applies `change` to the wire of a nested message.
template <class Change>
bool change_inside(const message &of, slice &changed, const Change &change)
{
    const field *member = field_of(of, changed);
    if (member == nullptr || member->nested == nullptr || changed.value_at == 0)
        return false;
    wire_bytes inside = content_of(changed);
    change(*member->nested, inside);
    changed.bytes.resize(changed.value_at);
    append(changed.bytes, inside);
    replace_length(changed, inside.size(), 0);
    return true;
}

bool mutate_inside(const message &of, slice &changed, random_source &random)
{
    return change_inside(
        of, changed, [&random](const message &nested, wire_bytes &inside) { mutate_wire(nested, inside, random); });
}

// May leave `value_at` wrong, because every change starts from new slices.
void mutate_slice(const message &of, slice &changed, random_source &random)
{
    if (random.one_in(2) && mutate_inside(of, changed, random))
        return;
    switch (random.below(5)) {
    case 0:
        replace_tag(changed, changed.tag, some_extra_bytes(random));
        break;
    case 1:
        replace_tag(changed, (changed.tag & ~7u) | static_cast<uint32_t>(random.below(8)), 0);
        break;
    case 2:
        if (changed.value_at != 0)
            lie_about_length(changed, random);
        else
            change_byte(changed, random);
        break;
    case 3:
        lengthen_value(changed, random);
        break;
    default:
        change_byte(changed, random);
    }
}

// ---- changes of the order and the number of fields ----

slice new_slice(const message &of, random_source &random)
{
    slice added;
    if (random.one_in(3)) {
        append_varint(added.bytes, random.one_in(2) ? random.below(400) : random.boundary_value());
        append(added.bytes, random_content(random));
    } else {
        append_random_field(added.bytes, of.fields[random.below(of.fields.size())], random);
    }
    return added;
}

void rearrange(const message &of, std::vector<slice> &slices, random_source &random)
{
    const auto at = [&slices, &random](std::size_t extra) {
        return slices.begin() + static_cast<std::ptrdiff_t>(random.below(slices.size() + extra));
    };
    if (slices.empty() || random.one_in(3)) {
        slices.insert(at(1), new_slice(of, random));
        return;
    }
    switch (random.below(4)) {
    case 0: {
        const slice copy = *at(0);
        slices.insert(at(1), copy);
        break;
    }
    case 1: {
        const auto repeated = at(0);
        const slice copy = *repeated;
        slices.insert(repeated, copy);
        break;
    }
    case 2:
        std::iter_swap(at(0), at(0));
        break;
    default:
        slices.erase(at(0));
    }
}

// ---- changes of the size ----

bool lengthen_inside(const message &of, slice &changed, std::size_t more_bytes, random_source &random)
{
    return change_inside(of, changed,
        [&](const message &nested, wire_bytes &inside) { lengthen_wire(nested, inside, more_bytes, random); });
}

void lengthen_slice(const message &of, slice &changed, std::size_t more_bytes, random_source &random)
{
    if (random.one_in(2) && lengthen_inside(of, changed, more_bytes, random))
        return;
    if (changed.value_at != 0 && random.one_in(4)) {
        changed.bytes.resize(changed.bytes.size() + more_bytes, 'x');
        replace_length(changed, content_of(changed).size(), 0);
        return;
    }
    const wire_bytes once = changed.bytes;
    for (std::size_t added = 0; added < more_bytes; added += once.size())
        append(changed.bytes, once);
}

} // namespace

wire_bytes full_wire(const message &of, uint32_t list_length)
{
    wire_bytes wire;
    for (const field &member : of.fields)
        append_full_field(wire, member, list_length);
    return wire;
}

wire_bytes random_wire(const message &of, random_source &random)
{
    wire_bytes wire;
    const uint64_t sparseness = 1 + random.below(6);
    for (const field &member : of.fields) {
        if (random.one_in(sparseness))
            append_random_field(wire, member, random);
    }
    return wire;
}

std::vector<wire_bytes> seed_wires(const message &of)
{
    std::vector<wire_bytes> seeds = {{}, full_wire(of, 1), full_wire(of, 2)};
    for (const field &member : of.fields) {
        wire_bytes alone;
        append_full_field(alone, member, 2);
        seeds.push_back(alone);
        wire_bytes empty;
        append_varint(empty, member.number * 8 + delimited_type);
        empty.push_back(0);
        seeds.push_back(empty);
    }
    return seeds;
}

void mutate_wire(const message &of, wire_bytes &wire, random_source &random)
{
    if (!wire.empty() && random.one_in(16)) {
        wire.resize(random.below(wire.size()));
        return;
    }
    std::vector<slice> slices = slices_of(wire);
    if (slices.empty() || random.one_in(2))
        rearrange(of, slices, random);
    else
        mutate_slice(of, slices[random.below(slices.size())], random);
    wire = joined(slices);
}

void lengthen_wire(const message &of, wire_bytes &wire, std::size_t more_bytes, random_source &random)
{
    std::vector<slice> slices = slices_of(wire);
    if (slices.empty())
        slices.push_back(new_slice(of, random));
    lengthen_slice(of, slices[random.below(slices.size())], more_bytes, random);
    wire = joined(slices);
}

} // namespace mava_tum_model
