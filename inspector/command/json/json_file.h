// A JSON document in a file.
#pragma once

#include "json/json_values.h"

namespace mava_tum_cli
{

// Throws bad_use that names line and column of what is no JSON, and the path of a member that occurs twice.
json read_json_file(const std::string &path);

} // namespace mava_tum_cli
