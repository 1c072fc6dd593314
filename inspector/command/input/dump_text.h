// Bytes as programs dump them, an offset before each row:
//
//     00000000: 0801 15c0 0002 01                        .......          xxd
//     00000000  08 01 15 c0 00 02 01                     |.......|        hexdump -C
//     0000  08 01 15 c0 00 02 01                              .......     tshark -x
//     0000000 08 01 15 c0 00 02 01                                        od -t x1
//     0000000 0108 c015 0200 0001                                         od -x, hexdump: words of this host
//     0000000 000410 140025 001000 000001                                 od
//
// A line "*" stands for rows like the one before; a row without bytes says where the dump ends.
#pragma once

#include "input/input_stream.h"

#include <string>
#include <string_view>

namespace mava_tum_cli
{

// Whether the first row can be nothing else, or all rows follow each other.
bool is_dump(std::string_view text);

// Throws bad_use that begins with `where` and names the line of what is wrong.
byte_vector bytes_of_dump(std::string_view text, const std::string &where);

} // namespace mava_tum_cli
