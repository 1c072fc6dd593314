#include "model/application_transfer.h"

#include "model/raw_memory.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace mava_tum_model
{

namespace
{

// ---- from the path of a member to the field of the message ----

const field &field_numbered(const message &of, uint8_t number)
{
    for (const field &member : of.fields) {
        if (member.number == number)
            return member;
    }
    std::abort(); // a mistake in the tables
}

// The innermost message, the offset of its record in the outer one, and the field.
struct path_end {
    const message *of;
    uint32_t record_offset;
    const field *leaf;
};

path_end walk(const message &of, const field_path &path)
{
    path_end end = {&of, 0, &field_numbered(of, path.numbers[0])};
    for (std::size_t step = 1; step < std::size(path.numbers) && path.numbers[step] != 0; ++step) {
        end.record_offset += end.leaf->offset;
        end.of = end.leaf->nested;
        end.leaf = &field_numbered(*end.of, path.numbers[step]);
    }
    return end;
}

// ---- what a decode adapter leaves ----

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

// ---- what an encode adapter sends ----

bool is_sent(const slot_view &view, const slot &member)
{
    if (member.when != nullptr)
        return member.when(view);
    switch (member.kind) {
    case slot_kind::text:
        return *view.content() != 0;
    case slot_kind::list:
        return view.elements() != 0;
    default:
        return true;
    }
}

// The model never writes to its input.
uint8_t *borrowed(const uint8_t *content)
{
    return const_cast<uint8_t *>(content);
}

void send_number(const field &leaf, uint8_t *record, uint64_t value)
{
    if (leaf.kind == field_kind::varint64)
        store(record, leaf.offset, value);
    else
        store(record, leaf.offset, static_cast<uint32_t>(value));
}

void send_address(const field &leaf, uint8_t *record, const uint8_t *address)
{
    for (uint32_t index = 0; index < 4; ++index)
        record[leaf.offset + index] = address[3 - index];
}

void send_bytes(const field &leaf, uint8_t *record, const uint8_t *content, uint32_t bytes)
{
    store(record, leaf.offset, borrowed(content));
    store(record, leaf.offset + bytes_length_offset, uint64_t{bytes});
}

void send_list(const field &leaf, uint8_t *record, const slot_view &view, const slot &member, send_scratch &scratch)
{
    const uint32_t count = view.elements();
    const uint32_t stride = extent_of(member).bytes / member.slots;
    uint8_t *array = scratch.zeroed(std::size_t{count} * element_bytes(leaf));
    store(record, leaf.offset, array);
    store(record, leaf.count_offset, count);
    for (uint32_t index = 0; index < count; ++index) {
        const uint8_t *element = view.content() + index * stride;
        if (member.element == nullptr)
            store(array, index * element_bytes(leaf), borrowed(element));
        else
            model_send(*leaf.nested, array + index * element_bytes(leaf), *member.element, element, scratch);
    }
}

void send_content(const field &leaf, uint8_t *record, const slot_view &view, const slot &member, send_scratch &scratch)
{
    switch (member.kind) {
    case slot_kind::number:
        send_number(leaf, record, view.number());
        break;
    case slot_kind::address:
        send_address(leaf, record, view.content());
        break;
    case slot_kind::text:
        store(record, leaf.offset, borrowed(view.content()));
        break;
    case slot_kind::bytes:
        send_bytes(leaf, record, view.content(), member.bytes);
        break;
    case slot_kind::part:
        model_send(*leaf.nested, record + leaf.offset, *member.element, view.content(), scratch);
        break;
    case slot_kind::list:
        send_list(leaf, record, view, member, scratch);
        break;
    default: // a mark has a presence only
        break;
    }
}

void send_slot(
    const message &of, uint8_t *codec_record, const slot_view &view, const slot &member, send_scratch &scratch)
{
    if (member.kind == slot_kind::gap || member.kind == slot_kind::count || !is_sent(view, member))
        return;
    const path_end end = walk(of, member.path);
    const field &leaf = member.sent_as == 0 ? *end.leaf : field_numbered(*end.of, member.sent_as);
    uint8_t *record = codec_record + end.record_offset;
    send_content(leaf, record, view, member, scratch);
    set_present(*end.of, record, leaf, true);
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

uint8_t *send_scratch::zeroed(std::size_t bytes)
{
    blocks_.push_back(std::make_unique<uint64_t[]>(bytes / sizeof(uint64_t) + 1));
    return reinterpret_cast<uint8_t *>(blocks_.back().get());
}

void model_send(const message &of, uint8_t *codec_record, const application_layout &layout,
    const uint8_t *application_record, send_scratch &scratch)
{
    for_each_slot(layout, [&](const slot &member, uint32_t offset) {
        send_slot(of, codec_record, {layout, application_record, member, offset}, member, scratch);
        return true;
    });
}

} // namespace mava_tum_model
