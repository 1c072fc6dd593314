// Messages and adapters by the name that the command line gives, in whatever letters: session_context, Session-Context,
// SessionContext, mava_tum_session_context. An adapter that alone carries a message may be named by it.
#pragma once

#include "inspector/library/message_table.h"

#include <string>

namespace mava_tum_cli
{

// Both throw bad_use that offers the nearest names, or the adapters of a message that has several.
const mava_tum_inspect::message_description &message_named(const std::string &name);
const mava_tum_inspect::adapter_description &adapter_named(const std::string &name);

} // namespace mava_tum_cli
