#include "model/application_receive.h"

#include "model/application_path.h"
#include "model/raw_memory.h"

#include <algorithm>

namespace mava_tum_model
{

namespace
{

// The address of a value in an existing codec record.
struct received_value {
    const message *of;
    const uint8_t *record;
    const field *leaf;
};

received_value value_at(const message &of, const uint8_t *record, const slot &member)
{
    const path_end end = walk(of, member.path);
    return {end.of, record + end.record_offset, end.leaf};
}

bool arrives(const received_value &end, const slot &member)
{
    const field &decides = member.presence_of == 0 ? *end.leaf : field_numbered(*end.of, member.presence_of);
    return is_present(*end.of, end.record, decides);
}

void receive_number(const received_value &end, const slot &member, uint8_t *at)
{
    const bool wide = end.leaf->kind == field_kind::varint64;
    const uint64_t value =
        wide ? load<uint64_t>(end.record, end.leaf->offset) : load<uint32_t>(end.record, end.leaf->offset);
    store_number(at, value, member.bytes);
}

void receive_address(const received_value &end, uint8_t *at)
{
    for (uint32_t index = 0; index < 4; ++index)
        at[index] = end.record[end.leaf->offset + 3 - index];
}

void receive_text(const uint8_t *text, uint32_t limit, uint8_t *at)
{
    uint32_t index = 0;
    for (; index + 1 < limit && text[index] != 0; ++index)
        at[index] = text[index];
    at[index] = 0;
}

void receive_bytes(const received_value &end, const slot &member, uint8_t *at)
{
    const uint64_t length = std::min<uint64_t>(load_bytes_length(end.record, *end.leaf), member.bytes);
    const uint8_t *content = load_pointer(end.record, end.leaf->offset);
    for (uint64_t index = 0; index < length; ++index)
        at[index] = content[index];
}

// First reduced to the count's width, then to the slots.
uint32_t elements_received(const received_value &end, uint32_t count_bytes, uint32_t slots)
{
    uint64_t count = load<uint32_t>(end.record, end.leaf->count_offset);
    count %= uint64_t{1} << (8 * count_bytes);
    return static_cast<uint32_t>(std::min<uint64_t>(count, slots));
}

void receive_list(const received_value &end, const slot &member, uint8_t *at);
void receive_members(const message &of, const uint8_t *record, const application_layout &layout, uint8_t *application);

void receive_slot(const message &of, const uint8_t *record, const slot &member, uint8_t *at)
{
    if (member.kind == slot_kind::gap || member.kind == slot_kind::mark)
        return;
    const received_value end = value_at(of, record, member);
    if (member.kind == slot_kind::part) {
        receive_members(*end.leaf->nested, end.record + end.leaf->offset, *member.element, at);
        return;
    }
    if (!arrives(end, member))
        return;
    switch (member.kind) {
    case slot_kind::number:
        receive_number(end, member, at);
        break;
    case slot_kind::address:
        receive_address(end, at);
        break;
    case slot_kind::text:
        receive_text(
            load_pointer(end.record, end.leaf->offset), member.text_limit == 0 ? member.bytes : member.text_limit, at);
        break;
    case slot_kind::bytes:
        receive_bytes(end, member, at);
        break;
    case slot_kind::count:
        store_number(at, elements_received(end, member.bytes, member.slots), member.bytes);
        break;
    default:
        receive_list(end, member, at);
    }
}

// The record is zero: absent values are not written.
void receive_members(const message &of, const uint8_t *record, const application_layout &layout, uint8_t *application)
{
    for_each_slot(layout, [&](const slot &member, uint32_t offset) {
        receive_slot(of, record, member, application + offset);
        return true;
    });
}

void receive_list(const received_value &end, const slot &member, uint8_t *at)
{
    const uint32_t count = elements_received(end, member.count_bytes, member.slots);
    const uint32_t stride = extent_of(member).bytes / member.slots;
    const uint8_t *element = load_pointer(end.record, end.leaf->offset);
    for (uint32_t index = 0; index < count; ++index) {
        if (member.element == nullptr)
            receive_text(load_pointer(element, 0), member.bytes, at);
        else
            receive_members(*end.leaf->nested, element, *member.element, at);
        element += element_bytes(*end.leaf);
        at += stride;
    }
}

std::string dotted(const field_path &path)
{
    std::string text;
    for (const uint8_t number : path.numbers) {
        if (number != 0)
            text += (text.empty() ? "" : ".") + std::to_string(number);
    }
    return text;
}

std::string inside_slot(const slot &member, uint32_t offset)
{
    const std::string name = dotted(member.path);
    if (member.kind == slot_kind::part)
        return name + "." + member_at(*member.element, offset);
    if (member.kind != slot_kind::list)
        return name + (member.kind == slot_kind::count ? " count" : "") + " byte " + std::to_string(offset);
    const uint32_t stride = extent_of(member).bytes / member.slots;
    const std::string element = name + "[" + std::to_string(offset / stride) + "]";
    return member.element == nullptr ? element : element + "." + member_at(*member.element, offset % stride);
}

} // namespace

void model_receive(
    const message &of, const uint8_t *codec_record, const application_layout &layout, uint8_t *application_record)
{
    std::memset(application_record, 0, layout.extent.bytes);
    receive_members(of, codec_record, layout, application_record);
}

std::string member_at(const application_layout &layout, uint32_t offset)
{
    std::string found = "padding";
    for_each_slot(layout, [&](const slot &member, uint32_t start) {
        if (offset >= start && offset < start + extent_of(member).bytes)
            found = member.kind == slot_kind::gap ? "unused bytes" : inside_slot(member, offset - start);
        return true;
    });
    return found;
}

} // namespace mava_tum_model
