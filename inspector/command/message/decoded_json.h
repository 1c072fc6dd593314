// A message as the JSON of `decode --json`, written as it is decoded:
//
//     file, number, offset       where it comes from, if there can be several
//     packet, direction          of a capture, instead of the offset
//     message, bytes, result     its name, its size, and with what a decode answers it
//     fault                      where and why a decode ends, if it does
//     record                     the values of the fields that are present: what `encode` reads
//     fields                     if asked for: where each of them stands, and which are absent
#pragma once

#include "input/message_source.h"
#include "inspector/library/field_value.h"

#include <optional>

namespace mava_tum_cli
{

struct json_style {
    json_writer::layout layout = json_writer::layout::spread;
    bool has_fields = false;
    bool has_absent_fields = true; // among the fields
};

// Returns the fault in words; nothing: the message decodes.
std::optional<std::string> print_json(const mava_tum_inspect::message_description &message, wire_bytes wire,
    const message_place &place, const json_style &style, text_output &output);

} // namespace mava_tum_cli
