// The 40 messages as data: what the compiler knows from the library's field lists, for programs that are told at run
// time which message they have before them. Nothing of it is typed a second time; see message_table.cpp.
#pragma once

#include "inspect/uniform_calls.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace mava_tum_inspect
{

enum class field_kind : uint8_t { varint, fixed32, bytes, text, record, record_array, text_array };

// How a value that is an address is to be shown; see address_hints.h.
enum class address_kind : uint8_t { none, ipv4, ipv6 };

struct message_description;

struct field_description {
    uint32_t number; // field n owns bit n-1 of the presence mask
    const char *name;
    field_kind kind;
    uint32_t value_bits; // varint: 32 or 64, fixed32: 32, else 0
    address_kind address;
    std::size_t member_offset;         // in the record: uint32_t, uint64_t, mava_tum_bytes, char *, a record, a pointer
    std::size_t count_offset;          // record_array, text_array: of the uint32_t count; else 0
    const message_description *nested; // record, record_array; else null
};

struct message_description {
    const char *name; // as in mava_tum_<name>
    std::size_t record_bytes;
    std::size_t mask_offset;
    std::size_t mask_bytes;                    // 1, 2 or 4
    bool holds_bytes;                          // at any depth: the alias bit means something
    bool allocates;                            // at any depth: a decode may call the allocator
    std::span<const field_description> fields; // field n is fields[n - 1]
    message_calls calls;
};

// In the order of codec_contract.h.
std::span<const message_description> all_messages();

// Null: there is none. `name` is without mava_tum_.
const message_description *find_message(std::string_view name);

// Null: the message has no such field.
const field_description *find_field(const message_description &message, uint32_t number);
const field_description *find_field(const message_description &message, std::string_view name);

// "varint", "fixed32", "bytes", "text", "record", "array of records", "array of texts".
const char *kind_name(field_kind kind);

// The wire type of the kind: 0, 2 or 5.
uint32_t wire_type_number(field_kind kind);

} // namespace mava_tum_inspect
