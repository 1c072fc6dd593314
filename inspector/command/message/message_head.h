// How the output of a message begins, as text and as JSON, whatever a command prints of it.
#pragma once

#include "input/message_source.h"
#include "output/output_file.h"

#include <string>

namespace mava_tum_cli
{

// The first line of the text: the name of the message and its size; of several messages, where each stands.
std::string frame_heading(const message_source &source, const char *message);

// JSON of one message is spread over lines; of several, each has a line.
json_writer::layout layout_of(const message_source &source);

// Opens the object: where the message comes from, if there can be several; its name, unless it is empty; its size.
void open_message(json_writer &writer, const message_place &place, std::string_view name, uint64_t bytes);

} // namespace mava_tum_cli
