// What two messages have in different ways, field by field.
#pragma once

#include "inspector/library/field_value.h"

#include <optional>
#include <string>
#include <vector>

namespace mava_tum_cli
{

struct field_difference {
    std::string path;
    std::optional<std::string> first; // the value, as people read it; nothing: only the second message has the field
    std::optional<std::string> second;
};

// In the order of the first message; what only the second has comes last.
std::vector<field_difference> differences_of(
    const mava_tum_inspect::message_description &message, wire_bytes first, wire_bytes second);

} // namespace mava_tum_cli
