// Where the fields of a message arrive in an application record, and how much of each fits there: as data.
#pragma once

#include "inspect/message_table.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace mava_tum_inspect
{

enum class limit_kind : uint8_t {
    number, // `allowed`: bits of the member
    text,   // characters that are taken, without the NUL
    bytes,  // bytes of the array
    record, // its fields arrive in `members`
    list,   // elements; of each, the fields arrive in `members`
    texts   // elements; of each, `text_characters` characters are taken
};

struct member_limit {
    uint32_t number; // of the field in its message
    limit_kind kind;
    uint64_t allowed;
    const char *member;       // its name; null for a record whose fields have members of their own
    std::size_t offset;       // of the member in its application record, or in the element of a list
    std::size_t member_bytes; // its size; of a list, of one element
    // Other than 0: it arrives only when this field of the same record is there too.
    uint32_t only_with;
    uint32_t count_bits;      // list, texts: of the member that counts the elements
    std::size_t count_offset; // and where it is
    uint64_t text_characters;
    std::span<const member_limit> members;
};

struct adapter_description {
    const char *name; // as in tum_nal_data_gpb_decode_tum_<name>
    const message_description *message;
    std::size_t record_bytes; // of the application record that is decoded into
    std::span<const member_limit> members;
    void (*decode)(const uint8_t *data, uint32_t length, void *record);
};

// In the order of the headers in include/tum_nal.
std::span<const adapter_description> all_adapters();

// By the adapter's name or, where one adapter alone carries it, the message's. Null: there is none.
const adapter_description *find_adapter(std::string_view name);

// Null: nothing takes the field.
const member_limit *find_limit(std::span<const member_limit> members, uint32_t number);

} // namespace mava_tum_inspect
