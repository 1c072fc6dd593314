// The messages and adapters as data, for programs that select one at run time: the catalogue, with the functions for
// its use here.
#pragma once

#include "catalogue.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace mava_tum_inspect
{

using mava_tum_catalogue::address_kind;
using mava_tum_catalogue::all_adapters;
using mava_tum_catalogue::all_messages;
using mava_tum_catalogue::field_kind;
using mava_tum_catalogue::find_message;
using mava_tum_catalogue::limit_kind;
using mava_tum_catalogue::member_limit;
using adapter_description = mava_tum_catalogue::adapter;
using field_description = mava_tum_catalogue::field;
using message_description = mava_tum_catalogue::message;

// Null if the message has no such field.
inline const field_description *find_field(const message_description &message, uint32_t number)
{
    return number != 0 && number <= message.fields.size() ? &message.fields[number - 1] : nullptr;
}

const field_description *find_field(const message_description &message, std::string_view name);

// By the adapter's name, or by the message's name if only one adapter carries it. Null if there is none.
const adapter_description *find_adapter(std::string_view name);

// Null if no member receives the field.
const member_limit *find_limit(std::span<const member_limit> members, uint32_t number);

// "varint", "fixed32", "bytes", "text", "record", "array of records", "array of texts".
const char *kind_name(field_kind kind);

// The wire type of the kind: 0, 2 or 5.
uint32_t wire_type_number(field_kind kind);

inline bool is_length_delimited(field_kind kind)
{
    return kind != field_kind::varint && kind != field_kind::fixed32;
}

} // namespace mava_tum_inspect
