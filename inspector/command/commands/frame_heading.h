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
    const std::string place =
        source.has_frames()
            ? fmt::format("{}frame {} at byte {}: ", source.number() > 1 ? "\n" : "", source.number(), source.begin())
            : "";
    return fmt::format("{}{}, {}\n", place, message, counted(source.message().size(), "byte"));
}

} // namespace mava_tum_cli
