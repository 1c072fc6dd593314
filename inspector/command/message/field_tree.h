// A message as a tree of lines: where each field begins, its number and name, its kind, its value.
#pragma once

#include "message/field_value.h"
#include "output/colours.h"
#include "output/output_file.h"

namespace mava_tum_cli
{

void print_tree(
    const mava_tum_inspect::message_description &message, wire_bytes wire, const colours &colour, output_file &output);

} // namespace mava_tum_cli
