// Bytes written as hex digits.
#pragma once

#include "input/input_stream.h"

#include <string>
#include <string_view>

namespace mava_tum_cli
{

// The value of a hex digit, or -1.
int hex_digit_value(uint8_t character);

bool is_text_space(uint8_t character);

// Two digits a byte; blanks, line ends, colons and 0x before a byte are ignored. Throws bad_use that begins with
// `where` and names line and column of what is wrong.
byte_vector bytes_of_hex(std::span<const uint8_t> text, const std::string &where);

std::string hex_of_bytes(std::span<const uint8_t> bytes, std::string_view separator = "");

} // namespace mava_tum_cli
