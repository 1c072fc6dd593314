// Messages and adapters by the name that the command line gives.
#pragma once

#include "inspector/library/message_table.h"

#include <string>

namespace mava_tum_cli
{

// Both throw bad_use that offers the nearest names.
const mava_tum_inspect::message_description &message_named(const std::string &name);
const mava_tum_inspect::adapter_description &adapter_named(const std::string &name);

} // namespace mava_tum_cli
