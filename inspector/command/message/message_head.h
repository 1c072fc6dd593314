// How the JSON of a message begins, whatever a command says about it.
#pragma once

#include "input/message_place.h"
#include "json/json_writer.h"

namespace mava_tum_cli
{

// Opens the object: where the message comes from, if there can be several; its name, unless it is empty; its size.
void open_message(json_writer &writer, const message_place &place, std::string_view name, uint64_t bytes);

// "result", and "fault" if it is not 0.
void write_verdict(json_writer &writer, int32_t result, std::string_view path, uint64_t offset, std::string_view rule);

} // namespace mava_tum_cli
