// Checks that a text is valid UTF-8 without characters that control a terminal.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace mava_tum_inspect
{

// Well-formed.
bool is_utf8(std::string_view text);

// Well-formed UTF-8 without a zero byte, and without what only a terminal would understand.
bool is_plain_utf8(std::string_view text);

// A character that changes the direction in which a terminal shows the text around it, so that a name can look like
// another one.
struct direction_control {
    uint32_t code;
    size_t bytes; // 0: there is none
};

// Of the character that begins at `position` in well-formed UTF-8.
direction_control direction_control_at(std::string_view text, size_t position);

} // namespace mava_tum_inspect
