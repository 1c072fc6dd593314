// Values of a message, and what is wrong with it, in words.
#pragma once

#include "inspector/library/field_value.h"
#include "inspector/library/wire_event.h"
#include "output/output_file.h"

#include <optional>
#include <string>
#include <vector>

namespace mava_tum_cli
{

// 7, "user@example.com", c0000201 = 192.0.2.1
std::string text_of_value(const occurrence &at, wire_bytes wire);

// "`field_3` occurs in a second, separate run at byte 41: result -1"
std::string fault_in_words(const wire_fault &fault);

// What the decoder puts up with.
std::vector<std::string> notes_in_words(const occurrence &at, wire_bytes wire);

// Nothing: the message decodes.
std::optional<std::string> fault_of(const message_description &message, wire_bytes wire);

} // namespace mava_tum_cli
