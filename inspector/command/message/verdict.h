// What is wrong with a message, in words.
#pragma once

#include "inspector/library/wire_event.h"
#include "inspector/library/field_value.h"

#include <optional>
#include <string>
#include <vector>

namespace mava_tum_cli
{

// "`field_3` occurs in a second, separate run at byte 41: result -1"
std::string fault_in_words(const mava_tum_inspect::wire_fault &fault);

// What the decoder puts up with.
std::vector<std::string> notes_in_words(const mava_tum_inspect::occurrence &at, wire_bytes wire);

// Nothing: the message decodes.
std::optional<std::string> fault_of(const mava_tum_inspect::message_description &message, wire_bytes wire);

} // namespace mava_tum_cli
