// The model's 40 messages: one plain table, typed by hand from the description. It shares nothing with the library: no
// header, no template, no generated list. Records are raw memory, members are offsets.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace mava_tum_model
{

enum class field_kind : uint8_t { varint32, varint64, fixed32, bytes, text, record, record_array, text_array };

struct message;

// Field number n owns bit n-1 of its message's mask.
struct field {
    uint32_t number = 0;
    field_kind kind = field_kind::varint32;
    uint32_t offset = 0;
    uint32_t count_offset = 0;       // arrays: of the uint32 count
    const message *nested = nullptr; // record and record_array
    const char *member = nullptr;    // null: field_<number>
};

struct message {
    const char *name;
    uint32_t record_bytes;
    uint32_t mask_offset;
    uint32_t mask_bytes;
    bool encode_takes_flags; // those that do not never gather
    std::span<const field> fields;
};

std::span<const message *const> all_messages();

const message *find_message(const std::string &name);

std::string member_name(const field &described);

} // namespace mava_tum_model
