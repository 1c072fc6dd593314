// Bytes written as base64, in the usual alphabet or the one for file names and URLs.
#pragma once

#include "input/input_stream.h"

#include <string>

namespace mava_tum_cli
{

bool is_base64_character(uint8_t character);

// Blanks and line ends are ignored; padding may be left out. Throws bad_use that begins with `where` and names line and
// column of what is wrong.
byte_vector bytes_of_base64(std::span<const uint8_t> text, const std::string &where);

std::string base64_of_bytes(std::span<const uint8_t> bytes);

} // namespace mava_tum_cli
