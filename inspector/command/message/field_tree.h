// A message as a tree of lines: where each field begins, its number and name, its kind, its value.
#pragma once

#include "message/absent_fields.h"
#include "message/field_value.h"
#include "output/colours.h"

#include <optional>

namespace mava_tum_cli
{

// `absent` null: absent fields are left out. Returns the fault in words; nothing: the message decodes.
std::optional<std::string> print_tree(const mava_tum_inspect::message_description &message, wire_bytes wire,
    absent_fields *absent, const colours &colour, text_output &output);

} // namespace mava_tum_cli
