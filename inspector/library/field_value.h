// One field of a message as text and as JSON.
#pragma once

#include "inspector/library/wire_event.h"
#include "inspector/library/json_writer.h"

#include <cstdint>
#include <span>
#include <string>

namespace mava_tum_cli
{

using wire_bytes = std::span<const uint8_t>;

// The bytes of the value; `wire` is the whole message.
wire_bytes value_bytes(const mava_tum_inspect::occurrence &at, wire_bytes wire);

// A known field that is no record. A text is what the library makes of it: it ends at a zero byte.
void write_value(json_writer &writer, const mava_tum_inspect::occurrence &at, wire_bytes wire);

// For people: 7, "user@example.com", c0000201 = 192.0.2.1, 20010db8... = 2001:db8::1.
void write_value(text_output &output, const mava_tum_inspect::occurrence &at, wire_bytes wire);
std::string text_of_value(const mava_tum_inspect::occurrence &at, wire_bytes wire);

// Of any field: "varint", "array of records", and for an unknown one what its wire type says.
std::string_view kind_of(const mava_tum_inspect::occurrence &at);

// "/qos/3/field_2", "/session_data/#99" for a number that the record does not know.
std::string json_pointer_of(const mava_tum_inspect::path_step &step);

bool is_array_element(const mava_tum_inspect::path_step &step);

} // namespace mava_tum_cli
