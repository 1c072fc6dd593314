// What the model knows of the application records: one plain table per record, typed by hand from their description, in
// the order of their members. Offsets follow from the widths and natural alignment. Nothing comes from a header.
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
    gap      // nobody's
};

// The numbers of the fields that lead from the message to the value, through nested messages; 0 behind the last.
struct field_path {
    uint8_t numbers[3];
};

struct application_layout;

struct slot {
    slot_kind kind;
    uint32_t bytes = 0; // a list of texts: of one text
    field_path path = {};
    uint32_t slots = 0;                          // count and list
    uint32_t count_bytes = 0;                    // list
    const application_layout *element = nullptr; // part, and list; null: a list of texts
    uint32_t text_limit = 0;                     // text: bytes of it that are used, NUL included; 0: all
    uint8_t presence_of = 0;                     // arrives with this field of the same message; 0: with its own
};

struct application_layout {
    std::span<const slot> slots;
};

struct layout_extent {
    uint32_t bytes;
    uint32_t alignment;
};

layout_extent extent_of(const application_layout &layout);
layout_extent extent_of(const slot &member);

// The received record of an adapter, by the adapter's name. Null: no such adapter.
const application_layout *received_layout(const char *adapter_name);

} // namespace mava_tum_model
