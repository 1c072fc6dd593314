// Bytes as they stand in the source of a program, and what prints them so:
//
//     unsigned char message[] = {0x08, 0x01, 21};          C and its relatives, xxd -i
//     "\x08\x01" "\025\xc0"   b'\x08\x01\x15'   \x08\x01   texts with escapes
#pragma once

#include "input/input_stream.h"

#include <string>
#include <string_view>

namespace mava_tum_cli
{

// Whether there are numbers in braces, or escapes.
bool is_c(std::string_view text);

// Throws bad_use that begins with `where` and says what is wrong.
byte_vector bytes_of_c(std::string_view text, const std::string &where);

} // namespace mava_tum_cli
