// A message as the JSON of `decode --json`:
//
//     message, bytes, result     its name, its size, and with what a decode answers it
//     fault                      where and why a decode ends, if it does
//     record                     the values of the fields that are present: what `encode` reads
//     fields                     where each of them stands, and which are absent
#pragma once

#include "message/field_value.h"

namespace mava_tum_cli
{

struct decoded_json {
    std::string text;
    bool is_whole; // the message decodes
};

// `is_compact`: on one line.
decoded_json decode_to_json(const mava_tum_inspect::message_description &message, wire_bytes wire, bool is_compact);

} // namespace mava_tum_cli
