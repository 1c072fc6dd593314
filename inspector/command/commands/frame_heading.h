// The first line of a message in the output of `decode` and `explain`.
#pragma once

#include "input/message_source.h"
#include "words.h"

#include <fmt/format.h>
#include <string>

namespace mava_tum_cli
{

// The name of the message and its size; of several messages, where each stands.
inline std::string frame_heading(const message_source &source, const char *message)
{
    const message_place place = source.place();
    return fmt::format("{}{}{}{}, {}\n", source.is_first() ? "" : "\n", place.to_string(), place.is_empty() ? "" : ": ",
        message, counted(source.message().size(), "byte"));
}

} // namespace mava_tum_cli
