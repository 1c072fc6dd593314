// The model's application records: one plain table per record, typed by hand from the description, in the order of the
// members. Offsets follow from widths and natural alignment. Nothing is read from a header.
#pragma once

#include "model/message_tables.h"

#include <cstdint>
#include <span>

namespace mava_tum_model
{

enum class slot_kind : uint8_t {
    number,  // an integer of `bytes` bytes
    address, // an IPv4 address: four bytes, the message has them the other way round
    text,    // a char array of `bytes` bytes
    bytes,   // a byte array
    count,   // how many elements of a list are used
    list,    // `slots` elements after one another
    part,    // another record inside this one
    mark,    // takes no room: a nested message that is sent even when it is empty
    gap      // neither sent nor received
};

// The field numbers of the path from the message to the value; 0 after the last.
struct field_path {
    uint8_t numbers[3];
};

struct application_layout;
class slot_view;

struct slot {
    slot_kind kind;
    uint32_t bytes = 0; // a list of texts: of one text
    field_path path = {};
    uint32_t slots = 0;                          // count and list
    uint32_t count_bytes = 0;                    // list
    const application_layout *element = nullptr; // part, and list; null: a list of texts
    uint32_t text_limit = 0;                     // text: bytes of it that are used, NUL included; 0: all
    uint8_t presence_of = 0;                     // arrives with this field of the same message; 0: with its own
    uint8_t sent_as = 0;                         // goes into this field of the same message; 0: into its own

    // Whether it is sent. Null: a text if it is not empty, a list if it has elements, all others always.
    bool (*when)(const slot_view &) = nullptr;
};

struct layout_extent {
    uint32_t bytes;
    uint32_t alignment;
};

struct application_layout {
    std::span<const slot> slots;
    layout_extent extent;
};

constexpr uint32_t rounded_up(uint32_t value, uint32_t alignment)
{
    return (value + alignment - 1) / alignment * alignment;
}

constexpr layout_extent extent_of(const slot &member)
{
    switch (member.kind) {
    case slot_kind::number:
    case slot_kind::address:
    case slot_kind::count:
        return {member.bytes, member.bytes};
    case slot_kind::part:
        return member.element->extent;
    case slot_kind::list:
        if (member.element == nullptr)
            return {member.bytes * member.slots, 1};
        return {member.element->extent.bytes * member.slots, member.element->extent.alignment};
    default:
        return {member.bytes, 1};
    }
}

constexpr application_layout layout_of(std::span<const slot> slots)
{
    layout_extent whole = {0, 1};
    for (const slot &member : slots) {
        const layout_extent own = extent_of(member);
        whole.bytes = rounded_up(whole.bytes, own.alignment) + own.bytes;
        whole.alignment = own.alignment > whole.alignment ? own.alignment : whole.alignment;
    }
    whole.bytes = rounded_up(whole.bytes, whole.alignment);
    return {slots, whole};
}

// A member of an existing record, and the values that its condition may use.
class slot_view
{
public:
    slot_view(const application_layout &layout, const uint8_t *record, const slot &own, uint32_t offset)
        : layout_(layout), record_(record), own_(own), offset_(offset)
    {
    }

    const uint8_t *content() const
    {
        return record_ + offset_;
    }

    bool filled() const; // any byte is not zero
    uint64_t number() const;
    uint64_t number_at(const field_path &path) const; // another member of the same record
    uint32_t elements() const;                        // of a list: its count, at most its slots

private:
    uint64_t number_in(slot_kind kind, const field_path &path) const;

    const application_layout &layout_;
    const uint8_t *record_;
    const slot &own_;
    uint32_t offset_;
};

// Calls `visit` with each member and its offset, until it returns false.
template <class visitor>
void for_each_slot(const application_layout &layout, visitor visit)
{
    uint32_t offset = 0;
    for (const slot &member : layout.slots) {
        const layout_extent extent = extent_of(member);
        offset = rounded_up(offset, extent.alignment);
        if (!visit(member, offset))
            return;
        offset += extent.bytes;
    }
}

// The records of an adapter, by its name. Null if there is no such adapter.
const application_layout *received_layout(const char *adapter_name);
const application_layout *sent_layout(const char *adapter_name);

} // namespace mava_tum_model
