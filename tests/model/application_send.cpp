#include "model/application_send.h"

#include "model/application_path.h"
#include "model/raw_memory.h"

namespace mava_tum_model
{

namespace
{

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
