// A message as a flat list of what is in it, for comparisons.
#pragma once

#include "message/field_value.h"

#include <string>
#include <vector>

namespace mava_tum_cli
{

struct listed_field {
    std::string path;  // "qos[3].field_2"
    std::string value; // what holds of it in the end, for people
};

// In the order of the message. Each path once: the last occurrence counts, and unknown fields stand together.
std::vector<listed_field> list_fields(const mava_tum_inspect::message_description &message, wire_bytes wire);

} // namespace mava_tum_cli
